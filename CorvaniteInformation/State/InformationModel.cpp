// SPDX-License-Identifier: Apache-2.0

#include "InformationModel.h"

#include "ArchiveDigest.h"
#include "InformationIntake.h"
#include "InformationProjection.h"
#include "InformationSignalIndex.h"
#include "TodayFocus.h"
#include "UpdateProbe.h"
#include "WellFormedText.h"
#include "WorkbenchTexts.h"

#include <QPointer>
#include <QThread>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

InformationModel::InformationModel(Collaborators collaborators, InformationContent content,
                                   WorkspaceJournal journal)
    : m_collaborators(std::move(collaborators)),
      m_content(std::move(content)),
      m_threads(signals()),
      m_journal(std::move(journal))
{
    m_errorMessage = m_journal.loadFailure();
}

// Derived reads

const QList<InformationSignal>& InformationModel::visibleSignals() const
{
    return DerivedReads::get(m_reads.visibleSignals, [this] {
        return InformationProjection::today(signals(), workspace());
    });
}

const QHash<QString, InformationSignal>& InformationModel::signalIndex() const
{
    return DerivedReads::get(m_reads.signalIndex,
                             [this] { return indexById(retiredSignals() + signals()); });
}

std::optional<InformationSignal> InformationModel::signalById(const QString& id) const
{
    const auto& index = signalIndex();
    const auto found = index.constFind(id);
    return found == index.cend() ? std::nullopt : std::optional(*found);
}

const QList<SelectionDay>& InformationModel::archiveDays() const
{
    return DerivedReads::get(m_reads.archiveDays,
                             [this] { return ArchiveDigest::daysNewestFirst(selectionDays()); });
}

const QList<WeeklyDigest::Week>& InformationModel::weeklyWeeks() const
{
    return DerivedReads::get(m_reads.weeklyWeeks,
                             [this] { return WeeklyDigest::weeks(selectionDays()); });
}

bool InformationModel::isKept(const InformationSignal& signal) const
{
    return DerivedReads::get(m_reads.keptTargets,
                             [this] { return m_threads.keptTargets(workspace()); })
        .contains(signal.followTarget.id);
}

const QList<InformationSignal>& InformationModel::allKeptSignals() const
{
    return DerivedReads::get(m_reads.allKeptSignals, [this] {
        return InformationProjection::kept(signals(), workspace());
    });
}

qsizetype InformationModel::laneCount(InformationLane lane) const
{
    return std::ranges::count(visibleSignals(), lane, &InformationSignal::lane);
}

QList<InformationSignal> InformationModel::laneFilteredSignals() const
{
    const auto lane = activeLane();
    if (!lane) {
        return visibleSignals();
    }
    QList<InformationSignal> filtered;
    std::ranges::copy_if(visibleSignals(), std::back_inserter(filtered),
                         [lane](const InformationSignal& signal) { return signal.lane == lane; });
    return filtered;
}

QList<InformationSignal> InformationModel::focusedSignals() const
{
    return TodayFocus::focused(laneFilteredSignals(), workspace(), packAsOf(), selectionDays(),
                               m_collaborators.seedHistory);
}

QList<InformationSignal> InformationModel::remainingSignals() const
{
    return TodayFocus::remaining(laneFilteredSignals(), workspace(), packAsOf(),
                                 m_collaborators.seedHistory);
}

qsizetype InformationModel::keptItemCount() const
{
    return allKeptSignals().size() + workspace().customSources.size();
}

std::optional<KeptThreads::SavedEntry>
InformationModel::savedEntry(const InformationSignal& signal) const
{
    return m_threads.savedEntry(workspace(), signal);
}

QList<InformationSignal> InformationModel::keptSignals() const
{
    if (search().isEmpty()) {
        return allKeptSignals();
    }
    const auto& texts = DerivedReads::get(m_reads.searchedTexts, [this] {
        return m_threads.searchedTexts(allKeptSignals(), workspace());
    });
    return KeptThreads::found(search(), allKeptSignals(), texts);
}

QList<CustomInformationSource> InformationModel::keptCustomSources() const
{
    return KeptThreads::found(search(), workspace().customSources);
}

QString InformationModel::sitePage(const QString& path) const
{
    return m_collaborators.site.page(path).toString(QUrl::FullyEncoded);
}

