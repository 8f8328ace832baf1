// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SiteClient.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <coroutine>

/// A site that answers as the test says, at once or when the test says so.
class FakeSiteClient final : public SiteClient
{
public:
    struct Request
    {
        QString path;
        qsizetype byteLimit;

        friend bool operator==(const Request&, const Request&) = default;
    };

    /// By path; a path without an answer is a transport error.
    QHash<QString, Answer> answers;
    QList<Request> requests;
    /// Paths whose answers wait for `release`.
    QSet<QString> heldPaths;

    ~FakeSiteClient() override;

    /// Answers the path with the body, and status 200.
    void offer(const QString& path, const QByteArray& body);

    /// Gives the answers that wait, and holds no more.
    void release();

    QString host() const override;
    QUrl page(const QString& path) const override;
    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override;

private:
    struct Turn;

    QList<std::coroutine_handle<>> m_waiting;
};
