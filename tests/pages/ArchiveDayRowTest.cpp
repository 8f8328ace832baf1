// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDayRow.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

class ArchiveDayRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheDaysFocus()
    {
        auto shift = sampleSignal(u"shift"_qs);
        shift.lane = InformationLane::PlatformShift;

        const auto slices =
            ArchiveDayRow::slicesOf({u"2026-08-26"_qs, {u"shift"_qs, u"product"_qs}, 27},
                                    {shift, sampleSignal(u"product"_qs)}, {});

        QCOMPARE(slices.size(), 1);
        const auto& row = slices.first();
        QVERIFY(row.opensDay);
        QVERIFY(row.closesDay);
        QCOMPARE(row.date, u"2026-08-26"_qs);
        QCOMPARE(row.monthDay, u"8月26日"_qs);
        QCOMPARE(row.weekday, u"星期三"_qs);
        QCOMPARE(row.closing, u"当日共 27 条 · 先看 2 条 · 查看这一天 →"_qs);
        QCOMPARE(row.name, u"查看8月26日的完整精选"_qs);

        QCOMPARE(row.entries.size(), 2);
        QCOMPARE(row.entries[0].number, u"01"_qs);
        QCOMPARE(row.entries[0].title, u"Title of shift"_qs);
        QCOMPARE(row.entries[0].laneName, u"平台变化"_qs);
        QCOMPARE(row.entries[1].number, u"02"_qs);
        QCOMPARE(row.entries[1].laneName, u"产品雷达"_qs);
    }

    void countsEveryFocusIdAndNumbersThoseStillThere()
    {
        const auto row = ArchiveDayRow::slicesOf({u"2026-08-26"_qs, {u"gone"_qs, u"product"_qs}, 0},
                                                 {sampleSignal(u"product"_qs)}, {})
                             .first();

        QCOMPARE(row.closing, u"当日共 0 条 · 先看 2 条 · 查看这一天 →"_qs);
        QCOMPARE(row.entries.size(), 1);
        QCOMPARE(row.entries[0].number, u"01"_qs);
    }

    void onlyThePacksDayIsToday_data()
    {
        QTest::addColumn<QString>("packDay");
        QTest::addColumn<bool>("isToday");

        QTest::newRow("the pack's day") << u"2026-08-26"_qs << true;
        QTest::newRow("another day") << u"2026-08-27"_qs << false;
        QTest::newRow("no day") << QString() << false;
    }

    void onlyThePacksDayIsToday()
    {
        QFETCH(QString, packDay);

        const auto row = ArchiveDayRow::slicesOf({u"2026-08-26"_qs, {}, 0}, {}, packDay).first();

        QTEST(row.isToday, "isToday");
    }

    void aDayThatDoesNotReadIsShownAsStored()
    {
        const auto row = ArchiveDayRow::slicesOf({u"2026-8-26"_qs, {}, 0}, {}, {}).first();

        QCOMPARE(row.monthDay, u"2026-8-26"_qs);
        QCOMPARE(row.weekday, u"2026-8-26"_qs);
        QCOMPARE(row.name, u"查看2026-8-26的完整精选"_qs);
    }

    void aLongDayIsDealtOut()
    {
        const QList<InformationSignal> focusSignals(13, sampleSignal(u"a"_qs));

        const auto slices = ArchiveDayRow::slicesOf({u"2026-08-26"_qs, {}, 0}, focusSignals, {});

        QCOMPARE(slices.size(), 2);
        QCOMPARE(slices[0].entries.size(), 12);
        QVERIFY(slices[0].opensDay);
        QVERIFY(!slices[0].closesDay);
        QCOMPARE(slices[1].entries.size(), 1);
        QCOMPARE(slices[1].entries.first().number, u"13"_qs);
        QCOMPARE(slices[1].name, slices[0].name);
        QVERIFY(!slices[1].opensDay);
        QVERIFY(slices[1].closesDay);
    }
};

TEST_SUBJECT(ArchiveDayRowTest)
#include "ArchiveDayRowTest.moc"
