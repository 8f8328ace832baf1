#include "WorkspaceJournal.h"

#include <utility>

namespace {

QString notSaved(const QString& reason)
{
    return u"没有保存这次操作："_qs + reason;
}

} // namespace

WorkspaceJournal::WorkspaceJournal(std::optional<InformationWorkspaceRepository> repository,
                                   const InformationFileManager& fileManager)
    : m_fileManager(fileManager), m_repository(std::move(repository))
{
    if (const auto loaded = catchUp(); !loaded) {
        m_repository.reset();
        m_loadFailure = u"已有信息没有被覆盖："_qs + localizedDescription(loaded.error());
    }
}

void WorkspaceJournal::apply(const Change& change)
{
    m_refusal.reset();
    if (const auto current = catchUp(); !current) {
        m_refusal = notSaved(localizedDescription(current.error()));
    }
    m_previous = m_workspace;
    if (!m_refusal) {
        change(m_workspace);
    }
}

std::expected<void, QString> WorkspaceJournal::store()
{
    QString failure;
    if (!m_repository) {
        failure = u"没有可用的本机存储；这次操作没有保存。"_qs;
    } else if (m_refusal) {
        failure = *m_refusal;
    } else if (auto saved = m_repository->save(m_workspace, m_fileManager); !saved) {
        failure = notSaved(saved.error().localizedDescription());
    } else {
        m_document = *std::move(saved);
        return {};
    }
    m_workspace = std::move(m_previous);
    return std::unexpected(failure);
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

std::expected<void, InformationWorkspaceRepository::LoadError> WorkspaceJournal::catchUp()
{
    if (!m_repository) {
        return {};
    }
    const auto document = m_fileManager.readFile(m_repository->filePath);
    if (!document) {
        return std::unexpected(document.error());
    }
    // A file that is gone is made again with everything.
    if (!*document || *document == m_document) {
        return {};
    }
    auto workspace = m_repository->load(m_fileManager);
    if (!workspace) {
        return std::unexpected(workspace.error());
    }
    m_workspace = *std::move(workspace);
    m_document = *document;
    m_undo.reset();
    return {};
}
