#include "InformationModel.h"

#include "ArchiveDigest.h"
#include "CodePointOrder.h"
#include "InformationIntake.h"
#include "InformationProjection.h"
#include "InformationSignalIndex.h"
#include "WellFormedText.h"

#include <QThread>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

template <typename T>
void appendOnce(QList<T>& list, const T& value)
{
    if (!list.contains(value)) {
        list.append(value);
    }
}

// The day at UTC+8 of a stamp in whole seconds; empty for any other stamp, so that a pack stamped
// in milliseconds shows the computed focus, which the remaining list completes.
QString packDay(const QString& packAsOf)
{
    constexpr qsizetype wholeSecondsLength = 20;
    if (packAsOf.size() != wholeSecondsLength) {
        return {};
    }
    const auto seconds = InformationProjection::fastISOSeconds(packAsOf);
    return seconds ? InformationProjection::beijingDay(static_cast<qint64>(*seconds) * 1000)
                   : QString();
}

} // namespace

InformationModel::InformationModel(Collaborators collaborators, InformationContent content,
                                   std::optional<InformationWorkspaceRepository> repository,
                                   QObject* parent)
    : QObject(parent), m_collaborators(std::move(collaborators)), m_content(std::move(content))
{
    if (!repository) {
        return;
    }
    auto workspace = repository->load(m_collaborators.fileManager);
    if (workspace) {
        m_workspace = *std::move(workspace);
        m_repository = std::move(repository);
    } else {
        m_errorMessage = u"已有信息没有被覆盖："_qs + localizedDescription(workspace.error());
    }
}

// Derived reads

const QList<InformationSignal>& InformationModel::visibleSignals() const
{
    if (!m_visibleSignalsCache) {
        m_visibleSignalsCache = InformationProjection::today(signals(), m_workspace);
    }
    return *m_visibleSignalsCache;
}

const QHash<QString, InformationSignal>& InformationModel::signalIndex() const
{
    if (!m_signalIndexCache) {
        m_signalIndexCache = indexById(retiredSignals() + signals());
    }
    return *m_signalIndexCache;
}

std::optional<InformationSignal> InformationModel::signalById(const QString& id) const
{
    const auto& index = signalIndex();
    const auto found = index.constFind(id);
    return found == index.cend() ? std::nullopt : std::optional(*found);
}

const QList<SelectionDay>& InformationModel::archiveDays() const
{
    if (!m_archiveDaysCache) {
        m_archiveDaysCache = ArchiveDigest::daysNewestFirst(selectionDays());
    }
    return *m_archiveDaysCache;
}

const QList<WeeklyDigest::Week>& InformationModel::weeklyWeeks() const
{
    if (!m_weeklyWeeksCache) {
        m_weeklyWeeksCache = WeeklyDigest::weeks(selectionDays());
    }
    return *m_weeklyWeeksCache;
}

qsizetype InformationModel::laneAllCount() const
{
    return visibleSignals().size();
}

qsizetype InformationModel::laneCount(InformationLane lane) const
{
    return std::ranges::count(visibleSignals(), lane, &InformationSignal::lane);
}

QList<InformationSignal> InformationModel::laneFilteredSignals() const
{
    auto filtered = visibleSignals();
    if (m_activeLane) {
        filtered.removeIf(
            [this](const InformationSignal& signal) { return signal.lane != *m_activeLane; });
    }
    return filtered;
}

QList<InformationSignal> InformationModel::focusedSignals() const
{
    const auto candidates = laneFilteredSignals();
    const auto day = std::ranges::find(selectionDays(), packDay(packAsOf()), &SelectionDay::date);
    if (day != selectionDays().end()) {
        QList<InformationSignal> featured;
        for (const QString& id : day->focusSignalIds) {
            const auto found = std::ranges::find(candidates, id, &InformationSignal::id);
            if (found != candidates.end()) {
                featured.append(*found);
            }
        }
        if (!featured.isEmpty()) {
            return featured;
        }
    }
    return InformationProjection::focusedToday(candidates, m_workspace,
                                               InformationProjection::defaultFocusLimit, packAsOf(),
                                               m_collaborators.seedHistory);
}

