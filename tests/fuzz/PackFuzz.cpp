// SPDX-License-Identifier: Apache-2.0

#include "ContentChecks.h"
#include "FuzzTarget.h"
#include "InformationSeed.h"
#include "Invariant.h"
#include "MemoryFileManager.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document = inputBytes(data, size);
    const auto snapshot = InformationPackSync::parse(document);

    MemoryFileManager files;
    files.files.insert(u"/support/Corvanite/Information/information-pack.json"_qs, document);
    const auto seed = InformationContent::seed();
    const bool isNewer = snapshot && snapshot->isNewer(InformationSeed::asOf());
    invariant(InformationContent::atStart(files) ==
                  (isNewer ? seed.replacedBy(*snapshot, std::nullopt) : seed),
              "a stored pack counts when it is valid and newer than the compiled-in edition");
    if (!snapshot) {
        return 0;
    }
    invariant(snapshot->schemaVersion == InformationPackSync::expectedSchemaVersion &&
                  !snapshot->signals.isEmpty(),
              "a pack is of the one schema and not empty");
    checkContent(seed.replacedBy(*snapshot, std::nullopt));
    return 0;
}
