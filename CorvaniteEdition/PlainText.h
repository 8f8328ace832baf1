// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringView>

/// Texts of feeds as people read them: one line, no markup.
namespace PlainText {

/// White space joined and trimmed.
QString oneLine(const QString& text);

/// The words of an HTML fragment: tags, comments, scripts and styles dropped, references to
/// characters resolved.
QString ofHtml(const QString& html);

/// The character of an HTML name such as "nbsp"; empty for a name that is not known.
QString namedCharacter(QStringView name);

} // namespace PlainText