QList<InformationSignal> InformationModel::remainingSignals() const
{
    return InformationProjection::remainingToday(laneFilteredSignals(), m_workspace,
                                                 InformationProjection::defaultFocusLimit,
                                                 packAsOf(), m_collaborators.seedHistory);
}

qsizetype InformationModel::keptItemCount() const
{
    return InformationProjection::kept(signals(), m_workspace).size() +
           m_workspace.customSources.size();
}

bool InformationModel::isKept(const InformationSignal& signal) const
{
    return m_workspace.following.contains(signal.followTarget.id) && savedEntry(signal);
}

std::optional<InformationWorkspace::SavedMap::value_type>
InformationModel::savedEntry(const InformationSignal& signal) const
{
    auto latest = m_workspace.saved.end();
    for (const QString& id : threadIds(signal)) {
        const auto entry = m_workspace.saved.find(id);
        if (entry == m_workspace.saved.end()) {
            continue;
        }
        if (latest == m_workspace.saved.end() || entry->second.savedAt > latest->second.savedAt ||
            (entry->second.savedAt == latest->second.savedAt &&
             codePointLess(entry->first, latest->first))) {
            latest = entry;
        }
    }
    return latest == m_workspace.saved.end() ? std::nullopt : std::optional(*latest);
}

QList<InformationSignal> InformationModel::keptSignals() const
{
    auto kept = InformationProjection::kept(signals(), m_workspace);
    const QString query = m_search.trimmed().toLower();
    if (!query.isEmpty()) {
        kept.removeIf([this, &query](const InformationSignal& signal) {
            const auto entry = savedEntry(signal);
            const QStringList searched{signal.title,
                                       signal.source,
                                       signal.followTarget.label,
                                       signal.followTarget.scope,
                                       entry ? entry->second.saveReason : signal.why,
                                       entry ? entry->second.note : QString()};
            return !searched.join(u' ').toLower().contains(query);
        });
    }
    return kept;
}

QList<CustomInformationSource> InformationModel::keptCustomSources() const
{
    auto sources = m_workspace.customSources;
    const QString query = m_search.trimmed().toLower();
    if (!query.isEmpty()) {
        sources.removeIf([&query](const CustomInformationSource& source) {
            return !source.input.toLower().contains(query);
        });
    }
    return sources;
}

// Sentences

QString InformationModel::intakeMessage(InformationIntakeFailure failure)
{
    switch (failure) {
    case InformationIntakeFailure::Empty:
        return u"请粘贴一个链接，或写一句想持续更新的内容。"_qs;
    case InformationIntakeFailure::TooLong:
        return u"请缩短到 %1 个字以内；只需说清想跟踪什么。"_qs.arg(
            InformationIntake::maximumInputLength);
    case InformationIntakeFailure::UnsupportedURL:
        return u"当前只接收公开 HTTPS 网页；内网、带账号或其他协议不会接入。"_qs;
    }
    std::unreachable();
}

QString InformationModel::keepReceipt(InformationFollowUpdateMode updateMode)
{
    switch (updateMode) {
    case InformationFollowUpdateMode::VerifiedChange:
        return u"已收下；后续实质变化会续到同一条脉络。"_qs;
    case InformationFollowUpdateMode::SnapshotBaseline:
        return u"已收下；完整核验后的变化会续到同一条脉络。"_qs;
    case InformationFollowUpdateMode::EditorialWatch:
        return u"已收下；这个来源尚未接入自动更新，不会冒充已经同步。"_qs;
    }
    std::unreachable();
}

// Actions

void InformationModel::setSurface(Surface surface)
{
    assertMainThread();
    if (m_surface != surface) {
        m_surface = surface;
        Q_EMIT surfaceChanged();
    }
}

void InformationModel::setSearch(const QString& search)
{
    assertMainThread();
    if (m_search != search) {
        m_search = search;
        Q_EMIT searchChanged();
    }
}

