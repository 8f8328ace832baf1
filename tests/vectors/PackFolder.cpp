// SPDX-License-Identifier: Apache-2.0

#include "PackFolder.h"

#include "PackDocuments.h"
#include "ScenarioFolder.h"
#include "WorkspaceFolder.h"

QList<VectorTally> checkPackFolder(const QDir& folder)
{
    const QList<VectorTally> tallies{
        checkPackDocuments(folder),
        checkWorkspaceFolder(QDir(folder.filePath(u"workspaces"_qs))),
        checkScenarioFolder(QDir(folder.filePath(u"scenarios"_qs))),
    };
    for (const auto& tally : tallies) {
        tally.printCounts();
    }
    return tallies;
}
