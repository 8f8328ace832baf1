#pragma once

#include "SiteClient.h"

#include <QHash>
#include <QList>

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
    /// While true, answers wait for `release`.
    bool isHolding = false;

    ~FakeSiteClient() override
    {
        answers.clear();
        release();
    }

    void setAnswer(QLatin1StringView path, const QByteArray& body, std::optional<int> status = 200)
    {
        answers.insert(path, SiteReply{body, status});
    }

    /// Gives the answers that wait.
    void release()
    {
        isHolding = false;
        for (const auto waiting : std::exchange(m_waiting, {})) {
            waiting.resume();
        }
    }

    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override
    {
        requests.append({path, byteLimit});
        co_await Turn{*this};
        co_return answers.value(path, std::unexpected(SiteError::Transport));
    }

private:
    struct Turn
    {
        FakeSiteClient& client;

        bool await_ready() const { return !client.isHolding; }
        void await_suspend(std::coroutine_handle<> waiting) { client.m_waiting.append(waiting); }
        void await_resume() const {}
    };

    QList<std::coroutine_handle<>> m_waiting;
};
