// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileWatch.h"
#include "InformationModel.h"
#include "InstanceFileManager.h"

#include <QProcessEnvironment>
#include <QString>

#include <functional>
#include <optional>

/// The program without its window, as it is put together at every start: the one right to the data
/// directory, the files, the content, the repository and the model over them.
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

    explicit ProgramParts(const Surroundings& surroundings);

    const ProgramInstance& instance() const { return m_instance; }
    /// Nothing where another process works with the data directory, and this one should end.
    InformationModel* model() { return m_model ? &*m_model : nullptr; }

    /// Has the model catch up with what is stored, without waiting to be told of a change. Only
    /// with a model.
    void catchUp();

private:
    const LocalFileManager m_machine;
    ProgramInstance m_instance;
    const InstanceFileManager m_fileManager;
    std::optional<FileWatch> m_workspaceWatch;
    std::optional<InformationModel> m_model;
};
