// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Dice.h"
#include "RuleBook.h"
#include "SampleModel.h"

#include <functional>
#include <memory>
#include <optional>

/// A model on a disk that fails now and then, and beside it a plain account of what is stored, what
/// can be undone and what was told.
class WalkedModel
{
public:
    /// What an action is to do where the disk does not fail.
    struct Expectation
    {
        enum class Undo { AsBefore, Gone, ThisAction };

        /// What is to be saved; nothing for an action that saves nothing.
        std::optional<InformationWorkspace> workspace = std::nullopt;
        Undo undo = Undo::AsBefore;
        /// Whether there is nothing to undo even after a failure.
        bool clearsUndo = false;
    };

    struct Counts
    {
        int saves = 0;
        int failures = 0;
        int undone = 0;
    };

    /// Starts over a full disk.
    /// @param dice, rules outlive this
    WalkedModel(Dice& dice, RuleBook& rules);

    InformationModel& model() { return *m_model; }
    const InformationModel& model() const { return *m_model; }
    SampleModel& sample() { return m_sample; }
    /// What is to be stored.
    const InformationWorkspace& workspace() const { return m_workspace; }
    const Counts& counts() const { return m_counts; }
    std::chrono::sys_seconds now() const;

    /// As the program starts over what the disk holds.
    void start();
    /// Acts on a disk that fails by chance.
    void transact(const Expectation& expectation, const std::function<void()>& act);
    /// An action that saves the workspace and can be undone.
    void transactUndoable(const InformationWorkspace& changed, const std::function<void()>& act);
    void undo();
    void dismissError();
    /// The site publishes another pack, or none.
    void refresh(const QByteArray& retired);

    /// What must hold after every action.
    void requireState() const;

private:
    struct UndoStep
    {
        InformationWorkspace workspace;
        QByteArray file;
    };

    QByteArray file() const;
    void requireStored();

    Dice& m_dice;
    RuleBook& m_rules;
    SampleModel m_sample;
    std::unique_ptr<InformationModel> m_model;
    InformationWorkspace m_workspace;
    std::optional<UndoStep> m_undo;
    QString m_error;
    Counts m_counts;
    int m_packs = 0;
};
