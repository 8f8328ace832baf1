#pragma once

#include "SiteClient.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <coroutine>
#include <utility>

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

    ~FakeSiteClient() override
    {
        answers.clear();
        release();
    }

    /// Gives the answers that wait, and holds no more.
    void release()
    {
        heldPaths.clear();
        for (const auto waiting : std::exchange(m_waiting, {})) {
            waiting.resume();
        }
    }

    QString host() const override { return u"corvanite.example"_qs; }
    QUrl page(const QString& path) const override
    {
        return QUrl(u"https://corvanite.example/"_qs + path);
    }

    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override
    {
        requests.append({path, byteLimit});
        co_await Turn{*this, path};
        co_return answers.value(path, std::unexpected(SiteError::Transport));
    }

private:
    struct Turn
    {
        FakeSiteClient& client;
        const QString& path;

        bool await_ready() const { return !client.heldPaths.contains(path); }
        void await_suspend(std::coroutine_handle<> waiting) { client.m_waiting.append(waiting); }
        void await_resume() const {}
    };

    QList<std::coroutine_handle<>> m_waiting;
};
