// SPDX-License-Identifier: Apache-2.0

#include "TodayPage.h"

#include "InformationSeed.h"
#include "WorkbenchDateLabels.h"
#include "WorkbenchTexts.h"

#include <QSet>

#include <utility>

namespace {

QList<LabelledTextRow> dataReceipt(qsizetype shown, qsizetype focused)
{
    return {{QString::number(WorkbenchTexts::checkedItemCount), u"条公开信息已检查"_qs},
            {QString::number(shown), u"条值得看"_qs},
            {QString::number(focused), u"条先放出"_qs}};
}

QList<LaneChipRow> laneChips(const InformationModel& workbench)
{
    const auto active = workbench.activeLane();
    QList<LaneChipRow> chips{
        LaneChipRow::from(std::nullopt, workbench.laneAllCount(), !active.has_value())};
    for (const auto& [lane, token] : vocabulary<InformationLane>) {
        chips.append(LaneChipRow::from(lane, workbench.laneCount(lane), active == lane));
    }
    return chips;
}

TodayEntry entryOf(TodayEntry::Kind kind)
{
    TodayEntry entry;
    entry.kind = kind;
    return entry;
}

QSet<QString> seenTargets(const InformationModel& workbench)
{
    const auto& targets = workbench.workspace().seenTargets;
    return {targets.cbegin(), targets.cend()};
}

/// What the reader has done with signals.
struct Standings
{
    QSet<QString> seenTargets;
    QSet<QString> openChanges;
};

QList<TodayEntry> cards(const InformationModel& workbench, const QList<InformationSignal>& signals,
                        const Standings& standings)
{
    QList<TodayEntry> cards;
    cards.reserve(signals.size());
    for (int position = 0; const auto& signal : signals) {
        TodayEntry entry = entryOf(TodayEntry::Kind::Card);
        entry.position = position++;
        entry.content = TodayEntry::Card{
            .signal = signal,
            .standing = {.kept = workbench.isKept(signal),
                         .seen = standings.seenTargets.contains(signal.followTarget.id),
                         .changeOpen = standings.openChanges.contains(signal.id)},
            .relativeLabel = signal.relativeObservedLabel(workbench.now())};
        cards.append(std::move(entry));
    }
    return cards;
}

QList<TodayEntry> folding(QList<TodayEntry> cards)
{
    for (auto& card : cards) {
        card.folds = true;
    }
    return cards;
}

QList<TodayEntry> rail(const QList<InformationSignal>& signals, const QSet<QString>& seenTargets)
{
    QList<TodayEntry> rail{entryOf(TodayEntry::Kind::RailHeading)};
    rail.reserve(signals.size() + 1);
    for (int position = 0; const auto& signal : signals) {
        TodayEntry line = entryOf(TodayEntry::Kind::RailLine);
        line.content =
            RailLineRow::from(signal, seenTargets.contains(signal.followTarget.id), position++);
        rail.append(std::move(line));
    }
    return rail;
}

} // namespace

void TodayPage::setShowingRemaining(bool showing)
{
    if (m_showingRemaining != showing) {
        m_showingRemaining = showing;
        Q_EMIT showingRemainingChanged();
        refresh();
    }
}

QString TodayPage::eyebrow()
{
    return WorkbenchDateLabels::label(InformationSeed::asOf()) + u" · AI 时代重要信号"_qs;
}

QString TodayPage::updatedText()
{
    return u"数据更新于 "_qs + WorkbenchDateLabels::label(InformationSeed::asOf());
}

void TodayPage::selectLane(const QString& lane)
{
    if (workbench()) {
        workbench()->setActiveLane(fromRawValue<InformationLane>(lane));
    }
}

void TodayPage::toggleChange(const QString& signalId)
{
    if (!m_openChanges.remove(signalId)) {
        m_openChanges.insert(signalId);
    }
    refresh();
}

void TodayPage::follow(const InformationModel& workbench)
{
    connect(&workbench, &InformationModel::contentChanged, this, &TodayPage::refresh);
    connect(&workbench, &InformationModel::workspaceChanged, this, &TodayPage::refresh);
    connect(&workbench, &InformationModel::activeLaneChanged, this, &TodayPage::refresh);
}

void TodayPage::show(const InformationModel& workbench)
{
    const auto& workspace = workbench.workspace();
    const auto visibleCount = workbench.visibleSignals().size();
    const auto filtered = workbench.laneFilteredSignals();
    const auto focused = workbench.focusedSignals();
    const auto remaining = workbench.remainingSignals();

    Texts texts;
    texts.title = u"今天先看 %1 条"_qs.arg(focused.size());
    texts.lead = WorkbenchTexts::todayLead(visibleCount, focused.size(), workspace.hidden.size());
    if (!workspace.hidden.isEmpty() || !workspace.reducedLanes.isEmpty()) {
        texts.preferenceStatus = WorkbenchTexts::preferenceStatusText(workspace.reducedLanes.size(),
                                                                      workspace.hidden.size());
    }
    if (!remaining.isEmpty()) {
        texts.remainingTitle = u"其余 %1 条已替你排好"_qs.arg(remaining.size());
    }
    texts.receiptRows = dataReceipt(filtered.size(), focused.size());
    texts.focusedCount = static_cast<int>(focused.size());
    texts.remainingCount = static_cast<int>(remaining.size());
    texts.railCount = static_cast<int>(filtered.size());
    texts.empty = visibleCount == 0;
    texts.laneEmpty = filtered.isEmpty() && !texts.empty;
    m_texts = std::move(texts);

    const Standings standings{.seenTargets = seenTargets(workbench), .openChanges = m_openChanges};
    QList<TodayEntry> column{entryOf(TodayEntry::Kind::Intro)};
    column += cards(workbench, focused, standings);
    if (!remaining.isEmpty()) {
        column.append(entryOf(TodayEntry::Kind::Disclosure));
    }
    if (m_showingRemaining) {
        column += folding(cards(workbench, remaining, standings));
    }
    m_lanes.setRows(laneChips(workbench));
    m_entries.setRows(column);
    m_railEntries.setRows(rail(filtered, standings.seenTargets));
}
