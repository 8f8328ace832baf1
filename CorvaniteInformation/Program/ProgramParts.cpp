// SPDX-License-Identifier: Apache-2.0

#include "ProgramParts.h"

#include "InformationPackSync.h"
#include "InformationSeed.h"

#include <utility>

namespace {

std::optional<InformationWorkspaceRepository> repository(const InformationFileManager& fileManager)
{
    auto live = InformationWorkspaceRepository::live(fileManager);
    return live ? std::optional(*std::move(live)) : std::nullopt;
}

} // namespace

ProgramParts::ProgramParts(const Surroundings& surroundings)
    : m_machine(LocalFileManager::applicationSupportDirectory(surroundings.environment)),
      m_instance(InformationPackSync::liveDirectory(m_machine), m_machine,
                 surroundings.environment.value(u"XDG_ACTIVATION_TOKEN"_qs).toLatin1()),
      m_fileManager(m_machine, m_instance)
{
    const auto standing = m_instance.standing();
    if (standing == ProgramInstance::Standing::Later ||
        standing == ProgramInstance::Standing::Unanswered) {
        return;
    }
    auto workspaceRepository = repository(m_fileManager);
    if (workspaceRepository) {
        m_workspaceWatch.emplace(workspaceRepository->filePath);
    }
    m_model.emplace(
        InformationModel::Collaborators{.fileManager = m_fileManager,
                                        .now = surroundings.now,
                                        .seedHistory = InformationSeed::selectionHistory(),
                                        .site = surroundings.site,
                                        .runningVersion = surroundings.version},
        InformationContent::atStart(m_fileManager), std::move(workspaceRepository));
    if (m_workspaceWatch) {
        QObject::connect(&*m_workspaceWatch, &FileWatch::changed, &*m_model,
                         &InformationModel::catchUpWithStorage);
    }
}

void ProgramParts::catchUp()
{
    if (m_workspaceWatch) {
        m_workspaceWatch->look();
    }
}
