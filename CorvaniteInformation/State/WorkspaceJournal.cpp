// SPDX-License-Identifier: Apache-2.0

#include "WorkspaceJournal.h"

#include <utility>

namespace {

// Each time another program was faster, and has stored something.
constexpr int furtherAttempts = 100;

const QString noStorage = u"没有可用的本机存储；这次操作没有保存。"_qs;

QString notSaved(const QString& reason)
{
    return u"没有保存这次操作："_qs + reason;
}

} // namespace

WorkspaceJournal::WorkspaceJournal(std::optional<InformationWorkspaceRepository> repository,
                                   const InformationFileManager& fileManager)
    : m_fileManager(fileManager), m_repository(std::move(repository))
{
    if (const auto loaded = readStored(); !loaded) {
        m_loadFailure = u"已有信息没有被覆盖："_qs + localizedDescription(loaded.error());
    }
}

bool WorkspaceJournal::catchUp()
{
    return readStored().value_or(false);
}

void WorkspaceJournal::apply(const Change& change)
{
    m_change = change;
    m_refusal.reset();
    if (const auto current = readStored(); !current) {
        m_refusal = m_loadFailure ? noStorage : notSaved(localizedDescription(current.error()));
    }
    m_previous = m_workspace;
    if (!m_refusal) {
        change(m_workspace);
    }
}

std::expected<bool, QString> WorkspaceJournal::store(std::chrono::sys_seconds now)
{
    for (int attempt = 0;; ++attempt) {
        if (!m_repository) {
            return takenBack(noStorage);
        }
        if (m_refusal) {
            return takenBack(*m_refusal);
        }
        const auto written = writeOverRead(now);
        if (written) {
            return attempt > 0;
        }
        if (written.error().reason != FileError::Reason::ChangedMeanwhile ||
            attempt == furtherAttempts) {
            return takenBack(notSaved(written.error().localizedDescription()));
        }
        m_workspace = std::move(m_previous);
        apply(m_change);
    }
}

void WorkspaceJournal::keepUndo()
{
    m_undo = std::move(m_previous);
}

WorkspaceJournal::Change WorkspaceJournal::undo()
{
    return [this](InformationWorkspace& workspace) {
        if (m_undo) {
            workspace = *m_undo;
        } else {
            m_refusal = u"没有撤销：保存的信息在别处有了改动，现在显示的是改动后的。"_qs;
        }
    };
}

// All of the file is read each time. Its size and times would say sooner that nothing has changed,
// but two changes of one moment have the same times; and what is saved is written whole anyway.
std::expected<bool, InformationWorkspaceRepository::LoadError> WorkspaceJournal::readStored()
{
    if (!m_repository) {
        return false;
    }
    const auto stored = m_fileManager.readFile(m_repository->filePath);
    if (!stored) {
        return std::unexpected(stored.error());
    }
    // A file that is gone is made again with everything.
    const bool isOther = *stored && *stored != m_document;
    if (isOther) {
        auto workspace = workspaceIn(**stored);
        if (!workspace) {
            return std::unexpected(workspace.error());
        }
        m_workspace = *std::move(workspace);
        m_document = *stored;
        m_undo.reset();
    }
    m_stored = *stored;
    m_loadFailure.reset();
    return isOther;
}

std::expected<void, FileError> WorkspaceJournal::writeOverRead(std::chrono::sys_seconds now)
{
    if (m_stored) {
        m_repository->keepPrevious(*m_stored, now, m_fileManager);
    }
    auto written = m_repository->saveOver(m_stored, m_workspace, m_fileManager);
    if (!written) {
        return std::unexpected(written.error());
    }
    m_document = *std::move(written);
    m_stored = m_document;
    return {};
}

std::unexpected<QString> WorkspaceJournal::takenBack(const QString& reason)
{
    m_workspace = std::move(m_previous);
    return std::unexpected(reason);
}
