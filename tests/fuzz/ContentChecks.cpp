// SPDX-License-Identifier: Apache-2.0

#include "ContentChecks.h"

#include "ArchivePage.h"
#include "CodePointOrder.h"
#include "InformationProjection.h"
#include "Invariant.h"
#include "KeptPage.h"
#include "RowSlices.h"
#include "SampleModel.h"
#include "ThreadPage.h"
#include "TodayPage.h"
#include "WeeklyPage.h"

#include <QSet>

#include <algorithm>

namespace {

const QString workspacePath = u"/support/Corvanite/Information/workspace-v1.json"_qs;

bool contains(const QList<InformationSignal>& signals, const InformationSignal& signal)
{
    return std::ranges::find(signals, signal.id, &InformationSignal::id) != signals.end();
}

void checkIds(const InformationContent& content)
{
    QSet<QString> ids;
    for (const auto& signal : content.signals() + content.retiredSignals()) {
        invariant(!ids.contains(signal.id), "live and retired signals are unique by id");
        ids.insert(signal.id);
    }
}

void checkFocus(const QList<InformationSignal>& visible, const QList<InformationSignal>& focused,
                const QList<InformationSignal>& remaining)
{
    invariant(focused.size() == std::min(InformationProjection::defaultFocusLimit, visible.size()),
              "the focus has three signals where there are three");
    invariant(focused.size() + remaining.size() == visible.size() &&
                  std::ranges::none_of(
                      focused, [&](const auto& signal) { return contains(remaining, signal); }),
              "focus and remaining list complete each other");
}

void checkToday(const InformationModel& model)
{
    const auto& hidden = model.workspace().hidden;
    for (const auto& signal : model.visibleSignals()) {
        invariant(!hidden.contains(signal.id) &&
                      !hidden.contains(InformationProjection::versionKey(signal)),
                  "what is hidden is not visible");
    }
    qsizetype laneSum = 0;
    for (const auto& [lane, token] : vocabulary<InformationLane>) {
        laneSum += model.laneCount(lane);
    }
    invariant(laneSum == model.laneAllCount(), "every visible signal is in one lane");

    const auto filtered = model.laneFilteredSignals();
    for (const auto& signal : model.focusedSignals() + model.remainingSignals()) {
        invariant(contains(filtered, signal), "today's lists hold visible signals");
    }
    // A stamp in whole seconds names a day, whose own focus is shown.
    const auto isWholeSeconds =
        InformationProjection::fastISOSeconds(model.packAsOf()) && !model.packAsOf().contains(u'.');
    if (!isWholeSeconds) {
        checkFocus(filtered, model.focusedSignals(), model.remainingSignals());
    }
    constexpr auto limit = InformationProjection::defaultFocusLimit;
    checkFocus(filtered,
               InformationProjection::focusedToday(filtered, model.workspace(), limit,
                                                   model.packAsOf(), model.selectionDays()),
               InformationProjection::remainingToday(filtered, model.workspace(), limit,
                                                     model.packAsOf(), model.selectionDays()));
}

void checkKept(const InformationModel& model)
{
    QSet<QString> targets;
    for (const auto& signal : InformationProjection::kept(model.signals(), model.workspace())) {
        invariant(contains(model.signals(), signal), "a kept card is a live signal");
        invariant(!targets.contains(signal.followTarget.id), "a target has one kept card");
        targets.insert(signal.followTarget.id);
    }
    for (const auto& signal :
         InformationProjection::following(model.signals(), model.workspace())) {
        invariant(model.workspace().following.contains(signal.followTarget.id),
                  "the followed list holds followed targets");
    }
}

void checkDays(const InformationModel& model)
{
    const auto& days = model.archiveDays();
    invariant(days.size() == model.selectionDays().size(), "the archive has every day");
    invariant(std::ranges::is_sorted(
                  days,
                  [](QStringView left, QStringView right) { return codePointLess(right, left); },
                  &SelectionDay::date),
              "the archive is sorted, newest first");

    qsizetype daysInWeeks = 0;
    for (const auto& week : model.weeklyWeeks()) {
        daysInWeeks += week.days.size();
        for (const auto& day : week.days) {
            invariant(WeeklyDigest::beijingWeekOfDay(day.date) == week.weekId,
                      "a day is in its own week");
        }
    }
    const auto readableDays = std::ranges::count_if(days, [](const SelectionDay& day) {
        return WeeklyDigest::utcMidnight(day.date).has_value();
    });
    invariant(daysInWeeks == readableDays, "every day that reads is in one week");
}

template <typename Row>
void checkRows(const RowListModel<Row>& rows, qsizetype count)
{
    invariant(rows.rowCount() == count, "a page has a row for everything it shows");
    for (int row = 0; row < rows.rowCount(); ++row) {
        invariant(rows.data(rows.index(row), RowListModel<Row>::rowRole).isValid(),
                  "a row has a value");
    }
}

// The reader's window without the window.
class Pages
{
public:
    explicit Pages(InformationModel& model) : m_model(model)
    {
        m_today.setShowingRemaining(true);
        for (WorkbenchPage* page : std::initializer_list<WorkbenchPage*>{
                 &m_today, &m_kept, &m_weekly, &m_archive, &m_thread}) {
            page->setWorkbench(&model);
        }
    }

