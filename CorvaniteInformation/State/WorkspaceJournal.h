#pragma once

#include "InformationFileManager.h"
#include "InformationWorkspace.h"
#include "InformationWorkspaceRepository.h"

#include <QString>

#include <expected>
#include <functional>
#include <optional>

/// The reader's workspace, its file, and the one step that can be taken back. A change is applied
/// at once and stored after; what cannot be stored is taken back. Where something else has stored a
/// workspace meanwhile, the journal goes on from that one.
class WorkspaceJournal
{
public:
    using Change = std::function<void(InformationWorkspace&)>;

    /// Loads the workspace. Where a stored one cannot be read the journal goes on empty and without
    /// the repository, so that nothing is written over it.
    /// @param fileManager outlives the journal
    WorkspaceJournal(std::optional<InformationWorkspaceRepository> repository,
                     const InformationFileManager& fileManager);

    const InformationWorkspace& workspace() const { return m_workspace; }
    /// Why the stored workspace was not loaded, in a sentence for the reader.
    const std::optional<QString>& loadFailure() const { return m_loadFailure; }

    /// Changes the workspace, as it is stored by now. To be followed by `store`. One that came from
    /// elsewhere empties the undo slot; where it does not read, nothing is changed and `store`
    /// fails.
    void apply(const Change& change);

    /// Stores the last change. On failure the workspace is as before it; the error is the sentence
    /// for the reader.
    std::expected<void, QString> store();

    bool canUndo() const { return m_undo.has_value(); }
    /// Keeps the workspace from before the last change, which has been stored, to go back to.
    void keepUndo();
    void clearUndo() { m_undo.reset(); }
    /// The change that goes back; with `canUndo`.
    Change undo();

private:
    /// Takes what something else has stored since the last reading or storing.
    std::expected<void, InformationWorkspaceRepository::LoadError> catchUp();

    const InformationFileManager& m_fileManager;
    std::optional<InformationWorkspaceRepository> m_repository;
    std::optional<QString> m_loadFailure;
    InformationWorkspace m_workspace;
    /// The file as last read or stored.
    std::optional<QByteArray> m_document;
    /// Why the last change was not applied.
    std::optional<QString> m_refusal;
    /// From before the last change.
    InformationWorkspace m_previous;
    std::optional<InformationWorkspace> m_undo;
};
