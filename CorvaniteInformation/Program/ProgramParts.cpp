#include "ProgramParts.h"

#include "InformationSeed.h"

#include <utility>

namespace {

std::optional<QString> writableDirectory(const LocalFileManager& machine,
                                         ProgramInstance::Standing standing)
{
    return standing == ProgramInstance::Standing::First ? machine.applicationSupportDirectory()
                                                        : std::nullopt;
}

std::optional<InformationWorkspaceRepository> repository(const LocalFileManager& fileManager)
{
    auto live = InformationWorkspaceRepository::live(fileManager);
    return live ? std::optional(*std::move(live)) : std::nullopt;
}

} // namespace

ProgramParts::ProgramParts(const Surroundings& surroundings)
    : m_machine(LocalFileManager::applicationSupportDirectory(surroundings.environment)),
      m_instance(InformationPackSync::liveDirectory(m_machine), m_machine,
                 surroundings.environment),
      m_fileManager(writableDirectory(m_machine, m_instance.standing()))
{
    if (m_instance.standing() == ProgramInstance::Standing::Later) {
        return;
    }
    m_model.emplace(
        InformationModel::Collaborators{.fileManager = m_fileManager,
                                        .now = surroundings.now,
                                        .seedHistory = InformationSeed::selectionHistory(),
                                        .site = surroundings.site,
                                        .runningVersion = surroundings.version},
        InformationContent::atStart(m_fileManager), repository(m_fileManager));
}
