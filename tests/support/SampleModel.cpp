// SPDX-License-Identifier: Apache-2.0

#include "SampleModel.h"

InformationContent SampleModel::shown() const
{
    return {signals, retiredSignals, selectionDays, packAsOf};
}

void SampleModel::store(const InformationWorkspace& workspace)
{
    InformationWorkspaceRepository::live(files).value().save(workspace, files).value();
}

InformationWorkspace SampleModel::stored() const
{
    return InformationWorkspaceRepository::live(files).value().load(files).value();
}

std::unique_ptr<InformationModel> SampleModel::make(const InformationContent& content,
                                                    SiteClient& client,
                                                    const InformationFileManager& fileManager)
{
    return std::make_unique<InformationModel>(
        InformationModel::Collaborators{
            .fileManager = fileManager,
            .now = [this] { return now; },
            .seedHistory = seedHistory,
            .site = client,
            .runningVersion = runningVersion,
        },
        content,
        WorkspaceJournal(
            hasRepository ? std::optional(InformationWorkspaceRepository::live(fileManager).value())
                          : std::nullopt,
            fileManager));
}
