// SPDX-License-Identifier: Apache-2.0

#include "InformationUpdateNotice.h"

#include "DecimalNumber.h"
#include "FieldHash.h"
#include "JsonReader.h"
#include "NumericCharacter.h"
#include "UriComponents.h"

#include <QStringList>

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

using ParseError = InformationUpdateNotice::ParseError;

namespace Key {
constexpr std::string_view schemaVersion = "schemaVersion";
constexpr std::string_view version = "version";
constexpr std::string_view build = "build";
constexpr std::string_view downloadUrl = "downloadUrl";
constexpr std::string_view sha256 = "sha256";
constexpr std::string_view sizeBytes = "sizeBytes";
constexpr std::string_view notes = "notes";

constexpr std::string_view zh = "zh";
constexpr std::string_view en = "en";
} // namespace Key

// The document as it stands.
struct Document
{
    std::optional<QString> schemaVersion;
    std::optional<QString> version;
    std::optional<QString> build;
    std::optional<QString> downloadUrl;
    std::optional<QString> sha256;
    std::optional<qint64> sizeBytes;
    std::optional<QString> notesZh;
};

std::optional<Document> decode(const QByteArray& bytes)
{
    JsonReader reader(bytes);
    const JsonReader::Object root = reader.root();
    Document document{
        .schemaVersion = root.optionalString(Key::schemaVersion),
        .version = root.optionalString(Key::version),
        .build = root.optionalString(Key::build),
        .downloadUrl = root.optionalString(Key::downloadUrl),
        .sha256 = root.optionalString(Key::sha256),
        .sizeBytes = root.optionalInteger(Key::sizeBytes),
        .notesZh = std::nullopt,
    };
    if (const auto notes = root.optionalObject(Key::notes)) {
        document.notesZh = notes->optionalString(Key::zh);
        // Not shown, but a text like the other.
        notes->optionalString(Key::en);
    }
    return reader.error() ? std::nullopt : std::optional(std::move(document));
}

ParseError missing(std::string_view key)
{
    return {ParseError::Kind::MissingField, QString(QLatin1StringView(key))};
}

// Compared as text: a letter's case or an escape makes another host.
bool isTrusted(const QString& downloadUrl, const QString& allowedHost)
{
    const UriComponents components = UriComponents::of(downloadUrl);
    const auto authority = components.authorityParts();
    return components.scheme == u"https"_qs && authority && authority->host == allowedHost &&
           QUrl(downloadUrl, QUrl::StrictMode).isValid();
}

QString withoutBuildMetadata(const QString& version)
{
    const qsizetype plus = version.indexOf(u'+');
    if (plus < 0) {
        return version;
    }
    const QString before = version.first(plus);
    const QString after = version.sliced(plus + 1);
    if (!before.isEmpty()) {
        return before;
    }
    return after.isEmpty() ? version : after;
}

bool isNumeric(const QString& text)
{
    return !text.isEmpty() && std::ranges::all_of(text.toUcs4(), isNumericCharacter);
}

} // namespace

std::expected<InformationUpdateNotice, ParseError>
InformationUpdateNotice::parse(const QByteArray& document, const QString& allowedHost)
{
    const auto decoded = decode(document);
    if (!decoded) {
        return std::unexpected(ParseError{ParseError::Kind::WrongSchemaVersion, std::nullopt});
    }
    if (decoded->schemaVersion != expectedSchemaVersion) {
        return std::unexpected(
            ParseError{ParseError::Kind::WrongSchemaVersion, decoded->schemaVersion});
    }
    if (!versionComponents(decoded->version.value_or(QString()))) {
        return std::unexpected(missing(Key::version));
    }
    const QString downloadUrl = decoded->downloadUrl.value_or(QString());
    if (!isTrusted(downloadUrl, allowedHost)) {
        return std::unexpected(ParseError{ParseError::Kind::UntrustedDownloadURL, downloadUrl});
    }
    if (decoded->sha256.value_or(QString()).isEmpty()) {
        return std::unexpected(missing(Key::sha256));
    }
    return InformationUpdateNotice{
        .version = *decoded->version,
        .build = decoded->build.value_or(QString()),
        .downloadURL = QUrl(downloadUrl, QUrl::StrictMode),
        .sha256 = *decoded->sha256,
        .sizeBytes = decoded->sizeBytes,
        .notesZH = decoded->notesZh.value_or(QString()),
    };
}

std::optional<std::array<qint64, 3>>
InformationUpdateNotice::versionComponents(const QString& version)
{
    const QStringList pieces = withoutBuildMetadata(version).split(u'.');
    if (pieces.size() < 3) {
        return std::nullopt;
    }
    std::array<qint64, 3> components;
    for (size_t index = 0; index < components.size(); ++index) {
        const QString& piece = pieces[static_cast<qsizetype>(index)];
        if (!isNumeric(piece)) {
            return std::nullopt;
        }
        // Numerals that are no ASCII digits count as nothing.
        components[index] = decimalNumber(piece).value_or(0);
    }
    return components;
}

bool InformationUpdateNotice::isNewer(const QString& candidate, const QString& current)
{
    const auto candidateComponents = versionComponents(candidate);
    const auto currentComponents = versionComponents(current);
    return candidateComponents && currentComponents && *candidateComponents > *currentComponents;
}

size_t qHash(const InformationUpdateNotice& notice, size_t seed) noexcept
{
    return FieldHash::hash(seed, notice.version, notice.build, notice.downloadURL, notice.sha256,
                           notice.sizeBytes, notice.notesZH);
}
