#pragma once

#include "FakeSiteClient.h"
#include "InformationModel.h"
#include "InformationSeed.h"
#include "ProgramInstance.h"

/// The program as its entry puts it together over a data directory of this machine, without
/// network, screen and clock.
class StartedProgram
{
public:
    /// @param support where the data directory lies in
    /// @param runtime where its socket is made
    StartedProgram(const QString& support, const QString& runtime)
        : m_machine(support),
          m_instance(InformationPackSync::liveDirectory(m_machine), m_machine,
                     environment(runtime)),
          m_fileManager(m_instance.standing() == ProgramInstance::Standing::First
                            ? std::optional(support)
                            : std::nullopt),
          m_model({.fileManager = m_fileManager,
                   .now = [] { return startTime; },
                   .seedHistory = InformationSeed::selectionHistory(),
                   .site = m_site,
                   .allowedHost = u"corvanite.example"_qs,
                   .runningVersion = u"1.0.0"_qs},
                  InformationContent::atStart(m_fileManager), repository())
    {
    }

    ProgramInstance::Standing standing() const { return m_instance.standing(); }
    FakeSiteClient& site() { return m_site; }
    InformationModel& model() { return m_model; }

private:
    // 2026-09-02T02:00:00Z.
    static constexpr double startTime = 1788314400;

    static QProcessEnvironment environment(const QString& runtime)
    {
        QProcessEnvironment environment;
        environment.insert(u"XDG_RUNTIME_DIR"_qs, runtime);
        return environment;
    }

    std::optional<InformationWorkspaceRepository> repository() const
    {
        auto live = InformationWorkspaceRepository::live(m_fileManager);
        return live ? std::optional(*std::move(live)) : std::nullopt;
    }

    const LocalFileManager m_machine;
    const ProgramInstance m_instance;
    const LocalFileManager m_fileManager;
    FakeSiteClient m_site;
    InformationModel m_model;
};
