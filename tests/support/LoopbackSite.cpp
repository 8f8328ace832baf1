// SPDX-License-Identifier: Apache-2.0

#include "LoopbackSite.h"

#include <QHostAddress>
#include <QSslServer>
#include <QTimer>

#include <algorithm>
#include <optional>

namespace {

std::unique_ptr<QTcpServer> secureServer(const QSslConfiguration& tls)
{
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(tls);
    return server;
}

QByteArray head(int status, std::optional<qsizetype> length, const QByteArray& moreHeaders)
{
    QByteArray lines = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n";
    if (length) {
        lines += "Content-Length: " + QByteArray::number(*length) + "\r\n";
    }
    return lines + "Connection: close\r\n" + moreHeaders + "\r\n";
}

} // namespace

LoopbackSite::LoopbackSite() : LoopbackSite(std::make_unique<QTcpServer>(), u"http"_qs) {}

LoopbackSite::LoopbackSite(const QSslConfiguration& tls)
    : LoopbackSite(secureServer(tls), u"https"_qs)
{
}

LoopbackSite::LoopbackSite(std::unique_ptr<QTcpServer> server, QString scheme)
    : m_server(std::move(server)), m_scheme(std::move(scheme))
{
    QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                     [this] { serve(*m_server->nextPendingConnection()); });
    if (!m_server->listen(QHostAddress::LocalHost)) {
        qFatal("The loopback site does not listen.");
    }
}

QString LoopbackSite::originAt(const QString& host) const
{
    return u"%1://%2:%3"_qs.arg(m_scheme, host).arg(m_server->serverPort());
}

void LoopbackSite::setAnswer(const QString& path, Answer answer)
{
    m_answers.insert(path, std::move(answer));
}

QList<QByteArray> LoopbackSite::requestLines() const
{
    QList<QByteArray> lines;
    std::ranges::transform(m_requests, std::back_inserter(lines),
                           [](const QList<QByteArray>& head) { return head.first(); });
    return lines;
}

qsizetype LoopbackSite::connectionsOpen() const
{
    return m_server->findChildren<QTcpSocket*>().size();
}

LoopbackSite::Answer LoopbackSite::document(const QByteArray& body, int status,
                                            const QByteArray& moreHeaders)
{
    return [=](QTcpSocket& connection) {
        connection.write(head(status, body.size(), moreHeaders) + body);
    };
}

LoopbackSite::Answer LoopbackSite::redirect(const QString& target, int status)
{
    return document({}, status, "Location: " + target.toLatin1() + "\r\n");
}

LoopbackSite::Answer LoopbackSite::halfOfAnnounced(const QByteArray& body)
{
    return [=](QTcpSocket& connection) {
        connection.write(head(200, body.size(), {}) + body.first(body.size() / 2));
        connection.disconnectFromHost();
    };
}

LoopbackSite::Answer LoopbackSite::unannounced(const QByteArray& body)
{
    return [=](QTcpSocket& connection) {
        connection.write(head(200, std::nullopt, {}) + body);
        connection.disconnectFromHost();
    };
}

LoopbackSite::Answer LoopbackSite::endless(int status, const QByteArray& moreHeaders)
{
    return [=, this](QTcpSocket& connection) {
        const auto sendOn = [&connection] {
            constexpr qint64 pieceBytes = 64 * 1024;
            if (connection.bytesToWrite() < pieceBytes) {
                connection.write(QByteArray(pieceBytes, ' '));
            }
        };
        QObject::connect(&connection, &QTcpSocket::bytesWritten, &connection,
                         [this, sendOn](qint64 bytes) {
                             m_endlessBytesSent += bytes;
                             sendOn();
                         });
        connection.write(head(status, std::nullopt, moreHeaders));
        sendOn();
    };
}

LoopbackSite::Answer LoopbackSite::drip(std::chrono::milliseconds pause)
{
    return [=](QTcpSocket& connection) {
        connection.write(head(200, std::nullopt, {}));
        auto* timer = new QTimer(&connection);
        timer->callOnTimeout(&connection, [&connection] { connection.write(" "); });
        timer->start(pause);
    };
}

LoopbackSite::Answer LoopbackSite::stall(const QByteArray& part)
{
    return [=](QTcpSocket& connection) { connection.write(head(200, part.size() + 1, {}) + part); };
}

LoopbackSite::Answer LoopbackSite::silence()
{
    return [](QTcpSocket&) {};
}

LoopbackSite::Answer LoopbackSite::reset()
{
    return [](QTcpSocket& connection) { connection.abort(); };
}

LoopbackSite::Answer LoopbackSite::raw(const QByteArray& bytes)
{
    return [=](QTcpSocket& connection) {
        connection.write(bytes);
        connection.disconnectFromHost();
    };
}

void LoopbackSite::serve(QTcpSocket& connection)
{
    QObject::connect(&connection, &QTcpSocket::disconnected, &connection, &QObject::deleteLater);
    QObject::connect(&connection, &QTcpSocket::readyRead, &connection,
                     [this, &connection] { readRequest(connection); });
    readRequest(connection);
}

// Waits for the whole head, which is all of a GET.
void LoopbackSite::readRequest(QTcpSocket& connection)
{
    const QByteArray received = connection.peek(64 * 1024);
    const auto headBytes = received.indexOf("\r\n\r\n");
    if (headBytes < 0) {
        return;
    }
    connection.skip(headBytes + 4);
    QList<QByteArray> lines = received.first(headBytes).split('\n');
    for (QByteArray& line : lines) {
        line = line.trimmed();
    }
    m_requests.append(lines);
    const QString path = QString::fromLatin1(lines.first().split(' ').at(1));
    m_answers.value(path, document("not here", 404))(connection);
}
