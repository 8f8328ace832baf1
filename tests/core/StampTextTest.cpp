// SPDX-License-Identifier: Apache-2.0

#include "StampText.h"
#include "Subject.h"

#include <QTest>

using namespace std::chrono;

class StampTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAndReads_data()
    {
        QTest::addColumn<sys_seconds>("time");
        QTest::addColumn<QString>("text");

        const auto row = [](sys_seconds time, const QString& text) {
            QTest::newRow(qPrintable(text)) << time << text;
        };
        row(sys_seconds{}, u"1970-01-01T00:00:00Z"_qs);
        row(sys_seconds{-1s}, u"1969-12-31T23:59:59Z"_qs);
        row(sys_days{2026y / September / 1} + 1h + 2min + 3s, u"2026-09-01T01:02:03Z"_qs);
        row(sys_days{2024y / February / 29} + 23h, u"2024-02-29T23:00:00Z"_qs);
        row(sys_days{0y / January / 1}, u"0000-01-01T00:00:00Z"_qs);
        row(sys_days{9999y / December / 31} + 86399s, u"9999-12-31T23:59:59Z"_qs);
    }

    void writesAndReads()
    {
        QFETCH(sys_seconds, time);
        QFETCH(QString, text);

        QCOMPARE(StampText::of(time), text);
        QVERIFY(StampText::read(text) == time);
    }

    void readsOnlyWhatItWrites_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("empty") << QString();
        QTest::newRow("day alone") << u"2026-09-01"_qs;
        QTest::newRow("fraction") << u"2026-09-01T01:02:03.5Z"_qs;
        QTest::newRow("fraction of nought") << u"2026-09-01T01:02:03.0Z"_qs;
        QTest::newRow("offset") << u"2026-09-01T01:02:03+00:00"_qs;
        QTest::newRow("small t") << u"2026-09-01t01:02:03Z"_qs;
        QTest::newRow("small z") << u"2026-09-01T01:02:03z"_qs;
        QTest::newRow("31 February") << u"2026-02-31T01:02:03Z"_qs;
        QTest::newRow("29 February of a common year") << u"2026-02-29T01:02:03Z"_qs;
        QTest::newRow("day 0") << u"2026-09-00T01:02:03Z"_qs;
        QTest::newRow("month 0") << u"2026-00-01T01:02:03Z"_qs;
        QTest::newRow("month 13") << u"2026-13-01T01:02:03Z"_qs;
        QTest::newRow("hour 24") << u"2026-09-01T24:00:00Z"_qs;
        QTest::newRow("minute 60") << u"2026-09-01T01:60:03Z"_qs;
        QTest::newRow("second 60") << u"2026-09-01T01:02:60Z"_qs;
        QTest::newRow("something before") << u" 2026-09-01T01:02:03Z"_qs;
        QTest::newRow("something behind") << u"2026-09-01T01:02:03Z "_qs;
    }

    void readsOnlyWhatItWrites()
    {
        QFETCH(QString, text);

        QVERIFY(!StampText::read(text));
    }

    void everyCharacterCounts()
    {
        const QString stamp = u"2026-09-01T01:02:03Z"_qs;
        for (qsizetype at = 0; at < stamp.size(); ++at) {
            for (const QChar other : u"/:-TZ ٣１"_qs) {
                QString text = stamp;
                text[at] = other;
                QCOMPARE(StampText::read(text).has_value(), text == stamp);
            }
        }
    }
};

TEST_SUBJECT(StampTextTest)
#include "StampTextTest.moc"