    ThreadPage& thread() { return m_thread; }

    void check()
    {
        checkToday(m_model);
        checkKept(m_model);
        checkDays(m_model);

        const auto filtered = m_model.laneFilteredSignals().size();
        checkRows(*m_today.lanes(), std::ssize(vocabulary<InformationLane>) + 1);
        // Each signal once more in the rail, which has a heading.
        checkRows(*m_today.railEntries(), filtered + 1);
        const auto remaining = m_model.remainingSignals().size();
        checkRows(*m_today.entries(),
                  1 + m_model.focusedSignals().size() + (remaining ? 1 : 0) + remaining);
        checkRows(*m_kept.rows(),
                  m_model.keptSignals().size() + m_model.keptCustomSources().size());
        checkRows(*m_weekly.rows(), weeklyRows());
        checkRows(*m_archive.days(), archiveRows());
    }

    void openArchiveDay(const QString& date)
    {
        m_model.openArchiveDay(date);
        invariant(m_archive.showsDay(), "a day of the history can be opened");
        checkRows(*m_archive.focusRows(), m_archive.focusRows()->rows().size());
    }

private:
    static qsizetype slices(qsizetype entries)
    {
        return std::max<qsizetype>(1, (entries + RowSlices::longest - 1) / RowSlices::longest);
    }

    // Each week and its days, a long day in several rows.
    qsizetype weeklyRows() const
    {
        qsizetype rows = 0;
        for (const auto& week : m_model.weeklyWeeks()) {
            ++rows;
            for (const auto& day : week.days) {
                rows += slices(day.focusSignalIds.size());
            }
        }
        return rows;
    }

    qsizetype archiveRows() const
    {
        qsizetype rows = 0;
        for (const auto& day : m_model.archiveDays()) {
            rows += slices(std::ranges::count_if(day.focusSignalIds, [this](const QString& id) {
                return m_model.signalById(id).has_value();
            }));
        }
        return rows;
    }

    InformationModel& m_model;
    TodayPage m_today;
    KeptPage m_kept;
    WeeklyPage m_weekly;
    ArchivePage m_archive;
    ThreadPage m_thread;
};

void checkStored(const SampleModel& sample, const InformationModel& model)
{
    invariant(!model.hasErrorMessage(), "an action can be stored");
    const auto stored = InformationWorkspaceCoding::decode(sample.files.files.value(workspacePath));
    invariant(stored && *stored == model.workspace(), "the file holds what the model holds");
}

void checkUndo(const SampleModel& sample, InformationModel& model,
               const InformationWorkspace& previous)
{
    model.undoLastAction();
    invariant(model.workspace() == previous && !model.canUndo(), "undo restores the workspace");
    checkStored(sample, model);
}

} // namespace

void checkContent(const InformationContent& content)
{
    checkIds(content);
    SampleModel sample;
    sample.signals = content.signals();
    sample.retiredSignals = content.retiredSignals();
    sample.selectionDays = content.selectionDays();
    sample.packAsOf = content.packAsOf();
    const auto model = sample.make();
    Pages pages(*model);
    pages.check();
    for (const auto& day : content.selectionDays()) {
        pages.openArchiveDay(day.date);
    }
    if (content.signals().isEmpty()) {
        return;
    }

    const InformationSignal& first = content.signals().first();
    const InformationSignal& last = content.signals().last();
    pages.thread().setSignalId(first.id);
    model->toggleKeep(first);
    invariant(model->isKept(first) && pages.thread().kept(), "a signal can be kept");
    checkStored(sample, *model);
    pages.thread().writeNote(first.caveat);
    invariant(pages.thread().storedNote() == first.caveat, "a note stays as it is written");
    pages.thread().markSeen();
    invariant(model->workspace().hasSeen(first), "a signal can be seen");
    checkStored(sample, *model);
    pages.check();

    const auto beforeReducing = model->workspace();
    model->reduceSimilar(last);
    checkStored(sample, *model);
    pages.check();
    checkUndo(sample, *model, beforeReducing);

    if (const auto beforeAdding = model->workspace(); model->addSource(last.originalURL)) {
        checkStored(sample, *model);
        model->addSource(last.originalURL);
        invariant(model->workspace().customSources.size() <= beforeAdding.customSources.size() + 1,
                  "handed in twice is added once");
    }
    model->setActiveLane(first.lane);
    model->setSearch(last.title);
    pages.check();

    model->removeKept(first);
    invariant(!model->isKept(first), "a kept signal can be removed");
    model->resetPreferences();
    checkStored(sample, *model);
    pages.check();
}
