// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "InformationWorkspace.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// What the reader keeps as a document that goes on without the program, described in
/// docs/formats/kept-export.md.
namespace KeptExport {

enum class Format {
    Markdown,
    Json,
    /// A page that browsers import as bookmarks.
    Bookmarks
};

/// By the ending of the file's name, in either letter case: md; json; html or htm.
std::optional<Format> formatOf(const QString& fileName);

/// UTF-8. The same for the same workspace and signals, at whatever time.
/// @param signals all that are known, retired ones included, unique by id
QByteArray document(Format format, const InformationWorkspace& workspace,
                    const QList<InformationSignal>& signals);

} // namespace KeptExport
