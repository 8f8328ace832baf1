// SPDX-License-Identifier: Apache-2.0

#include "InstanceChannel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalSocket>

#include <algorithm>

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr qsizetype hashLength = 32;
constexpr char answer = '\n';
constexpr qsizetype longestToken = 1024;

// Names of the abstract namespace have no owner; the two ends of a connection have.
bool isOfThisUser(const QLocalSocket& socket)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                        &size) == 0 &&
           peer.uid == ::geteuid();
}

// It is put into the environment, and handed on to the desktop.
bool isToken(const QByteArray& text)
{
    return text.size() <= longestToken && std::ranges::all_of(text, [](char character) {
               return character > ' ' && character <= '~';
           });
}

} // namespace

QString InstanceChannel::nameFor(const QString& dataDirectory)
{
    const QDir directory(dataDirectory);
    const auto path = directory.exists() ? directory.canonicalPath() : directory.absolutePath();
    const auto hash =
        QCryptographicHash::hash(QFile::encodeName(path), QCryptographicHash::Sha256).toHex();
    return u"corvanite-information-%1-%2"_qs.arg(QString::number(::geteuid()),
                                                 QString::fromLatin1(hash.left(hashLength)));
}

bool InstanceChannel::requestActivation(const QString& name, const QByteArray& token,
                                        std::chrono::milliseconds answerPatience)
{
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name);
    if (!socket.waitForConnected() || !isOfThisUser(socket)) {
        return false;
    }
    socket.write((isToken(token) ? token : QByteArray()) + '\n');
    socket.flush();
    return socket.bytesAvailable() > 0 ||
           socket.waitForReadyRead(static_cast<int>(answerPatience.count()));
}

InstanceChannel::InstanceChannel(QObject* parent) : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceChannel::takeRequests);
}

bool InstanceChannel::listen(const QString& name)
{
    return m_server.listen(name);
}

void InstanceChannel::takeRequests()
{
    while (auto* const request = m_server.nextPendingConnection()) {
        if (!isOfThisUser(*request)) {
            delete request;
            continue;
        }
        connect(request, &QLocalSocket::disconnected, request, &QObject::deleteLater);
        connect(request, &QLocalSocket::readyRead, this, [this, request] { hear(*request); });
        hear(*request);
    }
}

void InstanceChannel::hear(QLocalSocket& request)
{
    if (!request.canReadLine() && request.bytesAvailable() <= longestToken) {
        return;
    }
    const QByteArray line = request.readLine(longestToken + 2);
    request.disconnect(this);
    request.write(&answer, sizeof answer);
    request.flush();
    request.deleteLater();
    const QByteArray token = line.chopped(1);
    Q_EMIT activationRequested(line.endsWith('\n') && isToken(token) ? token : QByteArray());
}
