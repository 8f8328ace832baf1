// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileWatch.h"
#include "InformationContent.h"
#include "InformationModel.h"
#include "InstanceFileManager.h"
#include "WorkspaceJournal.h"

#include <QProcessEnvironment>
#include <QString>

#include <functional>
#include <future>
#include <optional>

/// The program without its window, as it is put together at every start: the one right to the data
/// directory, the files, the content, the repository and the model over them. What is stored is
/// read on a thread of its own, until the model is asked for.
class ProgramParts
{
public:
    struct Surroundings
    {
        QProcessEnvironment environment;
        /// Seconds since 1970-01-01T00:00:00Z.
        std::function<double()> now;
        /// Outlives the parts.
        SiteClient& site;
        /// The program's; empty where it is not known.
        QString version;
    };

    explicit ProgramParts(Surroundings surroundings);

    const ProgramInstance& instance() const { return m_instance; }
    /// Nothing where another process works with the data directory, and this one should end.
    InformationModel* model();

    /// Has the model catch up with what is stored, without waiting to be told of a change. Only
    /// with a model.
    void catchUp();

private:
    /// What the model begins with.
    struct Stored
    {
        InformationContent content;
        WorkspaceJournal journal;
    };

    void makeModel(Stored stored);

    const Surroundings m_surroundings;
    const LocalFileManager m_machine;
    ProgramInstance m_instance;
    const InstanceFileManager m_fileManager;
    std::optional<FileWatch> m_workspaceWatch;
    std::future<Stored> m_stored;
    std::optional<InformationModel> m_model;
};
