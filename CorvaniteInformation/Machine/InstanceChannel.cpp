#include "InstanceChannel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalSocket>

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr qsizetype hashLength = 32;
constexpr char answer = '\n';

// Names of the abstract namespace have no owner; the two ends of a connection have.
bool isOfThisUser(const QLocalSocket& socket)
{
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                        &size) == 0 &&
           peer.uid == ::geteuid();
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

bool InstanceChannel::requestActivation(const QString& name,
                                        std::chrono::milliseconds answerPatience)
{
    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(name);
    return socket.waitForConnected() && isOfThisUser(socket) &&
           (socket.bytesAvailable() > 0 ||
            socket.waitForReadyRead(static_cast<int>(answerPatience.count())));
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
        if (isOfThisUser(*request)) {
            request->write(&answer, sizeof answer);
            request->flush();
            Q_EMIT activationRequested();
        }
        delete request;
    }
}
