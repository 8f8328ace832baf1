#include "InformationWorkspaceRepository.h"

#include "InformationPackSync.h"
#include "InformationProjection.h"
#include "InformationSeed.h"
#include "InformationSignalIndex.h"

#include <QFileInfo>

#include <type_traits>
#include <utility>

namespace {

// The first version that follows target ids; those before it followed signal ids.
constexpr qint64 firstVersionFollowingTargets = 3;

// A copy of thousands of kept signals takes its time, and what the model changes is clean.
QByteArray document(const InformationWorkspace& workspace)
{
    if (workspace.isNormalized()) {
        return InformationWorkspaceCoding::encode(workspace);
    }
    InformationWorkspace cleaned = workspace;
    cleaned.normalize();
    return InformationWorkspaceCoding::encode(cleaned);
}

} // namespace

std::expected<InformationWorkspaceRepository, InformationRepositoryError>
InformationWorkspaceRepository::live(const InformationFileManager& fileManager)
{
    const std::optional<QString> directory = InformationPackSync::liveDirectory(fileManager);
    if (!directory) {
        return std::unexpected(InformationRepositoryError{
            .kind = InformationRepositoryError::Kind::ApplicationSupportUnavailable});
    }
    return InformationWorkspaceRepository{.filePath =
                                              *directory + QStringLiteral("/workspace-v1.json")};
}

std::expected<InformationWorkspace, InformationWorkspaceRepository::LoadError>
InformationWorkspaceRepository::load(const InformationFileManager& fileManager) const
{
    const auto document = fileManager.readFile(filePath);
    if (!document) {
        return std::unexpected(LoadError(document.error()));
    }
    if (!*document) {
        return InformationWorkspace();
    }
    auto workspace = InformationWorkspaceCoding::decode(**document);
    if (!workspace) {
        return std::unexpected(LoadError(workspace.error()));
    }
    auto current = migrated(*std::move(workspace),
                            InformationSeed::retiredSignals() + InformationSeed::signals());
    if (!current) {
        return std::unexpected(LoadError(current.error()));
    }
    return *std::move(current);
}

std::expected<QByteArray, FileError>
InformationWorkspaceRepository::save(const InformationWorkspace& workspace,
                                     const InformationFileManager& fileManager) const
{
    if (const auto made = fileManager.createDirectory(QFileInfo(filePath).path()); !made) {
        return std::unexpected(made.error());
    }
    auto stored = document(workspace);
    if (const auto replaced = fileManager.replaceFile(filePath, stored); !replaced) {
        return std::unexpected(replaced.error());
    }
    return stored;
}

std::expected<InformationWorkspace, InformationRepositoryError>
migrated(InformationWorkspace workspace, const QList<InformationSignal>& catalog)
{
    if (workspace.version < 1 || workspace.version > InformationWorkspace::currentVersion) {
        return std::unexpected(
            InformationRepositoryError{.kind = InformationRepositoryError::Kind::UnsupportedVersion,
                                       .version = workspace.version});
    }
    const QHash<QString, InformationSignal> index = indexById(catalog);
    for (QString& entry : workspace.hidden) {
        const auto signal = index.constFind(entry);
        if (signal != index.constEnd() && !entry.contains(u'@')) {
            entry = InformationProjection::versionKey(*signal);
        }
    }
    if (workspace.version < firstVersionFollowingTargets) {
        for (QString& entry : workspace.following) {
            const auto signal = index.constFind(entry);
            if (signal != index.constEnd()) {
                entry = signal->followTarget.id;
            }
        }
    }
    workspace.version = InformationWorkspace::currentVersion;
    workspace.normalize();
    return workspace;
}

QString localizedDescription(const InformationWorkspaceRepository::LoadError& error)
{
    return std::visit(
        []<typename Error>(const Error& cause) -> QString {
            if constexpr (std::is_same_v<Error, InformationWorkspaceCoding::DecodingError>) {
                return cause.localizedDescription;
            } else {
                return cause.localizedDescription();
            }
        },
        error);
}
