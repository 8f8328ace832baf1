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

ProgramParts::ProgramParts(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)),
      m_machine(LocalFileManager::applicationSupportDirectory(m_surroundings.environment)),
      m_instance(InformationPackSync::liveDirectory(m_machine), m_machine,
                 m_surroundings.environment.value(u"XDG_ACTIVATION_TOKEN"_qs).toLatin1()),
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
    // Where the directory is not held every reading tries to hold it, which is for this thread
    // alone.
    const auto launch =
        standing == ProgramInstance::Standing::First ? std::launch::async : std::launch::deferred;
    m_stored = std::async(launch, [this, workspaceRepository = std::move(workspaceRepository)] {
        auto content = InformationContent::atStart(m_fileManager);
        return Stored{.content = std::move(content),
                      .journal = WorkspaceJournal(workspaceRepository, m_fileManager)};
    });
}

InformationModel* ProgramParts::model()
{
    if (m_stored.valid()) {
        makeModel(m_stored.get());
    }
    return m_model ? &*m_model : nullptr;
}

void ProgramParts::makeModel(Stored stored)
{
    m_model.emplace(
        InformationModel::Collaborators{.fileManager = m_fileManager,
                                        .now = m_surroundings.now,
                                        .seedHistory = InformationSeed::selectionHistory(),
                                        .site = m_surroundings.site,
                                        .runningVersion = m_surroundings.version},
        std::move(stored.content), std::move(stored.journal));
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