void InformationModel::setActiveLane(std::optional<InformationLane> lane)
{
    assertMainThread();
    if (m_activeLane != lane) {
        m_activeLane = lane;
        Q_EMIT activeLaneChanged();
    }
}

void InformationModel::toggleKeep(const InformationSignal& signal)
{
    if (isKept(signal)) {
        removeKept(signal);
        return;
    }
    clearUndo();
    transactUndoable(keepReceipt(signal.followTarget.updateMode), keepMutation(signal));
}

void InformationModel::removeKept(const InformationSignal& signal)
{
    clearUndo();
    transactUndoable(u"已从工作台移除，并停止继续更新。"_qs, removeKeptMutation(signal));
}

void InformationModel::reduceSimilar(const InformationSignal& signal)
{
    clearUndo();
    transactUndoable(
        u"已减少“%1”并收起当前这条；重要变化仍会保留。"_qs.arg(displayName(signal.lane)),
        [&signal](InformationWorkspace& workspace) {
            appendOnce(workspace.hidden, InformationProjection::versionKey(signal));
            appendOnce(workspace.reducedLanes, signal.lane);
        });
}

void InformationModel::markSeen(const InformationSignal& signal)
{
    if (m_workspace.hasSeen(signal)) {
        return;
    }
    transact([&signal](InformationWorkspace& workspace) { workspace.markSeen(signal); },
             [this] { setReceipt(std::nullopt); });
}

void InformationModel::toggleKeep(const QString& signalId)
{
    if (const auto signal = signalById(signalId)) {
        toggleKeep(*signal);
    }
}

void InformationModel::removeKept(const QString& signalId)
{
    if (const auto signal = signalById(signalId)) {
        removeKept(*signal);
    }
}

void InformationModel::reduceSimilar(const QString& signalId)
{
    if (const auto signal = signalById(signalId)) {
        reduceSimilar(*signal);
    }
}

void InformationModel::markSeen(const QString& signalId)
{
    if (const auto signal = signalById(signalId)) {
        markSeen(*signal);
    }
}

bool InformationModel::addSource(const QString& input)
{
    assertMainThread();
    const auto intake = InformationIntake::normalize(wellFormedText(input));
    if (!intake) {
        setIntakeErrorMessage(intakeMessage(intake.error()));
        return false;
    }
    setIntakeErrorMessage(std::nullopt);

    if (const auto* signal = signalMatching(*intake)) {
        clearUndo();
        if (isKept(*signal)) {
            setSurface(Surface::Kept);
            setReceipt(u"“%1”已经在已收下里。"_qs.arg(signal->followTarget.label));
            return true;
        }
        if (!transactUndoable(keepReceipt(signal->followTarget.updateMode),
                              keepMutation(*signal))) {
            return false;
        }
        setSurface(Surface::Kept);
        return true;
    }
    if (InformationIntake::contains(*intake, m_workspace.customSources)) {
        clearUndo();
        setSurface(Surface::Kept);
        setReceipt(u"这项内容已经在已收下里，没有重复添加。"_qs);
        return true;
    }
    if (m_workspace.customSources.size() >= InformationIntake::maximumCustomSources) {
        setIntakeErrorMessage(
            u"当前设备已收下 %1 项自定义内容；先移除不再需要的一项再添加。"_qs.arg(
                InformationIntake::maximumCustomSources));
        return false;
    }
    clearUndo();
    const CustomInformationSource source{QUuid::createUuid(), intake->value, wholeSecondsNow()};
    if (!transactUndoable(u"已收下并安全保存在本机；这个来源尚未接入更新，不会冒充已经同步。"_qs,
                          [&source](InformationWorkspace& workspace) {
                              workspace.customSources.append(source);
                          })) {
        return false;
    }
    setSurface(Surface::Kept);
    return true;
}

void InformationModel::removeSource(const QUuid& id)
{
    clearUndo();
    transactUndoable(u"已移除这条内容。"_qs, [&id](InformationWorkspace& workspace) {
        workspace.customSources.removeIf(
            [&id](const CustomInformationSource& source) { return source.id == id; });
    });
}

