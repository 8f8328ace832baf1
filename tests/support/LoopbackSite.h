// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QList>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QTcpSocket>

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
    LoopbackSite();

    explicit LoopbackSite(const QSslConfiguration& tls);

    QString origin() const { return originAt(u"127.0.0.1"_qs); }
    /// The same place under another host name.
    QString otherOrigin() const { return originAt(u"localhost"_qs); }

    void setAnswer(const QString& path, Answer answer);

    /// The heads of all requests, each line without its end, in order.
    const QList<QList<QByteArray>>& requests() const { return m_requests; }
    QList<QByteArray> requestLines() const;
    /// What the site could send of an endless body until now.
    qint64 endlessBytesSent() const { return m_endlessBytesSent; }
    qsizetype connectionsOpen() const;

    // Answers. A connection that closes at once may be taken for one that never answered, and the
    // request repeated; so the other side closes it where it can.

    static Answer document(const QByteArray& body, int status = 200,
                           const QByteArray& moreHeaders = {});

    static Answer redirect(const QString& target, int status = 302);

    /// The half of a body whose whole length was announced.
    static Answer halfOfAnnounced(const QByteArray& body);

    /// A body that ends with the connection.
    static Answer unannounced(const QByteArray& body);

    /// Bytes as long as the other side takes them.
    Answer endless(int status, const QByteArray& moreHeaders = {});

    /// One byte after the other, each after a pause, for ever.
    static Answer drip(std::chrono::milliseconds pause);

    /// Part of a body, then nothing more.
    static Answer stall(const QByteArray& part);

    static Answer silence();

    static Answer reset();

    static Answer raw(const QByteArray& bytes);

private:
    LoopbackSite(std::unique_ptr<QTcpServer> server, QString scheme);

    QString originAt(const QString& host) const;
    void serve(QTcpSocket& connection);
    void readRequest(QTcpSocket& connection);

    const std::unique_ptr<QTcpServer> m_server;
    const QString m_scheme;
    QHash<QString, Answer> m_answers;
    QList<QList<QByteArray>> m_requests;
    qint64 m_endlessBytesSent = 0;
};
