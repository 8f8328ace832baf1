// SPDX-License-Identifier: Apache-2.0

#include "EditionCheck.h"
#include "FuzzTarget.h"
#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "InformationSeed.h"
#include "InformationUpdateNotice.h"
#include "Invariant.h"

namespace {

const QString host = u"corvanite.example"_qs;

bool isDecoded(const EditionDocument& document)
{
    switch (document.kind) {
    case DocumentKind::Pack:
        return InformationPackSync::parse(document.bytes).has_value();
    case DocumentKind::RetiredList:
        return InformationPackCoding::decodeRetired(document.bytes).has_value();
    case DocumentKind::AppVersion:
        return InformationUpdateNotice::parse(document.bytes, host).has_value();
    case DocumentKind::Registry:
        break;
    }
    return InformationSeed::parseRegistry(document.bytes).has_value();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString name = u"document"_qs;
    const auto document = EditionDocument::read(name, inputBytes(data, size));
    if (!document) {
        invariant(!document.error().text.isEmpty(), "what is no document is told");
        return 0;
    }
    const auto findings = EditionCheck::check({*document}, host);
    invariant(isDecoded(*document) || EditionCheck::hasError(findings),
              "what the program refuses has an error");
    for (const Finding& finding : findings) {
        invariant(finding.document == name && finding.place.startsWith(u'$') &&
                      !finding.text.isEmpty(),
                  "a finding has a place and a text");
    }
    return 0;
}
