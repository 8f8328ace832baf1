// SPDX-License-Identifier: Apache-2.0

#include "FuzzTarget.h"
#include "InformationUpdateNotice.h"
#include "Invariant.h"

namespace {

using Kind = InformationUpdateNotice::ParseError::Kind;

const QString host = u"corvanite.example"_qs;

void checkError(const InformationUpdateNotice::ParseError& error)
{
    switch (error.kind) {
    case Kind::WrongSchemaVersion:
        invariant(error.payload != InformationUpdateNotice::expectedSchemaVersion,
                  "the schema that is refused is another one");
        return;
    case Kind::MissingField:
        invariant(error.payload == u"version"_qs || error.payload == u"sha256"_qs,
                  "version and sha256 are the required fields");
        return;
    case Kind::UntrustedDownloadURL:
        invariant(error.payload.has_value(), "the refused link is named");
        return;
    case Kind::InvalidVersion:
        break;
    }
    invariant(false, "a version is never refused as invalid");
}

void checkVersion(const QString& version)
{
    const auto components = InformationUpdateNotice::versionComponents(version);
    invariant(components.has_value(), "an accepted version has components");
    const QString current = u"1.2.3"_qs;
    const std::array<qint64, 3> currentComponents{1, 2, 3};
    invariant(InformationUpdateNotice::isNewer(version, current) ==
                      (*components > currentComponents) &&
                  InformationUpdateNotice::isNewer(current, version) ==
                      (currentComponents > *components) &&
                  !InformationUpdateNotice::isNewer(version, version),
              "versions are in one order");
}

void checkLink(const QUrl& link)
{
    invariant(link.isValid() && link.scheme() == u"https" && link.host() == host,
              "the download lies on the site, over https");
    const QUrl opened(link.toString(QUrl::FullyEncoded), QUrl::StrictMode);
    invariant(opened.isValid() && opened.scheme() == u"https" && opened.host() == host,
              "the address that the browser gets lies there too");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto notice = InformationUpdateNotice::parse(inputBytes(data, size), host);
    if (!notice) {
        checkError(notice.error());
        return 0;
    }
    checkVersion(notice->version);
    checkLink(notice->downloadURL);
    invariant(!notice->sha256.isEmpty(), "there is a checksum");
    return 0;
}
