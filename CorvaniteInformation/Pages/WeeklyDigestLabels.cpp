// SPDX-License-Identifier: Apache-2.0

#include "WeeklyDigestLabels.h"

#include "ArchiveDigest.h"
#include "ChineseDate.h"
#include "DayText.h"
#include "DecimalNumber.h"

#include <set>

QString WeeklyDigestLabels::dayLabel(const QString& day)
{
    const auto date = WeeklyDigest::utcMidnight(day);
    return date ? ChineseDate::monthDay(*date) + u' ' + ChineseDate::weekday(*date) : day;
}

QString WeeklyDigestLabels::shortRange(const QString& day)
{
    const auto pieces = DayText::pieces(day);
    if (!pieces) {
        return day;
    }
    const auto month = decimalNumber(pieces->at(1));
    const auto dayOfMonth = decimalNumber(pieces->at(2));
    return month && dayOfMonth ? u"%1月%2日"_qs.arg(*month).arg(*dayOfMonth) : day;
}

QString WeeklyDigestLabels::range(const QString& monday, const QString& sunday)
{
    return shortRange(monday) + u'–' + shortRange(sunday);
}

QString WeeklyDigestLabels::badge(bool isRunning)
{
    return isRunning ? u"本周 · 进行中"_qs : u"已定格"_qs;
}

QString WeeklyDigestLabels::summary(const WeeklyDigest::Week& week,
                                    const QHash<QString, InformationSignal>& index)
{
    qsizetype focusCount = 0;
    std::set<InformationLane> lanes;
    for (const SelectionDay& day : week.days) {
        focusCount += day.focusSignalIds.size();
        for (const InformationSignal& signal : ArchiveDigest::focusSignals(day, index)) {
            lanes.insert(signal.lane);
        }
    }
    return u"%1 天 · %2 条焦点 · 覆盖 %3 条泳道"_qs.arg(week.days.size())
        .arg(focusCount)
        .arg(lanes.size());
}