void InformationModel::resetPreferences()
{
    clearUndo();
    transactUndoable(u"已重置内容调整。"_qs, [](InformationWorkspace& workspace) {
        workspace.hidden.clear();
        workspace.reducedLanes.clear();
    });
}

void InformationModel::updateNote(const QString& signalId, const QString& note)
{
    clearUndo();
    const auto signal = std::ranges::find(signals(), signalId, &InformationSignal::id);
    if (signal == signals().end()) {
        return;
    }
    const auto entry = savedEntry(*signal);
    transact([this, &signal, &entry, &note](InformationWorkspace& workspace) {
        if (!entry) {
            workspace.setKept(true, *signal, wholeSecondsNow());
        }
        appendOnce(workspace.following, signal->followTarget.id);
        const auto saved = workspace.saved.find(entry ? entry->first : signal->id);
        if (saved != workspace.saved.end()) {
            saved->second.note = wellFormedText(note);
        }
    });
}

void InformationModel::undoLastAction()
{
    assertMainThread();
    if (!m_undoWorkspace) {
        return;
    }
    const bool restored =
        transact([this](InformationWorkspace& workspace) { workspace = *m_undoWorkspace; },
                 [this] { setReceipt(u"已撤销上一步操作。"_qs); });
    if (restored) {
        clearUndo();
    }
}

void InformationModel::openArchiveDay(const QString& date)
{
    assertMainThread();
    if (std::ranges::find(selectionDays(), date, &SelectionDay::date) == selectionDays().end()) {
        return;
    }
    setSurface(Surface::Archive);
    setSelectedArchiveDay(date);
}

void InformationModel::closeArchiveDay()
{
    assertMainThread();
    setSelectedArchiveDay(std::nullopt);
}

void InformationModel::openThread(const QString& signalId)
{
    assertMainThread();
    if (signalIndex().contains(signalId)) {
        setOpenThread(signalId);
    }
}

void InformationModel::closeThread()
{
    assertMainThread();
    setOpenThread(std::nullopt);
}

void InformationModel::dismissReceipt()
{
    assertMainThread();
    setReceipt(std::nullopt);
}

void InformationModel::dismissError()
{
    assertMainThread();
    setErrorMessage(std::nullopt);
}

void InformationModel::dismissIntakeError()
{
    assertMainThread();
    setIntakeErrorMessage(std::nullopt);
}

void InformationModel::dismissUpdate()
{
    assertMainThread();
    setAvailableUpdate(std::nullopt);
}

// Transactions

bool InformationModel::transact(const Mutation& mutation, const std::function<void()>& announce)
{
    assertMainThread();
    const InformationWorkspace previous = m_workspace;
    InformationWorkspace changed = previous;
    mutation(changed);
    setWorkspace(std::move(changed));
    announce();

    QString failure;
    if (!m_repository) {
        failure = u"没有可用的本机存储；这次操作没有保存。"_qs;
    } else if (const auto saved = m_repository->save(m_workspace, m_collaborators.fileManager);
               !saved) {
        failure = u"没有保存这次操作："_qs + saved.error().localizedDescription();
    } else {
        return true;
    }
    setWorkspace(previous);
    setReceipt(std::nullopt);
    setErrorMessage(failure);
    return false;
}

bool InformationModel::transactUndoable(const QString& receipt, const Mutation& mutation)
{
    const InformationWorkspace previous = m_workspace;
    if (!transact(mutation, [this, &receipt] { setReceipt(receipt); })) {
        return false;
    }
    setUndoWorkspace(previous);
    return true;
}

InformationModel::Mutation InformationModel::keepMutation(const InformationSignal& signal) const
{
    const bool hasEntry = savedEntry(signal).has_value();
    return [signal, hasEntry, at = wholeSecondsNow()](InformationWorkspace& workspace) {
        if (hasEntry) {
            appendOnce(workspace.following, signal.followTarget.id);
        } else {
            workspace.setKept(true, signal, at);
        }
    };
}

