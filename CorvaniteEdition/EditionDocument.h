// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentKind.h"
#include "Finding.h"

#include <QByteArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QString>

#include <expected>

/// A document of an edition, as it lies on the disk. Its members are there to tell where something
/// stands and to be carried on unchanged; what they mean is for the core's decoders alone to say.
struct EditionDocument
{
    static constexpr QLatin1StringView packName{"information-pack.json"};
    static constexpr QLatin1StringView retiredName{"retired-signals.json"};
    static constexpr QLatin1StringView appVersionName{"information-app-version.json"};
    static constexpr QLatin1StringView registryName{"registry-sources.json"};

    /// As the curator gave it: a path.
    QString name;
    QByteArray bytes;
    DocumentKind kind;
    QJsonObject root;

    /// How long a document may be that the program downloads; a registry is only compiled in.
    static qsizetype maximumBytes(DocumentKind kind);

    /// Recognised by the name of its file, else by its members. The finding says why it is none.
    static std::expected<EditionDocument, Finding> read(const QString& name,
                                                        const QByteArray& bytes);

    friend bool operator==(const EditionDocument&, const EditionDocument&) = default;
};
