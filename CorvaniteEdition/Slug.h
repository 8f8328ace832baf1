// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Pieces of ids: ASCII letters in lower case and digits, joined by hyphens.
namespace Slug {

/// Empty for a text without such characters.
QString of(const QString& text);

/// Eight hexadecimal digits that stand for the text.
QString digest(const QString& text);

} // namespace Slug
