// SPDX-License-Identifier: Apache-2.0

#include "RailLineRow.h"

#include "RunningNumber.h"

namespace {

bool isLatin(QChar character)
{
    return character.script() == QChar::Script_Latin;
}

// A line of the list is short, and a hyphen in a Latin word no place to break it.
QString withWholeWords(QString text)
{
    constexpr QChar nonBreakingHyphen(0x2011);
    for (qsizetype i = 1; i + 1 < text.size(); ++i) {
        if (text.at(i) == u'-' && isLatin(text.at(i - 1)) && isLatin(text.at(i + 1))) {
            text[i] = nonBreakingHyphen;
        }
    }
    return text;
}

} // namespace

RailLineRow RailLineRow::from(const InformationSignal& signal, bool seen, int position)
{
    RailLineRow row;
    row.signalId = signal.id;
    row.position = position;
    row.signalTitle = signal.title;
    row.seen = seen;
    return row;
}

QString RailLineRow::number() const
{
    return runningNumber(position + 1);
}

QString RailLineRow::title() const
{
    return withWholeWords(signalTitle);
}

QString RailLineRow::badge() const
{
    return seen ? u"已看过"_qs : u"新"_qs;
}

QString RailLineRow::name() const
{
    return u"打开脉络："_qs + signalTitle;
}
