// SPDX-License-Identifier: Apache-2.0

// A day text a line.

#include "ArchiveDateLabels.h"
#include "ArchiveDayTexts.h"
#include "ArchiveDigest.h"
#include "CodePointOrder.h"
#include "FuzzTarget.h"
#include "Invariant.h"
#include "WeeklyDigest.h"
#include "WeeklyDigestLabels.h"
#include "WorkbenchDateLabels.h"

#include <QDate>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qsizetype mostDays = 50;

QString numbered(const QDate& date, const QString& form)
{
    return date.toString(form);
}

QString chineseWeekday(const QDate& date)
{
    return u"星期"_qs + u"一二三四五六日"_qs.at(date.dayOfWeek() - 1);
}

// The day that a text of four, two and two digits stands for; past a month's end it rolls over.
QDate independentDay(const QString& text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"-*([0-9]{4})-+(0[1-9]|1[0-2])-+(0[1-9]|[12][0-9]|3[01])-*"));
    const auto match = pattern.match(text);
    const QDate monthStart(match.captured(1).toInt(), match.captured(2).toInt(), 1);
    return monthStart.addDays(match.captured(3).toInt() - 1);
}

void checkUnreadable(const QString& text)
{
    invariant(!WeeklyDigest::beijingWeekOfDay(text) && !WeeklyDigest::mondayOfWeek(text) &&
                  !WeeklyDigest::sundayOfWeek(text),
              "what is no day is in no week");
    invariant(ArchiveDateLabels::archiveMonthDayLabel(text) == text &&
                  ArchiveDateLabels::archiveWeekdayLabel(text) == text &&
                  ArchiveDateLabels::archiveLongLabel(text) == text &&
                  WeeklyDigestLabels::dayLabel(text) == text,
              "what is no day is shown as it stands");
}

void checkAgainst(const QDate& date, const QString& text)
{
    int weekYear = 0;
    const int week = date.weekNumber(&weekYear);
    const QDate monday = date.addDays(1 - date.dayOfWeek());
    // QDate writes a year of at most four digits, and has no year 0.
    if (monday.year() < 1 || monday.addDays(6).year() > 9999) {
        return;
    }
    const QString dayForm = u"yyyy-MM-dd"_qs;
    invariant(WeeklyDigest::beijingWeekOfDay(text) ==
                  QString::asprintf("%04d-W%02d", weekYear, week),
              "the week is the one of ISO 8601");
    invariant(WeeklyDigest::mondayOfWeek(text) == numbered(monday, dayForm) &&
                  WeeklyDigest::sundayOfWeek(text) == numbered(monday.addDays(6), dayForm),
              "a week runs from Monday to Sunday");

    const QString monthDay = numbered(date, u"M月d日"_qs);
    invariant(ArchiveDateLabels::archiveMonthDayLabel(text) == monthDay &&
                  ArchiveDateLabels::archiveWeekdayLabel(text) == chineseWeekday(date) &&
                  ArchiveDateLabels::archiveLongLabel(text) == numbered(date, u"yyyy年M月d日"_qs) &&
                  WeeklyDigestLabels::dayLabel(text) == monthDay + u' ' + chineseWeekday(date),
              "labels name the day of the calendar");
    const bool isCanonical = numbered(date, dayForm) == text;
    invariant(WorkbenchDateLabels::label(text) == (isCanonical ? monthDay : text),
              "the workbench names a day that is one, and shows any other text as it stands");
}

void checkDay(const QString& text)
{
    const auto midnight = WeeklyDigest::utcMidnight(text);
    const QDate independent = independentDay(text);
    invariant(!independent.isValid() || midnight, "a day that others read is read");
    if (!midnight) {
        checkUnreadable(text);
        return;
    }
    const QString canonical = WeeklyDigest::dayString(*midnight);
    invariant(WeeklyDigest::utcMidnight(canonical) == midnight,
              "a day's own text reads as the day");
    if (independent.isValid()) {
        invariant(independent.toString(u"yyyy-MM-dd") == canonical,
                  "a day is the one that others read");
        checkAgainst(independent, text);
    }
}

void checkHistory(const QList<SelectionDay>& days)
{
    const auto newestFirst = ArchiveDigest::daysNewestFirst(days);
    for (const auto& day : newestFirst) {
        const auto texts = ArchiveDayTexts::from(day, newestFirst);
        invariant(texts.previousText.isEmpty() || codePointLess(texts.previousDate, day.date),
                  "the previous day is earlier");
        invariant(texts.nextText.isEmpty() || codePointLess(day.date, texts.nextDate),
                  "the next day is later");
        invariant(texts.weekLink.isEmpty() == !WeeklyDigest::beijingWeekOfDay(day.date),
                  "a day that is in a week leads there");
    }

    QString laterWeek;
    qsizetype daysInWeeks = 0;
    for (const auto& week : WeeklyDigest::weeks(days)) {
        invariant(laterWeek.isEmpty() || codePointLess(week.weekId, laterWeek),
                  "weeks are in order, newest first");
        laterWeek = week.weekId;
        daysInWeeks += week.days.size();
        for (const auto& day : week.days) {
            invariant(WeeklyDigest::beijingWeekOfDay(day.date) == week.weekId,
                      "a day is in its own week");
        }
    }
    invariant(daysInWeeks ==
                  std::ranges::count_if(days,
                                        [](const SelectionDay& day) {
                                            return WeeklyDigest::utcMidnight(day.date).has_value();
                                        }),
              "every day that reads is in one week");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QList<SelectionDay> days;
    for (const auto& line : QString::fromUtf8(inputBytes(data, size)).split(u'\n')) {
        checkDay(line);
        days.append({line, {}, 0});
    }
    // Each day is compared with each.
    checkHistory(days.first(std::min(days.size(), mostDays)));
    return 0;
}
