// SPDX-License-Identifier: Apache-2.0

#include "WellFormedText.h"

QString wellFormedText(const QString& text)
{
    QString wellFormed = text;
    for (qsizetype index = 0; index < wellFormed.size(); ++index) {
        const bool startsPair = wellFormed.at(index).isHighSurrogate() &&
                                index + 1 < wellFormed.size() &&
                                wellFormed.at(index + 1).isLowSurrogate();
        if (startsPair) {
            ++index;
        } else if (wellFormed.at(index).isSurrogate()) {
            wellFormed[index] = QChar(QChar::ReplacementCharacter);
        }
    }
    return wellFormed;
}
