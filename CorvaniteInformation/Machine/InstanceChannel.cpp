#include "InstanceChannel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QThread>

namespace {

constexpr int attempts = 40;
constexpr unsigned long pauseMilliseconds = 50;
constexpr int answerPatienceMilliseconds = 2000;
constexpr qsizetype hashLength = 16;

} // namespace

QString InstanceChannel::socketPath(const QString& dataDirectory,
                                    const QProcessEnvironment& environment)
{
    const auto canonicalDirectory = QFile::encodeName(QDir(dataDirectory).canonicalPath());
    const auto hash =
        QCryptographicHash::hash(canonicalDirectory, QCryptographicHash::Sha256).toHex();
    const auto runtimeDirectory = environment.value(u"XDG_RUNTIME_DIR"_qs);
    return u"%1/corvanite-information-%2"_qs.arg(
        QDir::isAbsolutePath(runtimeDirectory) ? runtimeDirectory : dataDirectory,
        QString::fromLatin1(hash.left(hashLength)));
}

bool InstanceChannel::requestActivation(const QString& socketPath)
{
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QLocalSocket socket;
        socket.connectToServer(socketPath);
        if (socket.waitForConnected()) {
            return socket.state() == QLocalSocket::UnconnectedState ||
                   socket.waitForDisconnected(answerPatienceMilliseconds);
        }
        QThread::msleep(pauseMilliseconds);
    }
    return false;
}

InstanceChannel::InstanceChannel(QObject* parent) : QObject(parent)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceChannel::takeRequests);
}

bool InstanceChannel::listen(const QString& socketPath)
{
    QLocalServer::removeServer(socketPath);
    return m_server.listen(socketPath);
}

void InstanceChannel::takeRequests()
{
    while (auto* const request = m_server.nextPendingConnection()) {
        delete request;
        Q_EMIT activationRequested();
    }
}
