// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <array>
#include <expected>
#include <optional>

/// The newest build of the application, as the product site announces it. The document's form is
/// described in docs/formats/app-version.md.
struct InformationUpdateNotice
{
    struct ParseError
    {
        enum class Kind { WrongSchemaVersion, MissingField, InvalidVersion, UntrustedDownloadURL };

        Kind kind;
        /// The schema found, the field's key, or the download link; nothing where there is none.
        std::optional<QString> payload;

        friend bool operator==(const ParseError&, const ParseError&) = default;
    };

    static constexpr QLatin1StringView expectedSchemaVersion{
        "corvanite-information-app-version-v1"};

    QString version;
    /// Empty when the document has none.
    QString build;
    /// https on the product site's host.
    QUrl downloadURL;
    /// As published, never empty.
    QString sha256;
    std::optional<qint64> sizeBytes;
    /// Empty when the document has none.
    QString notesZH;

    /// @param allowedHost the product site's host name
    static std::expected<InformationUpdateNotice, ParseError> parse(const QByteArray& document,
                                                                    const QString& allowedHost);

    /// Major, minor and patch; nothing for a version that does not have all three in numbers.
    static std::optional<std::array<qint64, 3>> versionComponents(const QString& version);

    /// Whether both versions have components and the candidate's are greater.
    static bool isNewer(const QString& candidate, const QString& current);

    friend bool operator==(const InformationUpdateNotice&,
                           const InformationUpdateNotice&) = default;
};

/// Hashes every field, as equality compares every field.
size_t qHash(const InformationUpdateNotice& notice, size_t seed = 0) noexcept;
