// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Dice.h"
#include "LivingProgram.h"

#include <QMap>

#include <functional>

/// A reader who does anything with the program in any order, and can put everything away again.
class BusyReader
{
public:
    struct Action
    {
        std::function<void()> act;
        int times = 0;
    };

    /// @param program outlives this
    BusyReader(LivingProgram& program, unsigned seed);

    const QMap<QString, Action>& actions() const { return m_actions; }

    /// Does one action.
    void actOnce();
    /// Goes to each surface and opens each sheet, all by key.
    void goEverywhere();
    /// Sees every card, keeps and adjusts nothing any more, goes everywhere and back to today.
    void putAway();

private:
    void addActionsOnCards();
    void addActionsOnHandIns();
    void addActionsOnTheWindow();

    InformationModel& model() { return m_program.model(); }
    QString anyCard();

    LivingProgram& m_program;
    Dice m_dice;
    QMap<QString, Action> m_actions;
};
