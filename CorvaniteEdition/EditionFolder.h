// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionDocument.h"

#include <QList>

#include <optional>

/// The documents of one edition in a folder, under the names that the site has for them.
struct EditionFolder
{
    QString path;
    std::optional<EditionDocument> pack;
    std::optional<EditionDocument> retired;
    std::optional<EditionDocument> appVersion;

    /// A document that is not there is missing; one that cannot be read is a finding.
    static std::expected<EditionFolder, Finding> read(const QString& path);

    /// Those that are there.
    QList<EditionDocument> documents() const;
};
