// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WalkedModel.h"

#include <QMap>

/// A reader who does anything in any order, and knows of each action what it is to leave behind.
class RandomReader
{
public:
    struct Action
    {
        /// How often it comes, against the others.
        int weight;
        std::function<void()> act;
        int times = 0;
    };

    explicit RandomReader(unsigned seed);

    /// By what the model calls them.
    const QMap<QString, Action>& actions() const { return m_actions; }
    const WalkedModel::Counts& counts() const { return m_walked.counts(); }
    const QString& brokenRule() const { return m_rules.broken(); }

    /// Does one action after a moment, and checks what it left. What the action is called.
    QString actOnce();
    /// Checks the kept signals too, of which there are many.
    void requireKept();

private:
    using Expectation = WalkedModel::Expectation;

    void addActionsOnSignals();
    void addActionsOnHandIns();
    void addActionsOnTheWindow();

    void toggleKeep();
    void removeKept();
    void reduceSimilar();
    void markSeen();
    void updateNote();
    void resetPreferences();
    void addSource();
    void addSentence(const QString& text);
    void addSignal(const InformationSignal& signal);
    void handIn(const QString& input, bool isToBeTaken);
    void removeSource();

    InformationModel& model() { return m_walked.model(); }
    const InformationSignal& randomLive();
    /// Live, retired or, now and then, unknown.
    QString randomId();

    Dice m_dice;
    RuleBook m_rules;
    WalkedModel m_walked;
    QMap<QString, Action> m_actions;
};
