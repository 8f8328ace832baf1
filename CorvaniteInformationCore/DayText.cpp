// SPDX-License-Identifier: Apache-2.0

#include "DayText.h"

#include "DecimalNumber.h"
#include "PaddedNumber.h"

using namespace std::chrono;

namespace {

std::optional<int> numberIn(QStringView piece, qsizetype length)
{
    const auto number = piece.size() == length ? decimalNumber(piece) : std::nullopt;
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

} // namespace

QString DayText::of(sys_days day)
{
    const year_month_day date{day};
    QString text;
    appendPadded(text, int{date.year()}, 4);
    text.append(u'-');
    appendPadded(text, static_cast<int>(unsigned{date.month()}), 2);
    text.append(u'-');
    appendPadded(text, static_cast<int>(unsigned{date.day()}), 2);
    return text;
}

std::optional<sys_days> DayText::read(QStringView text)
{
    const auto found = pieces(text);
    if (!found) {
        return std::nullopt;
    }
    const auto year = numberIn(found->at(0), 4);
    const auto month = numberIn(found->at(1), 2);
    const auto day = numberIn(found->at(2), 2);
    if (!year || !month || !day || *month < 1 || *month > 12 || *day < 1 || *day > 31) {
        return std::nullopt;
    }
    const sys_days monthStart = std::chrono::year{*year} / *month / 1;
    return monthStart + days{*day - 1};
}

std::optional<std::array<QStringView, 3>> DayText::pieces(QStringView text)
{
    std::array<QStringView, 3> pieces;
    size_t count = 0;
    for (const QStringView piece : text.tokenize(u'-', Qt::SkipEmptyParts)) {
        if (count == pieces.size()) {
            return std::nullopt;
        }
        pieces.at(count++) = piece;
    }
    return count == pieces.size() ? std::optional(pieces) : std::nullopt;
}
