// SPDX-License-Identifier: Apache-2.0

#include "RandomReader.h"

#include "PlainRules.h"
#include "ShownRules.h"
#include "SiteDocuments.h"
#include "WalkDocuments.h"

#include <algorithm>
#include <numeric>

using WalkDocuments::mostSources;
using WalkDocuments::sourceText;

RandomReader::RandomReader(unsigned seed) : m_dice(seed), m_walked(m_dice, m_rules)
{
    addActionsOnSignals();
    addActionsOnHandIns();
    addActionsOnTheWindow();
    m_actions.insert(u"undoLastAction"_qs, {8, [this] { m_walked.undo(); }});
    m_actions.insert(u"start again"_qs, {1, [this] { m_walked.start(); }});
    m_actions.insert(u"probeAppUpdateOnce"_qs, {1, [this] { model().probeAppUpdateOnce(); }});
    m_actions.insert(u"refreshPackFromSite"_qs,
                     {1, [this] {
                          m_walked.refresh(SiteDocuments::retired(
                              {randomId(), u"past-%1"_qs.arg(m_dice.roll(3000))}));
                      }});
}

void RandomReader::addActionsOnSignals()
{
    m_actions.insert(u"toggleKeep"_qs, {4, [this] { toggleKeep(); }});
    m_actions.insert(u"removeKept"_qs, {4, [this] { removeKept(); }});
    m_actions.insert(u"reduceSimilar"_qs, {4, [this] { reduceSimilar(); }});
    m_actions.insert(u"markSeen"_qs, {4, [this] { markSeen(); }});
    m_actions.insert(u"updateNote"_qs, {4, [this] { updateNote(); }});
    m_actions.insert(u"resetPreferences"_qs, {1, [this] { resetPreferences(); }});
}

void RandomReader::addActionsOnHandIns()
{
    m_actions.insert(u"addSource"_qs, {4, [this] { addSource(); }});
    m_actions.insert(u"removeSource"_qs, {4, [this] { removeSource(); }});
    m_actions.insert(u"dismissIntakeError"_qs, {4, [this] { model().dismissIntakeError(); }});
}

void RandomReader::addActionsOnTheWindow()
{
    const auto add = [this](const QString& name, const std::function<void()>& act) {
        m_actions.insert(name, {4, act});
    };
    add(u"setSurface"_qs,
        [this] { model().setSurface(InformationModel::Surface(m_dice.roll(5))); });
    add(u"setSearch"_qs,
        [this] { model().setSearch(m_dice.roll(2) == 0 ? QString() : u"备注 1"_qs); });
    add(u"setActiveLane"_qs, [this] {
        const int lane = m_dice.roll(7);
        model().setActiveLane(lane < 6 ? std::optional(InformationLane(lane)) : std::nullopt);
    });
    add(u"openArchiveDay"_qs,
        [this] { model().openArchiveDay(u"2090-01-0%1"_qs.arg(m_dice.roll(9) + 1)); });
    add(u"closeArchiveDay"_qs, [this] { model().closeArchiveDay(); });
    add(u"openThread"_qs, [this] { model().openThread(randomId()); });
    add(u"closeThread"_qs, [this] { model().closeThread(); });
    add(u"dismissReceipt"_qs, [this] { model().dismissReceipt(); });
    add(u"dismissError"_qs, [this] { m_walked.dismissError(); });
    add(u"dismissUpdate"_qs, [this] { model().dismissUpdate(); });
}

QString RandomReader::actOnce()
{
    int turn = m_dice.roll(
        std::accumulate(m_actions.begin(), m_actions.end(), 0,
                        [](int sum, const Action& action) { return sum + action.weight; }));
    auto action = m_actions.begin();
    while (turn >= action->weight) {
        turn -= action->weight;
        ++action;
    }
    m_walked.sample().now += m_dice.roll(3) * 0.75;
    action->act();
    ++action->times;
    m_walked.requireState();
    ShownRules::requireToday(model(), m_walked.workspace(), m_rules);
    return action.key();
}

void RandomReader::requireKept()
{
    ShownRules::requireKept(model(), m_walked.workspace(), randomLive(), m_rules);
}

const InformationSignal& RandomReader::randomLive()
{
    const auto& live = model().signals();
    return live.at(m_dice.roll(static_cast<int>(live.size())));
}

QString RandomReader::randomId()
{
    const auto& retired = model().retiredSignals();
    const int choice = m_dice.roll(10);
    if (choice == 0 && !retired.isEmpty()) {
        return retired.at(m_dice.roll(static_cast<int>(retired.size()))).id;
    }
    return choice == 1 ? u"nobody"_qs : randomLive().id;
}

void RandomReader::toggleKeep()
{
    const QString id = randomId();
    const auto signal = model().signalById(id);
    if (!signal) {
        m_walked.transact({}, [&] { model().toggleKeep(id); });
        return;
    }
    auto changed = m_walked.workspace();
    if (PlainRules::isKept(changed, model().signals(), signal->followTarget.id)) {
        PlainRules::remove(changed, model().signals(), signal->followTarget.id);
    } else {
        PlainRules::keep(changed, model().signals(), *signal, m_walked.now());
    }
    m_walked.transactUndoable(changed, [&] { model().toggleKeep(*signal); });
}