std::optional<QString> InformationModel::packSyncNote() const
{
    return m_refreshOutcome ? std::optional(m_refreshOutcome->note()) : std::nullopt;
}

bool InformationModel::packSyncFailed() const
{
    return m_refreshOutcome && m_refreshOutcome->kind == ContentRefresh::Outcome::Kind::Failed;
}

// Actions

void InformationModel::toggleKeep(const InformationSignal& signal)
{
    if (isKept(signal)) {
        removeKept(signal);
    } else {
        keep(signal);
    }
}

void InformationModel::removeKept(const InformationSignal& signal)
{
    transactUndoable(u"已从工作台移除，并停止继续更新。"_qs,
                     [&](InformationWorkspace& workspace) { m_threads.remove(workspace, signal); });
}

void InformationModel::reduceSimilar(const InformationSignal& signal)
{
    transactUndoable(
        u"已减少“%1”并收起当前这条；重要变化仍会保留。"_qs.arg(displayName(signal.lane)),
        [&signal](InformationWorkspace& workspace) { workspace.reduceSimilar(signal); });
}

void InformationModel::markSeen(const InformationSignal& signal)
{
    if (!workspace().hasSeen(signal)) {
        transact([&signal](InformationWorkspace& workspace) { workspace.markSeen(signal); },
                 [this] { m_receipt = std::nullopt; });
    }
}

bool InformationModel::addSource(const QString& input)
{
    assertMainThread();
    const auto intake = InformationIntake::normalize(wellFormedText(input));
    if (!intake) {
        m_intakeErrorMessage = WorkbenchTexts::intakeMessage(intake.error());
        return false;
    }
    m_intakeErrorMessage = std::nullopt;

    if (const auto* const signal = InformationIntake::match(*intake, signals())) {
        return keepMatch(*signal);
    }
    if (InformationIntake::contains(*intake, workspace().customSources)) {
        clearUndo();
        setSurface(Surface::Kept);
        giveReceipt(u"这项内容已经在已收下里，没有重复添加。"_qs);
        return true;
    }
    if (workspace().customSources.size() >= InformationIntake::maximumCustomSources) {
        m_intakeErrorMessage =
            u"当前设备已收下 %1 项自定义内容；先移除不再需要的一项再添加。"_qs.arg(
                InformationIntake::maximumCustomSources);
        return false;
    }
    return keepCustomSource(intake->value);
}

void InformationModel::removeSource(const QUuid& id)
{
    transactUndoable(u"已移除这条内容。"_qs, [&id](InformationWorkspace& workspace) {
        workspace.customSources.removeIf(
            [&id](const CustomInformationSource& source) { return source.id == id; });
    });
}

void InformationModel::resetPreferences()
{
    transactUndoable(u"已重置内容调整。"_qs, [](InformationWorkspace& workspace) {
        workspace.hidden.clear();
        workspace.reducedLanes.clear();
    });
}

void InformationModel::updateNote(const QString& signalId, const QString& note)
{
    clearUndo();
    const auto signal = std::ranges::find(signals(), signalId, &InformationSignal::id);
    if (signal != signals().end()) {
        transact([&](InformationWorkspace& workspace) {
            m_threads.writeNote(workspace, *signal, note, wholeSecondsNow());
        });
    }
}

void InformationModel::undoLastAction()
{
    assertMainThread();
    if (canUndo() &&
        transact(m_journal.undo(), [this] { giveReceipt(u"已撤销上一步操作。"_qs); })) {
        clearUndo();
    }
}

void InformationModel::openArchiveDay(const QString& date)
{
    assertMainThread();
    if (std::ranges::find(selectionDays(), date, &SelectionDay::date) != selectionDays().end()) {
        setSurface(Surface::Archive);
        m_selectedArchiveDay = date;
    }
}

void InformationModel::openThread(const QString& signalId)
{
    assertMainThread();
    if (signalIndex().contains(signalId)) {
        m_openThread = signalId;
    }
}

// Storage, refresh and probe

void InformationModel::catchUpWithStorage()
{
    assertMainThread();
    bool isOther = false;
    changeUndo([&] { isOther = m_journal.catchUp(); });
    if (isOther) {
        announceWorkspace();
    }
}

