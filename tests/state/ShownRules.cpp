// SPDX-License-Identifier: Apache-2.0

#include "ShownRules.h"

#include "PlainRules.h"
#include "SampleSignal.h"

#include <QSet>

#include <algorithm>

namespace {

QStringList sortedIdsOf(const QList<InformationSignal>& signals)
{
    QStringList ids = idsOf(signals);
    ids.sort();
    return ids;
}

} // namespace

void ShownRules::requireToday(const InformationModel& model, const InformationWorkspace& workspace,
                              RuleBook& rules)
{
    const QSet<QString> hidden(workspace.hidden.begin(), workspace.hidden.end());
    QStringList shown;
    QStringList reduced;
    for (const InformationSignal& signal : model.signals()) {
        if (!hidden.contains(signal.id + u'@' + signal.observedAt)) {
            (workspace.reducedLanes.contains(signal.lane) ? reduced : shown).append(signal.id);
        }
    }
    rules.require(idsOf(model.visibleSignals()) == shown + reduced,
                  "today is not what it should be");

    qsizetype inLanes = 0;
    for (const auto& [lane, name] : vocabulary<InformationLane>) {
        inLanes += model.laneCount(lane);
    }
    rules.require(inLanes == model.laneAllCount() && inLanes == (shown + reduced).size(),
                  "the lanes' counts do not add up");

    const auto filtered = model.laneFilteredSignals();
    const auto focused = model.focusedSignals();
    rules.require(sortedIdsOf(focused + model.remainingSignals()) == sortedIdsOf(filtered),
                  "focus and remaining do not complete each other");
    rules.require(focused.size() == std::min<qsizetype>(3, filtered.size()),
                  "the focus is not full");
}

void ShownRules::requireKept(const InformationModel& model, const InformationWorkspace& workspace,
                             const InformationSignal& card, RuleBook& rules)
{
    const auto kept = model.keptSignals();
    QSet<QString> shown;
    for (const InformationSignal& signal : kept) {
        const QString& target = signal.followTarget.id;
        rules.require(!shown.contains(target), "a kept target is shown twice");
        shown.insert(target);
        rules.require(workspace.following.contains(target) || workspace.saved.contains(signal.id),
                      "a signal is shown as kept that nobody kept");
    }
    if (model.search().isEmpty()) {
        rules.require(model.keptItemCount() == kept.size() + workspace.customSources.size(),
                      "the count of kept items is wrong");
        rules.require(model.keptCustomSources() == workspace.customSources,
                      "a custom source is missing");
    }
    const QString& target = card.followTarget.id;
    const bool isKept = PlainRules::isKept(workspace, model.signals(), target);
    rules.require(model.isKept(card) == isKept, "a card says wrongly whether it is kept");
    rules.require(!isKept || shown.contains(target) || !model.search().isEmpty(),
                  "a kept signal is not shown as kept");
}
