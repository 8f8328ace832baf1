// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"
#include "InformationWorkspace.h"
#include "InformationWorkspaceRepository.h"

#include <QString>

#include <chrono>
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

    /// Loads the workspace. Where a stored one cannot be read the journal goes on empty, and
    /// nothing is stored before it has been read.
    /// @param fileManager outlives the journal
    WorkspaceJournal(std::optional<InformationWorkspaceRepository> repository,
                     const InformationFileManager& fileManager);

    const InformationWorkspace& workspace() const { return m_workspace; }
    /// Why the stored workspace has not been loaded, in a sentence for the reader.
    const std::optional<QString>& loadFailure() const { return m_loadFailure; }

    /// Takes what something else has stored since the last reading or storing, and empties the undo
    /// slot then. Where that does not read, or the file is gone, everything stays.
    /// @return whether the workspace was taken
    bool catchUp();

    /// Changes the workspace, as it is stored by now. To be followed by `store`. Where what is
    /// stored does not read, nothing is changed and `store` fails.
    void apply(const Change& change);

    /// Stores the last change; where something else has stored meanwhile, applied to that anew. On
    /// failure the workspace is as before it; the error is the sentence for the reader.
    /// @return whether the change had to be applied anew
    std::expected<bool, QString> store(std::chrono::sys_seconds now);

    bool canUndo() const { return m_undo.has_value(); }
    /// Keeps the workspace from before the last change, which has been stored, to go back to.
    void keepUndo();
    void clearUndo() { m_undo.reset(); }
    /// The change that goes back; with `canUndo`.
    Change undo();

private:
    /// Whether a workspace was taken.
    std::expected<bool, InformationWorkspaceRepository::LoadError> readStored();
    std::expected<void, FileError> writeOverRead(std::chrono::sys_seconds now);
    std::unexpected<QString> takenBack(const QString& reason);

    const InformationFileManager& m_fileManager;
    std::optional<InformationWorkspaceRepository> m_repository;
    std::optional<QString> m_loadFailure;
    InformationWorkspace m_workspace;
    /// The document that the workspace was last read from or stored as.
    std::optional<QByteArray> m_document;
    /// What was last found in the file: the document, or nothing for no file.
    std::optional<QByteArray> m_stored;
    Change m_change;
    /// Why the last change was not applied.
    std::optional<QString> m_refusal;
    /// From before the last change.
    InformationWorkspace m_previous;
    std::optional<InformationWorkspace> m_undo;
};
