// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspaceRepository.h"

#include "InformationPackSync.h"
#include "InformationProjection.h"
#include "InformationSeed.h"
#include "InformationSignalIndex.h"

#include <QDateTime>
#include <QFileInfo>

#include <functional>
#include <tuple>
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

using Replace = std::function<std::expected<void, FileError>(const QByteArray& bytes)>;

std::expected<QByteArray, FileError> store(const QString& filePath,
                                           const InformationWorkspace& workspace,
                                           const InformationFileManager& fileManager,
                                           const Replace& replace)
{
    if (const auto made = fileManager.createDirectory(QFileInfo(filePath).path()); !made) {
        return std::unexpected(made.error());
    }
    auto stored = document(workspace);
    if (const auto replaced = replace(stored); !replaced) {
        return std::unexpected(replaced.error());
    }
    return stored;
}

QDate localDay(std::chrono::sys_seconds time)
{
    return QDateTime::fromSecsSinceEpoch(time.time_since_epoch().count()).date();
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
    return workspaceIn(**document);
}

std::expected<QByteArray, FileError>
InformationWorkspaceRepository::save(const InformationWorkspace& workspace,
                                     const InformationFileManager& fileManager) const
{
    return store(filePath, workspace, fileManager,
                 [&](const QByteArray& bytes) { return fileManager.replaceFile(filePath, bytes); });
}

std::expected<QByteArray, FileError>
InformationWorkspaceRepository::saveOver(const std::optional<QByteArray>& read,
                                         const InformationWorkspace& workspace,
                                         const InformationFileManager& fileManager) const
{
    return store(filePath, workspace, fileManager, [&](const QByteArray& bytes) {
        return fileManager.replaceReadFile(filePath, read, bytes);
    });
}

QString InformationWorkspaceRepository::previousFilePath() const
{
    const QFileInfo file(filePath);
    return u"%1/%2.previous.%3"_qs.arg(file.path(), file.completeBaseName(), file.suffix());
}

void InformationWorkspaceRepository::keepPrevious(const QByteArray& document,
                                                  std::chrono::sys_seconds now,
                                                  const InformationFileManager& fileManager) const
{
    const QString path = previousFilePath();
    const auto kept = fileManager.writtenAt(path);
    if (kept && (!*kept || localDay(**kept) != localDay(now))) {
        std::ignore = fileManager.replaceFile(path, document);
    }
}

std::expected<InformationWorkspace, InformationWorkspaceRepository::LoadError>
workspaceIn(const QByteArray& document)
{
    using LoadError = InformationWorkspaceRepository::LoadError;
    auto workspace = InformationWorkspaceCoding::decode(document);
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
