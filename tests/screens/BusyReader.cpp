// SPDX-License-Identifier: Apache-2.0

#include "BusyReader.h"

BusyReader::BusyReader(LivingProgram& program, unsigned seed) : m_program(program), m_dice(seed)
{
    addActionsOnCards();
    addActionsOnHandIns();
    addActionsOnTheWindow();
}

void BusyReader::addActionsOnCards()
{
    const auto add = [this](const QString& name, void (InformationModel::*act)(const QString&)) {
        m_actions.insert(name, {[this, act] { (model().*act)(anyCard()); }});
    };
    add(u"keep"_qs, &InformationModel::toggleKeep);
    add(u"remove"_qs, &InformationModel::removeKept);
    add(u"see"_qs, &InformationModel::markSeen);
    add(u"show fewer like it"_qs, &InformationModel::reduceSimilar);
    add(u"open the thread"_qs, &InformationModel::openThread);
    m_actions.insert(u"note"_qs, {[this] {
                         model().updateNote(anyCard(), u"备注 %1"_qs.arg(m_dice.roll(1000)));
                     }});
    m_actions.insert(u"reset"_qs, {[this] { model().resetPreferences(); }});
    m_actions.insert(u"undo"_qs, {[this] { model().undoLastAction(); }});
}

void BusyReader::addActionsOnHandIns()
{
    m_actions.insert(u"hand in"_qs, {[this] {
                         model().addSource(u"想跟踪的第 %1 句话"_qs.arg(m_dice.roll(200)));
                         model().dismissIntakeError();
                     }});
    m_actions.insert(u"remove what was handed in"_qs, {[this] {
                         const auto sources = model().workspace().customSources;
                         if (!sources.isEmpty()) {
                             model().removeSource(
                                 sources.at(m_dice.roll(static_cast<int>(sources.size()))).id);
                         }
                     }});
}

void BusyReader::addActionsOnTheWindow()
{
    const auto add = [this](const QString& name, const std::function<void()>& act) {
        m_actions.insert(name, {act});
    };
    add(u"go to a surface"_qs,
        [this] { model().setSurface(InformationModel::Surface(m_dice.roll(5))); });
    add(u"choose a lane"_qs, [this] {
        const int lane = m_dice.roll(7);
        model().setActiveLane(lane < 6 ? std::optional(InformationLane(lane)) : std::nullopt);
    });
    add(u"search"_qs,
        [this] { model().setSearch(m_dice.roll(2) == 0 ? QString() : u"备注 1"_qs); });
    add(u"close the thread"_qs, [this] { model().closeThread(); });
    add(u"open an archived day"_qs,
        [this] { model().openArchiveDay(u"2026-10-%1"_qs.arg(20 + m_dice.roll(10))); });
    add(u"close the archived day"_qs, [this] { model().closeArchiveDay(); });
    add(u"wave the receipt away"_qs, [this] { model().dismissReceipt(); });
    add(u"catch up with the disk"_qs, [this] { m_program.catchUp(); });
}

void BusyReader::actOnce()
{
    auto action = m_actions.begin();
    std::advance(action, m_dice.roll(static_cast<int>(m_actions.size())));
    action->act();
    ++action->times;
}

void BusyReader::goEverywhere()
{
    const auto& window = m_program.window();
    for (const auto surface : {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5}) {
        window.pressKey(surface, Qt::ControlModifier);
        window.pressKey(Qt::Key_PageDown);
        window.pressKey(Qt::Key_Home);
    }
    for (const auto& openSheet :
         {std::pair(Qt::Key_N, Qt::ControlModifier), std::pair(Qt::Key_F1, Qt::NoModifier)}) {
        window.pressKey(openSheet.first, openSheet.second);
        window.pressKey(Qt::Key_Escape);
    }
    model().openThread(anyCard());
    window.settle();
    window.pressKey(Qt::Key_Escape);
    model().openArchiveDay(u"2026-11-01"_qs);
    window.settle();
    window.pressKey(Qt::Key_Left, Qt::AltModifier);
}

void BusyReader::putAway()
{
    for (const auto& signal : model().signals()) {
        model().markSeen(signal);
        if (model().isKept(signal)) {
            model().removeKept(signal);
        }
    }
    const auto sources = model().workspace().customSources;
    for (const auto& source : sources) {
        model().removeSource(source.id);
    }
    model().resetPreferences();
    model().setActiveLane(std::nullopt);
    model().setSearch({});
    model().closeThread();
    goEverywhere();
    model().closeArchiveDay();
    model().dismissReceipt();
    model().setSurface(InformationModel::Surface::Today);
    m_program.settle();
}

QString BusyReader::anyCard()
{
    const auto& cards = model().signals();
    return cards.at(m_dice.roll(static_cast<int>(cards.size()))).id;
}
