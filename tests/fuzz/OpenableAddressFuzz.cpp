// SPDX-License-Identifier: Apache-2.0

#include "FuzzTarget.h"
#include "InformationSignal.h"
#include "Invariant.h"
#include "OpenableAddress.h"
#include "SampleSignal.h"

#include <algorithm>

namespace {

bool deceives(QChar character)
{
    switch (character.direction()) {
    case QChar::DirLRE:
    case QChar::DirLRO:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
    case QChar::DirPDI:
        return true;
    default:
        return character.category() == QChar::Other_Control;
    }
}

void checkReachability(const QString& text)
{
    InformationSignal signal = sampleSignal(u"a"_qs);
    signal.originalURL = text;
    const bool isBlocked = signal.originalReachability() == OriginalReachability::Blocked;
    const InformationRelatedSource elsewhere{u"elsewhere"_qs, u"https://elsewhere.example/"_qs};
    signal.relatedSources = {{u"itself"_qs, text}, elsewhere};
    const auto alternate = signal.reachableAlternate();
    invariant(alternate.has_value() == isBlocked, "a blocked original has an alternate");
    invariant(!alternate || signal.relatedSources.contains(*alternate),
              "an alternate is a related source");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(inputBytes(data, size));
    checkReachability(text);
    const auto address = OpenableAddress::url(text);
    invariant(OpenableAddress::from(text) == (address ? text : QString()),
              "a text that may be opened is shown as it is");
    if (!address) {
        return 0;
    }
    invariant(address->isValid() && (address->scheme() == u"https" || address->scheme() == u"http"),
              "what may be opened is a web address");
    invariant(!address->host().isEmpty() && address->userInfo().isEmpty(),
              "it names a host and no user");
    invariant(std::ranges::none_of(text, deceives), "it is what it looks like");
    // What the desktop hands to the browser.
    const QUrl opened(address->toString(QUrl::FullyEncoded), QUrl::StrictMode);
    invariant(opened.isValid() && opened.scheme() == address->scheme() &&
                  opened.host() == address->host() && opened.userInfo().isEmpty(),
              "the browser gets the same host");
    return 0;
}