InformationModel::Mutation
InformationModel::removeKeptMutation(const InformationSignal& signal) const
{
    return [target = signal.followTarget.id,
            ids = threadIds(signal)](InformationWorkspace& workspace) {
        for (const QString& id : ids) {
            workspace.saved.erase(id);
        }
        workspace.following.removeAll(target);
    };
}

void InformationModel::setWorkspace(InformationWorkspace workspace)
{
    m_workspace = std::move(workspace);
    dropCaches();
    Q_EMIT workspaceChanged();
}

void InformationModel::setReceipt(std::optional<QString> receipt)
{
    if (m_receipt != receipt) {
        m_receipt = std::move(receipt);
        Q_EMIT receiptChanged();
    }
}

void InformationModel::setErrorMessage(std::optional<QString> message)
{
    if (m_errorMessage != message) {
        m_errorMessage = std::move(message);
        Q_EMIT errorMessageChanged();
    }
}

void InformationModel::setIntakeErrorMessage(std::optional<QString> message)
{
    if (m_intakeErrorMessage != message) {
        m_intakeErrorMessage = std::move(message);
        Q_EMIT intakeErrorMessageChanged();
    }
}

void InformationModel::setSelectedArchiveDay(std::optional<QString> date)
{
    if (m_selectedArchiveDay != date) {
        m_selectedArchiveDay = std::move(date);
        Q_EMIT selectedArchiveDayChanged();
    }
}

void InformationModel::setOpenThread(std::optional<QString> signalId)
{
    if (m_openThread != signalId) {
        m_openThread = std::move(signalId);
        Q_EMIT openThreadChanged();
    }
}

void InformationModel::setPackSyncNote(std::optional<QString> note)
{
    if (m_packSyncNote != note) {
        m_packSyncNote = std::move(note);
        Q_EMIT packSyncNoteChanged();
    }
}

void InformationModel::setSyncingPack(bool isSyncingPack)
{
    if (m_isSyncingPack != isSyncingPack) {
        m_isSyncingPack = isSyncingPack;
        Q_EMIT isSyncingPackChanged();
    }
}

void InformationModel::setAvailableUpdate(std::optional<InformationUpdateNotice> notice)
{
    if (m_availableUpdate != notice) {
        m_availableUpdate = std::move(notice);
        Q_EMIT availableUpdateChanged();
    }
}

void InformationModel::setUndoWorkspace(std::optional<InformationWorkspace> workspace)
{
    const bool couldUndo = canUndo();
    m_undoWorkspace = std::move(workspace);
    if (canUndo() != couldUndo) {
        Q_EMIT canUndoChanged();
    }
}

void InformationModel::dropCaches()
{
    m_signalIndexCache.reset();
    m_visibleSignalsCache.reset();
    m_archiveDaysCache.reset();
    m_weeklyWeeksCache.reset();
}

void InformationModel::assertMainThread() const
{
    Q_ASSERT(QThread::currentThread() == thread());
}

std::chrono::sys_seconds InformationModel::wholeSecondsNow() const
{
    return std::chrono::sys_seconds(
        std::chrono::seconds(static_cast<qint64>(std::floor(m_collaborators.now()))));
}

QList<QString> InformationModel::threadIds(const InformationSignal& signal) const
{
    QList<QString> ids;
    for (const auto& candidate : signals()) {
        if (candidate.followTarget.id == signal.followTarget.id) {
            ids.append(candidate.id);
        }
    }
    return ids;
}

const InformationSignal*
InformationModel::signalMatching(const NormalizedInformationIntake& address) const
{
    if (address.kind != NormalizedInformationIntake::Kind::Url) {
        return nullptr;
    }
    const auto matches = [&address](const QString& url) {
        const auto candidate = InformationIntake::normalize(url);
        return candidate && candidate->identity == address.identity;
    };
    for (const auto& signal : signals()) {
        if (matches(signal.followTarget.url) || matches(signal.originalURL)) {
            return &signal;
        }
    }
    return nullptr;
}
