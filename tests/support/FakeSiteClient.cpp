// SPDX-License-Identifier: Apache-2.0

#include "FakeSiteClient.h"

#include <utility>

/// Waits where the path is held.
struct FakeSiteClient::Turn
{
    FakeSiteClient& client;
    const QString& path;

    bool await_ready() const { return !client.heldPaths.contains(path); }
    void await_suspend(std::coroutine_handle<> waiting) { client.m_waiting.append(waiting); }
    void await_resume() const {}
};

FakeSiteClient::~FakeSiteClient()
{
    answers.clear();
    release();
}

void FakeSiteClient::offer(const QString& path, const QByteArray& body)
{
    answers.insert(path, SiteReply{body, 200});
}

void FakeSiteClient::release()
{
    heldPaths.clear();
    for (const auto waiting : std::exchange(m_waiting, {})) {
        waiting.resume();
    }
}

QString FakeSiteClient::host() const
{
    return u"corvanite.example"_qs;
}

QUrl FakeSiteClient::page(const QString& path) const
{
    return QUrl(u"https://corvanite.example/"_qs + path);
}

QCoro::Task<SiteClient::Answer> FakeSiteClient::get(QString path, qsizetype byteLimit)
{
    requests.append({path, byteLimit});
    co_await Turn{*this, path};
    co_return answers.value(path, std::unexpected(SiteError::Transport));
}
