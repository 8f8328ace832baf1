#include "TodayPage.h"

#include "InformationSeed.h"
#include "WorkbenchDateLabels.h"
#include "WorkbenchTexts.h"

#include <QSet>

namespace {

QList<DataReceiptRow> dataReceipt(qsizetype shown, qsizetype focused)
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

TodayEntry cardEntry(const InformationModel& workbench, const InformationSignal& signal)
{
    TodayEntry entry = entryOf(TodayEntry::Kind::Card);
    entry.card = SignalCardRow::from(
        signal, {.kept = workbench.isKept(signal), .seen = workbench.workspace().hasSeen(signal)},
        workbench.now());
    return entry;
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

void TodayPage::setRailBelow(bool below)
{
    if (m_railBelow != below) {
        m_railBelow = below;
        Q_EMIT railBelowChanged();
        refresh();
    }
}

void TodayPage::setReceiptPinned(bool pinned)
{
    if (m_receiptPinned != pinned) {
        m_receiptPinned = pinned;
        Q_EMIT receiptPinnedChanged();
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
    texts.railCount = static_cast<int>(filtered.size());
    texts.empty = visibleCount == 0;
    if (m_texts != texts) {
        m_texts = std::move(texts);
        Q_EMIT textsChanged();
    }

    const auto railEntries = rail(workbench, filtered);
    m_lanes.setRows(laneChips(workbench));
    m_entries.setRows(column(workbench, focused, remaining) +
                      (m_railBelow ? railEntries : QList<TodayEntry>()));
    m_railEntries.setRows(railEntries);
}

QList<TodayEntry> TodayPage::column(const InformationModel& workbench,
                                    const QList<InformationSignal>& focused,
                                    const QList<InformationSignal>& remaining) const
{
    QList<TodayEntry> column{entryOf(TodayEntry::Kind::Intro)};
    for (const auto& signal : focused) {
        column.append(cardEntry(workbench, signal));
    }
    if (!remaining.isEmpty()) {
        column.append(entryOf(TodayEntry::Kind::Disclosure));
    }
    if (m_showingRemaining) {
        for (const auto& signal : remaining) {
            column.append(cardEntry(workbench, signal));
        }
    }
    return column;
}

QList<TodayEntry> TodayPage::rail(const InformationModel& workbench,
                                  const QList<InformationSignal>& signals) const
{
    const auto& seenTargets = workbench.workspace().seenTargets;
    const QSet<QString> seen(seenTargets.cbegin(), seenTargets.cend());
    QList<TodayEntry> rail{entryOf(TodayEntry::Kind::RailHeading)};
    rail.reserve(signals.size() + 2);
    for (int position = 0; const auto& signal : signals) {
        TodayEntry line = entryOf(TodayEntry::Kind::RailLine);
        line.rail = RailRow::from(signal, seen.contains(signal.followTarget.id), position++);
        rail.append(line);
    }
    if (m_railBelow || !m_receiptPinned) {
        rail.append(entryOf(TodayEntry::Kind::RailEnd));
    }
    return rail;
}
