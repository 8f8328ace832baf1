// SPDX-License-Identifier: Apache-2.0

#include "ContentChecks.h"
#include "FuzzTarget.h"
#include "InformationPackCoding.h"
#include "Invariant.h"
#include "MemoryFileManager.h"
#include "SampleSignal.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document = inputBytes(data, size);
    const auto retired = InformationPackCoding::decodeRetired(document);

    const QString directory = u"/support/Corvanite/Information"_qs;
    const MemoryFileManager files;
    invariant(InformationPackSync::saveRetiredSignals(document, directory, files).has_value() &&
                  InformationPackSync::loadRetiredSignals(directory, files) == retired,
              "a stored list loads as it was read");

    const InformationContent live({sampleSignal(u"a"_qs), sampleSignal(u"b"_qs)},
                                  {sampleSignal(u"c"_qs)}, {}, u"2026-09-02T01:00:00.000Z"_qs);
    const InformationPackSync::Snapshot snapshot{
        QString(InformationPackSync::expectedSchemaVersion),
        live.packAsOf(),
        2,
        live.signals(),
        {}};
    const auto content = live.replacedBy(snapshot, retired);
    invariant(content.signals() == live.signals(), "a retired list leaves the live signals alone");
    if (!retired) {
        invariant(content == live, "a list that does not read changes nothing");
        return 0;
    }
    for (const auto& signal : *retired) {
        invariant(idsOf(content.signals() + content.retiredSignals()).contains(signal.id),
                  "every retired signal can be found by its id");
    }
    checkContent(content);
    return 0;
}
