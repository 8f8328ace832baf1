#include "WorkspaceJournal.h"

#include <utility>

WorkspaceJournal::WorkspaceJournal(std::optional<InformationWorkspaceRepository> repository,
                                   const InformationFileManager& fileManager)
    : m_fileManager(fileManager)
{
    if (!repository) {
        return;
    }
    auto workspace = repository->load(m_fileManager);
    if (workspace) {
        m_workspace = *std::move(workspace);
        m_repository = std::move(repository);
    } else {
        m_loadFailure = u"已有信息没有被覆盖："_qs + localizedDescription(workspace.error());
    }
}

void WorkspaceJournal::apply(const Change& change)
{
    m_previous = m_workspace;
    change(m_workspace);
}

std::expected<void, QString> WorkspaceJournal::store()
{
    QString failure;
    if (!m_repository) {
        failure = u"没有可用的本机存储；这次操作没有保存。"_qs;
    } else if (const auto saved = m_repository->save(m_workspace, m_fileManager); !saved) {
        failure = u"没有保存这次操作："_qs + saved.error().localizedDescription();
    } else {
        return {};
    }
    m_workspace = std::move(m_previous);
    return std::unexpected(failure);
}

void WorkspaceJournal::keepUndo()
{
    m_undo = std::move(m_previous);
}

WorkspaceJournal::Change WorkspaceJournal::undo() const
{
    return [this](InformationWorkspace& workspace) { workspace = *m_undo; };
}
