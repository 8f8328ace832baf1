// SPDX-License-Identifier: Apache-2.0

#include "FirstCharacters.h"

#include <QTextBoundaryFinder>

QString firstCharacters(const QString& text, qsizetype count)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (count > 0 && finder.toNextBoundary() >= 0) {
        --count;
    }
    return count > 0 ? text : text.left(finder.position());
}
