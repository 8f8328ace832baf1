// SPDX-License-Identifier: Apache-2.0

#include "PrintableText.h"

#include "WellFormedText.h"

namespace {

// With line ends as a line feed.
QString printable(const QString& text)
{
    QString printed = wellFormedText(text);
    printed.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar& character : printed) {
        if (character == u'\r' || character.category() == QChar::Separator_Line ||
            character.category() == QChar::Separator_Paragraph) {
            character = u'\n';
        } else if (character == u'\t') {
            character = u' ';
        } else if (character != u'\n' && character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return printed;
}

} // namespace

QString PrintableText::oneLine(const QString& text)
{
    return printable(text).replace(u'\n', u' ');
}

QStringList PrintableText::lines(const QString& text)
{
    QStringList lines = printable(text).split(u'\n');
    while (lines.size() > 1 && lines.last().trimmed().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}
