#include "PackFolder.h"

#include "PackDocuments.h"

QList<VectorTally> checkPackFolder(const QDir& folder)
{
    const QList<VectorTally> tallies{checkPackDocuments(folder)};
    for (const auto& tally : tallies) {
        tally.printCounts();
    }
    return tallies;
}