void RandomReader::removeKept()
{
    const QString id = randomId();
    const auto signal = model().signalById(id);
    if (!signal) {
        m_walked.transact({}, [&] { model().removeKept(id); });
        return;
    }
    auto changed = m_walked.workspace();
    PlainRules::remove(changed, model().signals(), signal->followTarget.id);
    m_walked.transactUndoable(changed, [&] { model().removeKept(id); });
}

void RandomReader::reduceSimilar()
{
    const QString id = randomId();
    const auto signal = model().signalById(id);
    if (!signal) {
        m_walked.transact({}, [&] { model().reduceSimilar(id); });
        return;
    }
    auto changed = m_walked.workspace();
    PlainRules::reduce(changed, *signal);
    m_walked.transactUndoable(changed, [&] { model().reduceSimilar(id); });
}

void RandomReader::markSeen()
{
    const QString id = randomId();
    const auto signal = model().signalById(id);
    Expectation expectation;
    if (signal && !m_walked.workspace().seenTargets.contains(signal->followTarget.id)) {
        expectation.workspace = m_walked.workspace();
        PlainRules::see(*expectation.workspace, signal->followTarget.id);
    }
    m_walked.transact(expectation, [&] { model().markSeen(id); });
}

void RandomReader::updateNote()
{
    const QString id = randomId();
    const QString text = u"备注 %1 \"引号\" \\ \n 换行 😀"_qs.arg(m_dice.roll(1000));
    const auto& live = model().signals();
    const auto signal = std::ranges::find(live, id, &InformationSignal::id);
    Expectation expectation{.clearsUndo = true};
    if (signal != live.end()) {
        expectation.workspace = m_walked.workspace();
        PlainRules::note(*expectation.workspace, live, *signal, text, m_walked.now());
    }
    m_walked.transact(expectation, [&] { model().updateNote(id, text); });
}

void RandomReader::resetPreferences()
{
    auto changed = m_walked.workspace();
    changed.hidden.clear();
    changed.reducedLanes.clear();
    m_walked.transactUndoable(changed, [this] { model().resetPreferences(); });
}

void RandomReader::addSource()
{
    const int choice = m_dice.roll(8);
    if (choice == 0) {
        m_walked.transact({}, [this] { handIn(u"http://plain.example"_qs, false); });
    } else if (choice < 3) {
        addSignal(randomLive());
    } else {
        addSentence(sourceText(m_dice.roll(2 * mostSources)));
    }
}

void RandomReader::addSignal(const InformationSignal& signal)
{
    const auto keep = [&] { handIn(signal.originalURL, true); };
    auto changed = m_walked.workspace();
    if (PlainRules::isKept(changed, model().signals(), signal.followTarget.id)) {
        m_walked.transact({.clearsUndo = true}, keep);
        return;
    }
    PlainRules::keep(changed, model().signals(), signal, m_walked.now());
    m_walked.transactUndoable(changed, keep);
}

void RandomReader::addSentence(const QString& text)
{
    const auto& sources = m_walked.workspace().customSources;
    if (std::ranges::find(sources, text, &CustomInformationSource::input) != sources.end()) {
        m_walked.transact({.clearsUndo = true}, [&] { handIn(text, true); });
        return;
    }
    if (sources.size() >= mostSources) {
        m_walked.transact({}, [&] { handIn(text, false); });
        m_rules.require(!model().intakeErrorText().isEmpty(), "one source too many is not told");
        return;
    }
    Expectation expectation{.workspace = m_walked.workspace(),
                            .undo = Expectation::Undo::ThisAction,
                            .clearsUndo = true};
    auto& added = expectation.workspace->customSources;
    added.append({QUuid(), text, m_walked.now()});
    m_walked.transact(expectation, [&] {
        handIn(text, true);
        // Random, so known only afterwards.
        const auto& inMemory = model().workspace().customSources;
        added.last().id = inMemory.isEmpty() ? QUuid() : inMemory.last().id;
    });
}

void RandomReader::handIn(const QString& input, bool isToBeTaken)
{
    const bool fails = m_walked.sample().files.writeFailure.has_value();
    const bool wasTaken = model().addSource(input);
    m_rules.require(wasTaken == isToBeTaken || (fails && !wasTaken),
                    "a hand-in was taken that is refused, or the other way round");
}

void RandomReader::removeSource()
{
    const auto& sources = m_walked.workspace().customSources;
    const QUuid id = sources.isEmpty() || m_dice.roll(10) == 0
                         ? QUuid::createUuid()
                         : sources.at(m_dice.roll(static_cast<int>(sources.size()))).id;
    auto changed = m_walked.workspace();
    changed.customSources.removeIf([&id](const auto& source) { return source.id == id; });
    m_walked.transactUndoable(changed, [&] { model().removeSource(id); });
}
