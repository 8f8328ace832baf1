// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DocumentKind.h"

#include <QByteArray>
#include <QJsonObject>

/// Writes the documents of an edition for people to read and edit: UTF-8, indented, the members in
/// the order of the format. What the format does not have is left out.
namespace EditionWriter {

/// @param root of a document that the core decodes
QByteArray document(DocumentKind kind, const QJsonObject& root);

} // namespace EditionWriter
