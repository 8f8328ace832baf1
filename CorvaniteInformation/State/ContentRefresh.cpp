// SPDX-License-Identifier: Apache-2.0

#include "ContentRefresh.h"

#include "FirstCharacters.h"
#include "InformationPackSync.h"

#include <tuple>

using InformationPackSync::Snapshot;

namespace {

using ContentRefresh::Outcome;

constexpr qsizetype maximumRetiredBytes = 16 * 1024 * 1024;

Outcome outcome(Outcome::Kind kind, const Snapshot& snapshot)
{
    constexpr qsizetype dayLength = 10;
    return {kind, snapshot.signals.size(), firstCharacters(snapshot.asOf, dayLength)};
}

std::optional<Snapshot> snapshotIn(const SiteClient::Answer& answer)
{
    if (!answer || !answer->isDocument()) {
        return std::nullopt;
    }
    auto snapshot = InformationPackSync::parse(answer->body);
    return snapshot ? std::optional(*std::move(snapshot)) : std::nullopt;
}

// What the answer about the retired list leaves to show; without one the list stays as it was.
std::optional<QList<InformationSignal>>
retiredSignalsAfter(const SiteClient::Answer& answer, const QString& directory,
                    const InformationFileManager& fileManager)
{
    if (!answer || answer->status != SiteReply::ok) {
        return std::nullopt;
    }
    // Where the list cannot be stored, the one stored before counts.
    std::ignore = InformationPackSync::saveRetiredSignals(answer->body, directory, fileManager);
    return InformationPackSync::loadRetiredSignals(directory, fileManager);
}

} // namespace

QString ContentRefresh::Outcome::note() const
{
    switch (kind) {
    case Kind::Failed:
        return u"同步失败，继续使用当前内容"_qs;
    case Kind::UpToDate:
        return u"已是最新（%1 条，%2）"_qs.arg(QString::number(count), day);
    case Kind::Synced:
        return u"已同步 %1 条 · %2"_qs.arg(QString::number(count), day);
    }
    Q_UNREACHABLE();
}

QCoro::Task<ContentRefresh::Result> ContentRefresh::run(QPointer<const QObject> asker,
                                                        SiteClient& site,
                                                        const InformationFileManager& fileManager,
                                                        InformationContent shown)
{
    const auto answer =
        co_await site.get(SiteClient::packPath, InformationPackSync::maximumPackBytes);
    const auto snapshot = snapshotIn(answer);
    if (!asker || !snapshot) {
        co_return Result{};
    }
    if (!snapshot->isNewer(shown.packAsOf())) {
        co_return Result{outcome(Outcome::Kind::UpToDate, *snapshot)};
    }
    const Outcome synced = outcome(Outcome::Kind::Synced, *snapshot);
    const auto directory = InformationPackSync::liveDirectory(fileManager);
    if (!directory) {
        co_return Result{synced, shown.replacedBy(*snapshot, std::nullopt)};
    }
    if (!InformationPackSync::saveSnapshot(answer->body, *directory, fileManager)) {
        co_return Result{};
    }
    const auto retiredAnswer =
        co_await site.get(SiteClient::retiredSignalsPath, maximumRetiredBytes);
    if (!asker) {
        co_return Result{};
    }
    co_return Result{
        synced,
        shown.replacedBy(*snapshot, retiredSignalsAfter(retiredAnswer, *directory, fileManager))};
}
