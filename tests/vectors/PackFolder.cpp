#include "PackFolder.h"

QList<VectorTally> checkPackFolder(const QDir& folder)
{
    QList<VectorTally> tallies;
    VectorTally documents(folder.path());
    tallies.append(documents);
    for (const auto& tally : tallies) {
        tally.printCounts();
    }
    return tallies;
}
