// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDayTexts.h"

#include "ArchiveDateLabels.h"
#include "CodePointOrder.h"
#include "WeeklyDigest.h"
#include "WeeklyDigestLabels.h"

namespace {

QString weekLink(const QString& date)
{
    const auto monday = WeeklyDigest::mondayOfWeek(date);
    const auto sunday = WeeklyDigest::sundayOfWeek(date);
    return monday && sunday
               ? u"在周报里看 %1 这一周"_qs.arg(WeeklyDigestLabels::range(*monday, *sunday))
               : QString();
}

} // namespace

ArchiveDayTexts ArchiveDayTexts::from(const SelectionDay& day,
                                      const QList<SelectionDay>& daysNewestFirst)
{
    ArchiveDayTexts texts;
    texts.title = ArchiveDateLabels::archiveLongLabel(day.date) + u" 的精选"_qs;
    texts.lead =
        u"这一天 Corvanite 在册 %1 条信号，先看 %2 条焦点。本页是不可变归档：记录当时的选择，方便对照后来的变化。"_qs
            .arg(QString::number(day.totalShown), QString::number(day.focusSignalIds.size()));
    texts.weekLink = ::weekLink(day.date);
    texts.count = u"当日共 %1 条在册信号"_qs.arg(day.totalShown);

    for (const auto& other : daysNewestFirst) {
        if (codePointLess(day.date, other.date)) {
            texts.nextDate = other.date;
            texts.nextText = u"后一天 · "_qs + ArchiveDateLabels::archiveMonthDayLabel(other.date);
        } else if (codePointLess(other.date, day.date)) {
            texts.previousDate = other.date;
            texts.previousText =
                u"前一天 · "_qs + ArchiveDateLabels::archiveMonthDayLabel(other.date);
            break;
        }
    }
    return texts;
}
