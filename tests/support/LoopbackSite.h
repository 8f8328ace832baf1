#pragma once

#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTcpServer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>

/// A web site on the loopback address that does with each path what the test says, and knows what
/// it was asked. A path without an answer is not found.
class LoopbackSite
{
public:
    /// Does something with the connection of one request.
    using Answer = std::function<void(QTcpSocket&)>;

    /// Over plain HTTP.
    LoopbackSite() : LoopbackSite(std::make_unique<QTcpServer>(), u"http"_qs) {}

    explicit LoopbackSite(const QSslConfiguration& tls)
        : LoopbackSite(secureServer(tls), u"https"_qs)
    {
    }

    QString origin() const
    {
        return u"%1://127.0.0.1:%2"_qs.arg(m_scheme).arg(m_server->serverPort());
    }
    /// The same place under another host name.
    QString otherOrigin() const
    {
        return u"%1://localhost:%2"_qs.arg(m_scheme).arg(m_server->serverPort());
    }

    void setAnswer(const QString& path, Answer answer)
    {
        m_answers.insert(path, std::move(answer));
    }

    /// The heads of all requests, each line without its end, in order.
    const QList<QList<QByteArray>>& requests() const { return m_requests; }
    QList<QByteArray> requestLines() const
    {
        QList<QByteArray> lines;
        std::ranges::transform(m_requests, std::back_inserter(lines),
                               [](const QList<QByteArray>& head) { return head.first(); });
        return lines;
    }
    /// What the site could send of an endless body until now.
    qint64 endlessBytesSent() const { return m_endlessBytesSent; }
    qsizetype connectionsOpen() const { return m_server->findChildren<QTcpSocket*>().size(); }

    // Answers. A connection that closes at once may be taken for one that never answered, and the
    // request repeated; so the other side closes it where it can.

    static Answer document(const QByteArray& body, int status = 200,
                           const QByteArray& moreHeaders = {})
    {
        return [=](QTcpSocket& connection) {
            connection.write(head(status, body.size(), moreHeaders) + body);
        };
    }

    static Answer redirect(const QString& target, int status = 302)
    {
        return document({}, status, "Location: " + target.toLatin1() + "\r\n");
    }

    /// The half of a body whose whole length was announced.
    static Answer halfOfAnnounced(const QByteArray& body)
    {
        return [=](QTcpSocket& connection) {
            connection.write(head(200, body.size(), {}) + body.first(body.size() / 2));
            connection.disconnectFromHost();
        };
    }

    /// A body that ends with the connection.
    static Answer unannounced(const QByteArray& body)
    {
        return [=](QTcpSocket& connection) {
            connection.write(head(200, std::nullopt, {}) + body);
            connection.disconnectFromHost();
        };
    }

    /// Bytes as long as the other side takes them.
    Answer endless(int status, const QByteArray& moreHeaders = {})
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

    /// One byte after the other, each after a pause, for ever.
    static Answer drip(std::chrono::milliseconds pause)
    {
        return [=](QTcpSocket& connection) {
            connection.write(head(200, std::nullopt, {}));
            auto* timer = new QTimer(&connection);
            timer->callOnTimeout(&connection, [&connection] { connection.write(" "); });
            timer->start(pause);
        };
    }

    /// Part of a body, then nothing more.
    static Answer stall(const QByteArray& part)
    {
        return [=](QTcpSocket& connection) {
            connection.write(head(200, part.size() + 1, {}) + part);
        };
    }

    static Answer silence()
    {
        return [](QTcpSocket&) {};
    }

    static Answer reset()
    {
        return [](QTcpSocket& connection) { connection.abort(); };
    }

    static Answer raw(const QByteArray& bytes)
    {
        return [=](QTcpSocket& connection) {
            connection.write(bytes);
            connection.disconnectFromHost();
        };
    }

private:
    LoopbackSite(std::unique_ptr<QTcpServer> server, QString scheme)
        : m_server(std::move(server)), m_scheme(std::move(scheme))
    {
        QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                         [this] { serve(*m_server->nextPendingConnection()); });
        if (!m_server->listen(QHostAddress::LocalHost)) {
            qFatal("The loopback site does not listen.");
        }
    }

    static std::unique_ptr<QTcpServer> secureServer(const QSslConfiguration& tls)
    {
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(tls);
        return server;
    }

    static QByteArray head(int status, std::optional<qsizetype> length,
                           const QByteArray& moreHeaders)
    {
        QByteArray lines = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\n";
        if (length) {
            lines += "Content-Length: " + QByteArray::number(*length) + "\r\n";
        }
        return lines + "Connection: close\r\n" + moreHeaders + "\r\n";
    }

    void serve(QTcpSocket& connection)
    {
        QObject::connect(&connection, &QTcpSocket::disconnected, &connection,
                         &QObject::deleteLater);
        QObject::connect(&connection, &QTcpSocket::readyRead, &connection,
                         [this, &connection] { readRequest(connection); });
        readRequest(connection);
    }

    // Waits for the whole head, which is all of a GET.
    void readRequest(QTcpSocket& connection)
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

    const std::unique_ptr<QTcpServer> m_server;
    const QString m_scheme;
    QHash<QString, Answer> m_answers;
    QList<QList<QByteArray>> m_requests;
    qint64 m_endlessBytesSent = 0;
};
