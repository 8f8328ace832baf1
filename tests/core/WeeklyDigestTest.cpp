// SPDX-License-Identifier: Apache-2.0

#include "WeeklyDigest.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono;

namespace {

SelectionDay dayAt(const QString& date)
{
    return {date, {}, 0};
}

} // namespace

class WeeklyDigestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void daysAreThoseOfDayText()
    {
        QVERIFY(WeeklyDigest::utcMidnight(u"2025-02-31"_qs) == sys_days(2025y / March / 3));
        QVERIFY(!WeeklyDigest::utcMidnight(u"2025-1-5"_qs));
        QCOMPARE(WeeklyDigest::dayString(2025y / March / 4), u"2025-03-04"_qs);
    }

    void isoWeekdayCountsFromMonday()
    {
        const sys_days monday = 2025y / January / 6;
        for (int daysAfter = -7; daysAfter <= 7; ++daysAfter) {
            QCOMPARE(WeeklyDigest::isoWeekday(monday + days{daysAfter}), (daysAfter + 7) % 7);
        }
    }

    void weekOfDay_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<std::optional<QString>>("weekId");
        QTest::addColumn<std::optional<QString>>("monday");
        QTest::addColumn<std::optional<QString>>("sunday");

        const auto row = [](const QString& day, const QString& weekId, const QString& monday,
                            const QString& sunday) {
            QTest::newRow(qPrintable(day))
                << day << std::optional(weekId) << std::optional(monday) << std::optional(sunday);
        };
        row(u"2024-12-30"_qs, u"2025-W01"_qs, u"2024-12-30"_qs, u"2025-01-05"_qs);
        row(u"2025-01-05"_qs, u"2025-W01"_qs, u"2024-12-30"_qs, u"2025-01-05"_qs);
        row(u"2025-01-06"_qs, u"2025-W02"_qs, u"2025-01-06"_qs, u"2025-01-12"_qs);
        row(u"2021-01-03"_qs, u"2020-W53"_qs, u"2020-12-28"_qs, u"2021-01-03"_qs);
        row(u"2021-01-04"_qs, u"2021-W01"_qs, u"2021-01-04"_qs, u"2021-01-10"_qs);
        row(u"2016-01-03"_qs, u"2015-W53"_qs, u"2015-12-28"_qs, u"2016-01-03"_qs);
        row(u"2023-01-01"_qs, u"2022-W52"_qs, u"2022-12-26"_qs, u"2023-01-01"_qs);
        row(u"2027-01-03"_qs, u"2026-W53"_qs, u"2026-12-28"_qs, u"2027-01-03"_qs);
        row(u"2024-02-29"_qs, u"2024-W09"_qs, u"2024-02-26"_qs, u"2024-03-03"_qs);
        row(u"1970-01-01"_qs, u"1970-W01"_qs, u"1969-12-29"_qs, u"1970-01-04"_qs);
        row(u"9999-12-31"_qs, u"9999-W52"_qs, u"9999-12-27"_qs, u"10000-01-02"_qs);
        // Past the month's end: 3 March 2025.
        row(u"2025-02-31"_qs, u"2025-W10"_qs, u"2025-03-03"_qs, u"2025-03-09"_qs);
        for (const char* unread : {"", "2025-1-5", "2025-13-01", "bad"}) {
            QTest::newRow(*unread ? unread : "empty")
                << QString::fromLatin1(unread) << std::optional<QString>()
                << std::optional<QString>() << std::optional<QString>();
        }
    }

    void weekOfDay()
    {
        QFETCH(QString, day);
        QFETCH(std::optional<QString>, weekId);
        QFETCH(std::optional<QString>, monday);
        QFETCH(std::optional<QString>, sunday);

        QCOMPARE(WeeklyDigest::beijingWeekOfDay(day), weekId);
        QCOMPARE(WeeklyDigest::mondayOfWeek(day), monday);
        QCOMPARE(WeeklyDigest::sundayOfWeek(day), sunday);
    }

    void beijingToday_data()
    {
        QTest::addColumn<double>("now");
        QTest::addColumn<QString>("expected");

        QTest::newRow("epoch") << 0.0 << u"1970-01-01"_qs;
        QTest::newRow("last moment of the day") << 57599.9 << u"1970-01-01"_qs;
        QTest::newRow("midnight at UTC+8") << 57600.0 << u"1970-01-02"_qs;
        QTest::newRow("just before 1970 at UTC+8") << -28800.25 << u"1969-12-31"_qs;
        QTest::newRow("evening at UTC") << 1735747199.5 << u"2025-01-01"_qs;
        QTest::newRow("16:00 at UTC") << 1735747200.0 << u"2025-01-02"_qs;
    }

    void beijingToday()
    {
        QFETCH(double, now);
        QFETCH(QString, expected);

        QCOMPARE(WeeklyDigest::beijingToday(now), expected);
    }

    void noDaysMakeNoWeeks()
    {
        QCOMPARE(WeeklyDigest::weeks({}), QList<WeeklyDigest::Week>());
        QCOMPARE(WeeklyDigest::weeks({dayAt(u"2025-1-5"_qs), dayAt(u"2025-13-01"_qs)}),
                 QList<WeeklyDigest::Week>());
    }

    void newestWeekFirstAndOldestDayFirst()
    {
        const SelectionDay monday = dayAt(u"2025-01-06"_qs);
        const SelectionDay tuesday = dayAt(u"2025-01-07"_qs);
        const SelectionDay sunday = dayAt(u"2025-01-05"_qs);

        QCOMPARE(WeeklyDigest::weeks({tuesday, sunday, dayAt(u"2025-1-6"_qs), monday}),
                 (QList<WeeklyDigest::Week>{
                     {u"2025-W02"_qs, u"2025-01-06"_qs, u"2025-01-12"_qs, {monday, tuesday}},
                     {u"2025-W01"_qs, u"2024-12-30"_qs, u"2025-01-05"_qs, {sunday}}}));
    }

    void equalDatesKeepTheirOrder()
    {
        const SelectionDay first{u"2025-01-06"_qs, {u"b"_qs}, 2};
        const SelectionDay second{u"2025-01-06"_qs, {u"a"_qs}, 1};

        QCOMPARE(WeeklyDigest::weeks({first, second}).first().days, (QList{first, second}));
    }

    void daysOfAWeekAreOrderedByText()
    {
        const SelectionDay rolledOver = dayAt(u"2025-02-31"_qs);
        const SelectionDay monday = dayAt(u"2025-03-03"_qs);

        QCOMPARE(WeeklyDigest::weeks({monday, rolledOver}).first().days,
                 (QList{rolledOver, monday}));
    }

    void aWeekAcrossTheYearsIsOne()
    {
        const SelectionDay lastOfYear = dayAt(u"2024-12-31"_qs);
        const SelectionDay firstOfYear = dayAt(u"2025-01-01"_qs);

        const auto weeks = WeeklyDigest::weeks({firstOfYear, lastOfYear});
        QCOMPARE(weeks.size(), 1);
        QCOMPARE(weeks.first().days, (QList{lastOfYear, firstOfYear}));
    }
};

TEST_SUBJECT(WeeklyDigestTest)
#include "WeeklyDigestTest.moc"
