// SPDX-License-Identifier: Apache-2.0

#include "InformationProjection.h"
#include "Subject.h"

#include <QTest>

using namespace InformationProjection;

class InformationProjectionTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheUsualForm_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("seconds");

        QTest::newRow("plain") << u"2025-01-02T03:04:05Z"_qs << 1735787045.0;
        QTest::newRow("fraction") << u"2025-01-02T03:04:05.5Z"_qs << 1735787045.5;
        QTest::newRow("milliseconds") << u"2026-08-27T04:01:03.784Z"_qs << 1787803263.784;
        QTest::newRow("many digits")
            << u"2025-01-02T03:04:05.12345678901234567890Z"_qs << 1735787045.1234567;
        QTest::newRow("lower-case t") << u"2025-01-02t03:04:05Z"_qs << 1735787045.0;
        QTest::newRow("epoch") << u"1970-01-01T00:00:00Z"_qs << 0.0;
        QTest::newRow("before the epoch") << u"1969-12-31T23:59:59.5Z"_qs << -0.5;
        QTest::newRow("year 0") << u"0000-01-01T00:00:00Z"_qs << -62167219200.0;
        QTest::newRow("last year") << u"9999-12-31T23:59:59Z"_qs << 253402300799.0;
        QTest::newRow("leap second") << u"2016-12-31T23:59:60Z"_qs << 1483228800.0;
        QTest::newRow("leap day") << u"2000-02-29T12:00:00Z"_qs << 951825600.0;
        QTest::newRow("31 February is 3 March") << u"2025-02-31T00:00:00Z"_qs << 1740960000.0;
        QTest::newRow("31 February of a leap year is 2 March")
            << u"2024-02-31T00:00:00Z"_qs << 1709337600.0;
    }

    void readsTheUsualForm()
    {
        QFETCH(QString, text);
        QFETCH(double, seconds);

        const auto read = fastISOSeconds(text);
        QVERIFY(read);
        QVERIFY(qAbs(*read - seconds) < 1e-6);
        QCOMPARE(parseISODate(text), read);
    }

    void readsOffsetsMoreSlowly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("seconds");

        QTest::newRow("ahead") << u"2025-01-02T03:04:05+08:00"_qs << 1735758245.0;
        QTest::newRow("behind") << u"2025-01-02T03:04:05-05:30"_qs << 1735806845.0;
        QTest::newRow("none") << u"2025-01-02T03:04:05+00:00"_qs << 1735787045.0;
        QTest::newRow("farthest") << u"2025-01-02T03:04:05+23:59"_qs << 1735700705.0;
        QTest::newRow("last moment of a day") << u"2025-01-02T23:59:60+00:00"_qs << 1735862400.0;
        QTest::newRow("fraction") << u"2025-01-02T03:04:05.123-01:00"_qs << 1735790645.123;
    }

    void readsOffsetsMoreSlowly()
    {
        QFETCH(QString, text);
        QFETCH(double, seconds);

        QVERIFY(!fastISOSeconds(text));
        const auto read = parseISODate(text);
        QVERIFY(read);
        QVERIFY(qAbs(*read - seconds) < 1e-6);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("empty") << QString();
        QTest::newRow("word") << u"tomorrow"_qs;
        QTest::newRow("only Z") << u"Z"_qs;
        QTest::newRow("only seconds") << u"1735787045"_qs;
        QTest::newRow("day alone") << u"2025-01-02"_qs;
        QTest::newRow("no seconds") << u"2025-01-02T03:04Z"_qs;
        QTest::newRow("one digit of seconds") << u"2025-01-02T03:04:5Z"_qs;
        QTest::newRow("one digit of minutes and seconds") << u"2025-01-02T03:4:5Z"_qs;
        QTest::newRow("no zone") << u"2025-01-02T03:04:05"_qs;
        QTest::newRow("fraction without zone") << u"2025-01-02T03:04:05.5"_qs;
        QTest::newRow("lower-case z") << u"2025-01-02T03:04:05z"_qs;
        QTest::newRow("zone twice") << u"2025-01-02T03:04:05.5ZZ"_qs;
        QTest::newRow("zone name") << u"2025-01-02T03:04:05GMT"_qs;
        QTest::newRow("space for T") << u"2025-01-02 03:04:05Z"_qs;
        QTest::newRow("space before offset") << u"2025-01-02T03:04:05 +08:00"_qs;
        QTest::newRow("offset without colon") << u"2025-01-02T03:04:05+0800"_qs;
        QTest::newRow("offset without sign") << u"2025-01-02T03:04:05 08:00"_qs;
        QTest::newRow("offset with a dot") << u"2025-01-02T03:04:05+08.00"_qs;
        QTest::newRow("offset of hours") << u"2025-01-02T03:04:05+08"_qs;
        QTest::newRow("short offset") << u"2025-01-02T03:04:05+8:00"_qs;
        QTest::newRow("offset of a day") << u"2025-01-02T03:04:05+24:00"_qs;
        QTest::newRow("offset of an hour in minutes") << u"2025-01-02T03:04:05+00:60"_qs;
        QTest::newRow("offset with lower-case t") << u"2025-01-02t03:04:05+08:00"_qs;
        QTest::newRow("offset past the month's end") << u"2025-02-30T03:04:05+08:00"_qs;
        QTest::newRow("dot without digits") << u"2025-01-02T03:04:05.Z"_qs;
        QTest::newRow("dot without digits, offset") << u"2025-01-02T03:04:05.+08:00"_qs;
        QTest::newRow("two dots") << u"2025-01-02T03:04:05.1.2Z"_qs;
        QTest::newRow("comma") << u"2025-01-02T03:04:05,5Z"_qs;
        QTest::newRow("signed fraction") << u"2025-01-02T03:04:05.-1Z"_qs;
        QTest::newRow("full-width digit") << u"2025-01-02T03:04:0５Z"_qs;
        QTest::newRow("full-width fraction") << u"2025-01-02T03:04:05.１Z"_qs;
        QTest::newRow("signed year") << u"+025-01-02T03:04:05Z"_qs;
        QTest::newRow("five-digit year") << u"12025-01-02T03:04:05Z"_qs;
        QTest::newRow("slashes") << u"2025/01/02T03:04:05Z"_qs;
        QTest::newRow("dash after the hour") << u"2025-01-02T03-04:05Z"_qs;
        QTest::newRow("dash after the minute") << u"2025-01-02T03:04-05Z"_qs;
        QTest::newRow("month 0") << u"2025-00-02T03:04:05Z"_qs;
        QTest::newRow("month 13") << u"2025-13-02T03:04:05Z"_qs;
        QTest::newRow("day 0") << u"2025-01-00T03:04:05Z"_qs;
        QTest::newRow("day 32") << u"2025-01-32T03:04:05Z"_qs;
        QTest::newRow("hour 24") << u"2025-01-02T24:04:05Z"_qs;
        QTest::newRow("minute 60") << u"2025-01-02T03:60:05Z"_qs;
        QTest::newRow("second 61") << u"2025-01-02T03:04:61Z"_qs;
        QTest::newRow("week date") << u"2025-W01-4T03:04:05Z"_qs;
        QTest::newRow("character nought") << u"2025-01-02T03:04:05"_qs + QChar(0) + u'Z';
    }

    void refuses()
    {
        QFETCH(QString, text);

        QVERIFY(!fastISOSeconds(text));
        QVERIFY(!parseISODate(text));
        QVERIFY(!isoMilliseconds(text));
    }

    void millisecondsAreCutTowardZero_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("milliseconds");

        QTest::newRow("whole") << u"2025-01-02T03:04:05Z"_qs << qint64{1735787045000};
        QTest::newRow("half") << u"2025-01-02T03:04:05.5Z"_qs << qint64{1735787045500};
        QTest::newRow("cut") << u"2015-12-28T18:32:19.031967Z"_qs << qint64{1451327539031};
        QTest::newRow("cut before the epoch") << u"1969-12-31T23:59:59.9995Z"_qs << qint64{0};
        QTest::newRow("offset") << u"2025-01-02T03:04:05.123-01:00"_qs << qint64{1735790645123};
    }

    void millisecondsAreCutTowardZero()
    {
        QFETCH(QString, text);
        QFETCH(qint64, milliseconds);

        QCOMPARE(isoMilliseconds(text), std::optional(milliseconds));
    }

    void daysBeginAtSixteenHoursUtc_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("day");

        QTest::newRow("16:00") << qint64{1735747200000} << u"2025-01-02"_qs;
        QTest::newRow("just before") << qint64{1735747199999} << u"2025-01-01"_qs;
        QTest::newRow("epoch") << qint64{0} << u"1970-01-01"_qs;
        QTest::newRow("before the epoch") << qint64{-28800001} << u"1969-12-31"_qs;
        QTest::newRow("leap day") << qint64{1582991999999} << u"2020-02-29"_qs;
        QTest::newRow("year of five digits") << qint64{253402272000000} << u"10000-01-01"_qs;
    }

    void daysBeginAtSixteenHoursUtc()
    {
        QFETCH(qint64, milliseconds);
        QFETCH(QString, day);

        QCOMPARE(beijingDay(milliseconds), day);
    }
};

TEST_SUBJECT(InformationProjectionTimeTest)
#include "InformationProjectionTimeTest.moc"
