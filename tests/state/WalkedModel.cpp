// SPDX-License-Identifier: Apache-2.0

#include "WalkedModel.h"

#include "InformationWorkspaceCoding.h"
#include "RefreshSample.h"
#include "SiteDocuments.h"
#include "WalkDocuments.h"

#include <utility>

namespace {

using Reason = FileError::Reason;

// What goes through thousands of entries is looked at now and then only.
constexpr int savesPerReading = 20;

// Qt 6.4 compares two empty lists of plain values by memcmp and null, which the sanitizers report.
bool isSame(const InformationWorkspace& left, const InformationWorkspace& right)
{
    if (!left.reducedLanes.isEmpty() || !right.reducedLanes.isEmpty()) {
        return left == right;
    }
    auto leftWithoutLanes = left;
    auto rightWithoutLanes = right;
    leftWithoutLanes.reducedLanes = {};
    rightWithoutLanes.reducedLanes = {};
    return leftWithoutLanes == rightWithoutLanes;
}

} // namespace

WalkedModel::WalkedModel(Dice& dice, RuleBook& rules)
    : m_dice(dice), m_rules(rules), m_workspace(WalkDocuments::workspace(now()))
{
    auto& files = m_sample.files.files;
    files.insert(workspacePath, InformationWorkspaceCoding::encode(m_workspace));
    files.insert(RefreshSample::packFile, WalkDocuments::pack(m_packs++, m_dice));
    files.insert(RefreshSample::retiredFile,
                 SiteDocuments::retired({u"signal-0"_qs, u"past-200"_qs}));
    m_sample.site->offer(SiteClient::appVersionPath, SiteDocuments::appVersion(u"2.0.0"_qs));
    start();
}

std::chrono::sys_seconds WalkedModel::now() const
{
    return std::chrono::sys_seconds(std::chrono::seconds(static_cast<qint64>(m_sample.now)));
}

void WalkedModel::start()
{
    m_model =
        m_sample.make(InformationContent::atStart(m_sample.files), *m_sample.site, m_sample.files);
    m_undo.reset();
    m_error.clear();
}

void WalkedModel::transact(const Expectation& expectation, const std::function<void()>& act)
{
    const QByteArray fileBefore = file();
    const bool isFailing = m_dice.roll(6) == 0;
    if (isFailing) {
        m_sample.files.writeFailure =
            FileError{m_dice.roll(2) == 0 ? Reason::NoSpace : Reason::InputOutput};
    }
    act();
    const auto failure = std::exchange(m_sample.files.writeFailure, std::nullopt);
    if (expectation.clearsUndo) {
        m_undo.reset();
    }
    if (!expectation.workspace || isFailing) {
        m_rules.require(file().constData() == fileBefore.constData(), "the file was written");
    }
    if (!expectation.workspace) {
        return;
    }
    if (isFailing) {
        ++m_counts.failures;
        m_error = u"没有保存这次操作："_qs + failure->localizedDescription();
        m_rules.require(!m_model->hasReceipt(), "a receipt for what was not saved");
        return;
    }
    ++m_counts.saves;
    if (expectation.undo == Expectation::Undo::ThisAction) {
        m_undo = {m_workspace, fileBefore};
    } else if (expectation.undo == Expectation::Undo::Gone) {
        m_undo.reset();
    }
    m_workspace = *expectation.workspace;
    requireStored();
}

void WalkedModel::transactUndoable(const InformationWorkspace& changed,
                                   const std::function<void()>& act)
{
    transact({.workspace = changed, .undo = Expectation::Undo::ThisAction, .clearsUndo = true},
             act);
}

void WalkedModel::undo()
{
    Expectation expectation{.undo = Expectation::Undo::Gone};
    const auto undo = m_undo;
    if (undo) {
        expectation.workspace = undo->workspace;
    }
    transact(expectation, [&] { m_model->undoLastAction(); });
    if (undo && !m_undo) {
        ++m_counts.undone;
        m_rules.require(file() == undo->file, "undo does not give the file back as it was");
    }
}

void WalkedModel::dismissError()
{
    m_error.clear();
    m_model->dismissError();
}

void WalkedModel::refresh(const QByteArray& retired)
{
    const QByteArray pack =
        m_dice.roll(8) == 0 ? QByteArray("no pack") : WalkDocuments::pack(m_packs++, m_dice);
    m_sample.site->offer(SiteClient::packPath, pack);
    m_sample.site->offer(SiteClient::retiredSignalsPath, retired);
    const bool losesRetired = m_dice.roll(4) == 0;
    if (losesRetired) {
        m_sample.files.writeFailures.insert(RefreshSample::retiredFile, FileError{Reason::NoSpace});
    }
    const auto snapshot = InformationPackSync::parse(pack);
    auto filesAfter = m_sample.files.files;
    const auto shownBefore = RefreshSample::shownBy(*m_model);

    bool isFailing = false;
    transact({}, [&] {
        isFailing = m_sample.files.writeFailure.has_value();
        m_model->refreshPackFromSite();
    });

    if (snapshot && !isFailing) {
        filesAfter[RefreshSample::packFile] = pack;
        if (!losesRetired) {
            filesAfter[RefreshSample::retiredFile] = retired;
        }
        m_rules.require(m_model->signals() == snapshot->signals, "the new pack is not shown");
        m_rules.require(!m_model->packSyncFailed(),
                        "a refresh that stored its pack says it failed");
    } else {
        m_rules.require(RefreshSample::shownBy(*m_model) == shownBefore,
                        "a refresh that failed changed what is shown");
        m_rules.require(m_model->packSyncFailed(), "a refresh that failed does not say so");
    }
    m_rules.require(m_sample.files.files == filesAfter,
                    "the refresh left other files than it should");
    m_sample.files.writeFailures.clear();
}

void WalkedModel::requireState() const
{
    m_rules.require(isSame(m_model->workspace(), m_workspace), "memory is not what was done");
    m_rules.require(m_model->errorText() == m_error, "the error told is not what happened");
    m_rules.require(m_model->canUndo() == m_undo.has_value(),
                    "undo is offered where there is none, or the other way round");
}

QByteArray WalkedModel::file() const
{
    return m_sample.files.files.value(workspacePath);
}

void WalkedModel::requireStored()
{
    m_rules.require(file() == InformationWorkspaceCoding::encode(m_workspace),
                    "the file does not hold what was done");
    if (m_counts.saves % savesPerReading == 0) {
        const auto stored = InformationWorkspaceCoding::decode(file());
        m_rules.require(stored && isSame(*stored, m_workspace),
                        "the file does not read as what was done");
    }
}
