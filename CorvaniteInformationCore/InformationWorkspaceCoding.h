// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationWorkspace.h"

#include <QByteArray>
#include <QString>

#include <expected>

/// The JSON form of the workspace, described in docs/formats/workspace.md.
namespace InformationWorkspaceCoding {

/// What made a document no workspace, in words a reader understands.
struct DecodingError
{
    QString localizedDescription;

    friend bool operator==(const DecodingError&, const DecodingError&) = default;
};

/// Missing keys take their defaults (a missing "version" is 1) and lists are cleaned; versions are
/// neither checked nor migrated.
std::expected<InformationWorkspace, DecodingError> decode(const QByteArray& document);

/// Pretty-printed, keys sorted by code point, slashes not escaped.
QByteArray encode(const InformationWorkspace& workspace);

} // namespace InformationWorkspaceCoding