void InformationModel::refreshPackFromSite()
{
    assertMainThread();
    if (!isSyncingPack()) {
        refreshPack();
    }
}

QCoro::Task<> InformationModel::refreshPack()
{
    const QPointer<InformationModel> self(this);
    m_isSyncingPack = true;
    if (std::exchange(m_refreshOutcome, std::nullopt)) {
        Q_EMIT packSyncNoteChanged();
    }

    auto result = co_await ContentRefresh::run(self.data(), m_collaborators.site,
                                               m_collaborators.fileManager, m_content);
    if (!self) {
        co_return;
    }
    m_refreshOutcome = result.outcome;
    if (result.content) {
        m_content = *std::move(result.content);
        m_threads = KeptThreads(signals());
        m_reads = {};
        Q_EMIT contentChanged();
    }
    Q_EMIT packSyncNoteChanged();
    m_isSyncingPack = false;
}

void InformationModel::probeAppUpdateOnce()
{
    assertMainThread();
    if (!std::exchange(m_updateProbeRan, true) && !m_collaborators.runningVersion.isEmpty()) {
        probeAppUpdate();
    }
}

QCoro::Task<> InformationModel::probeAppUpdate()
{
    const QPointer<InformationModel> self(this);
    const auto notice =
        co_await UpdateProbe::run(m_collaborators.site, m_collaborators.runningVersion);
    if (self && notice) {
        m_availableUpdate = notice;
    }
}

// Transactions

bool InformationModel::transact(const WorkspaceJournal::Change& change,
                                const std::function<void()>& announce)
{
    assertMainThread();
    changeUndo([&] { m_journal.apply(change); });
    announceWorkspace();
    announce();
    std::expected<bool, QString> stored;
    changeUndo([&] { stored = m_journal.store(wholeSecondsNow()); });
    if (!stored || *stored) {
        announceWorkspace();
    }
    if (!stored) {
        m_receipt = std::nullopt;
        m_errorMessage = stored.error();
    }
    return stored.has_value();
}

bool InformationModel::transactUndoable(const QString& receipt,
                                        const WorkspaceJournal::Change& change)
{
    clearUndo();
    const bool stored = transact(change, [this, &receipt] { giveReceipt(receipt); });
    if (stored) {
        changeUndo([this] { m_journal.keepUndo(); });
    }
    return stored;
}

void InformationModel::giveReceipt(const QString& receipt)
{
    m_receipt = std::nullopt;
    m_receipt = receipt;
}

void InformationModel::announceWorkspace()
{
    m_reads = {};
    Q_EMIT workspaceChanged();
}

void InformationModel::changeUndo(const std::function<void()>& change)
{
    const bool couldUndo = canUndo();
    change();
    if (canUndo() != couldUndo) {
        Q_EMIT canUndoChanged();
    }
}

bool InformationModel::keep(const InformationSignal& signal)
{
    return transactUndoable(WorkbenchTexts::keepReceipt(signal.followTarget.updateMode),
                            [&](InformationWorkspace& workspace) {
                                m_threads.keep(workspace, signal, wholeSecondsNow());
                            });
}

bool InformationModel::keepMatch(const InformationSignal& signal)
{
    if (isKept(signal)) {
        clearUndo();
        setSurface(Surface::Kept);
        giveReceipt(u"“%1”已经在已收下里。"_qs.arg(signal.followTarget.label));
        return true;
    }
    if (!keep(signal)) {
        return false;
    }
    setSurface(Surface::Kept);
    return true;
}

bool InformationModel::keepCustomSource(const QString& input)
{
    const CustomInformationSource source{QUuid::createUuid(), input, wholeSecondsNow()};
    if (!transactUndoable(u"已收下并安全保存在本机；这个来源尚未接入更新，不会冒充已经同步。"_qs,
                          [&source](InformationWorkspace& workspace) {
                              workspace.customSources.append(source);
                          })) {
        return false;
    }
    setSurface(Surface::Kept);
    return true;
}

void InformationModel::act(void (InformationModel::*action)(const InformationSignal&),
                           const QString& id)
{
    if (const auto signal = signalById(id)) {
        (this->*action)(*signal);
    }
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
