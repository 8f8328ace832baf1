#include "InformationModel.h"

#include <QPointer>

#include <tuple>

namespace {

constexpr qsizetype maximumRetiredBytes = 16 * 1024 * 1024;
constexpr qsizetype maximumVersionBytes = 256 * 1024;
constexpr int statusOk = 200;

const QString failedNote = u"同步失败，继续使用当前内容"_qs;

QString day(const InformationPackSync::Snapshot& snapshot)
{
    constexpr qsizetype dayLength = 10;
    return snapshot.asOf.left(dayLength);
}

QString upToDateNote(const InformationPackSync::Snapshot& snapshot)
{
    return u"已是最新（%1 条，%2）"_qs.arg(snapshot.signals.size()).arg(day(snapshot));
}

QString syncedNote(const InformationPackSync::Snapshot& snapshot)
{
    return u"已同步 %1 条 · %2"_qs.arg(snapshot.signals.size()).arg(day(snapshot));
}

// An answer that is not HTTP has no status and is taken as it is.
bool isDocument(const SiteClient::Answer& answer)
{
    return answer && answer->status.value_or(statusOk) == statusOk;
}

// What the answer about the retired list leaves to show; without one the list stays as it was.
std::optional<QList<InformationSignal>>
retiredSignalsAfter(const SiteClient::Answer& answer, const QString& directory,
                    const InformationFileManager& fileManager)
{
    if (!answer || answer->status != statusOk) {
        return std::nullopt;
    }
    // Where the list cannot be stored, the one stored before counts.
    std::ignore = InformationPackSync::saveRetiredSignals(answer->body, directory, fileManager);
    return InformationPackSync::loadRetiredSignals(directory, fileManager);
}

} // namespace

// What the screens show of it

bool InformationModel::packSyncFailed() const
{
    return m_packSyncNote == failedNote;
}

QString InformationModel::syncHelp() const
{
    return u"从 %1 拉取最新精选内容"_qs.arg(m_collaborators.site.host());
}

QString InformationModel::availableUpdateText() const
{
    return m_availableUpdate ? u"新版本 %1 已发布"_qs.arg(m_availableUpdate->version) : QString();
}

QString InformationModel::availableUpdateHelp() const
{
    return m_availableUpdate
               ? u"获取 Corvanite Information 新版本 %1"_qs.arg(m_availableUpdate->version)
               : QString();
}

QString InformationModel::availableUpdateAddress() const
{
    return m_availableUpdate ? m_availableUpdate->downloadURL.toString(QUrl::FullyEncoded)
                             : QString();
}

QString InformationModel::sitePage(const QString& path) const
{
    return m_collaborators.site.page(path).toString(QUrl::FullyEncoded);
}

// Refresh

void InformationModel::refreshPackFromSite()
{
    assertMainThread();
    if (!m_isSyncingPack) {
        refreshPack();
    }
}

QCoro::Task<> InformationModel::refreshPack()
{
    const QPointer<InformationModel> self(this);
    setSyncingPack(true);
    setPackSyncNote(std::nullopt);

    const auto answer = co_await m_collaborators.site.get(SiteClient::packPath,
                                                          InformationPackSync::maximumPackBytes);
    if (!self) {
        co_return;
    }
    if (!isDocument(answer)) {
        endRefresh(failedNote);
        co_return;
    }
    const auto snapshot = InformationPackSync::parse(answer->body);
    if (!snapshot) {
        endRefresh(failedNote);
        co_return;
    }
    if (!snapshot->isNewer(packAsOf())) {
        endRefresh(upToDateNote(*snapshot));
        co_return;
    }

    const auto& fileManager = m_collaborators.fileManager;
    const auto directory = InformationPackSync::liveDirectory(fileManager);
    if (!directory) {
        endRefresh(syncedNote(*snapshot), m_content.replacedBy(*snapshot, std::nullopt));
        co_return;
    }
    if (!InformationPackSync::saveSnapshot(answer->body, *directory, fileManager)) {
        endRefresh(failedNote);
        co_return;
    }
    const auto retiredAnswer =
        co_await m_collaborators.site.get(SiteClient::retiredSignalsPath, maximumRetiredBytes);
    if (!self) {
        co_return;
    }
    endRefresh(syncedNote(*snapshot),
               m_content.replacedBy(*snapshot,
                                    retiredSignalsAfter(retiredAnswer, *directory, fileManager)));
}

void InformationModel::endRefresh(const QString& note, std::optional<InformationContent> content)
{
    m_packSyncNote = note;
    if (content) {
        m_content = *std::move(content);
        dropCaches();
        Q_EMIT contentChanged();
    }
    Q_EMIT packSyncNoteChanged();
    setSyncingPack(false);
}

// Probe

void InformationModel::probeAppUpdateOnce()
{
    assertMainThread();
    if (!m_updateProbeRan) {
        m_updateProbeRan = true;
        probeAppUpdate();
    }
}

QCoro::Task<> InformationModel::probeAppUpdate()
{
    const QPointer<InformationModel> self(this);
    const QString runningVersion = m_collaborators.runningVersion;
    if (runningVersion.isEmpty()) {
        co_return;
    }
    const auto answer =
        co_await m_collaborators.site.get(SiteClient::appVersionPath, maximumVersionBytes);
    if (!self || !isDocument(answer)) {
        co_return;
    }
    const auto notice = InformationUpdateNotice::parse(answer->body, m_collaborators.site.host());
    if (notice && InformationUpdateNotice::isNewer(notice->version, runningVersion)) {
        setAvailableUpdate(*notice);
    }
}
