#include "ArchiveDayRow.h"
#include "SampleSignal.h"

#include <QTest>

class ArchiveDayRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheDaysFocus();
    void countsEveryFocusIdAndNumbersThoseStillThere();
    void onlyThePacksDayIsToday_data();
    void onlyThePacksDayIsToday();
    void aDayThatDoesNotReadIsShownAsStored();
};

void ArchiveDayRowTest::listsTheDaysFocus()
{
    auto shift = sampleSignal(u"shift"_qs);
    shift.lane = InformationLane::PlatformShift;

    const auto row = ArchiveDayRow::from({u"2026-08-26"_qs, {u"shift"_qs, u"product"_qs}, 27},
                                         {shift, sampleSignal(u"product"_qs)}, {});

    QCOMPARE(row.date, u"2026-08-26"_qs);
    QCOMPARE(row.monthDay, u"8月26日"_qs);
    QCOMPARE(row.weekday, u"星期三"_qs);
    QCOMPARE(row.closing, u"当日共 27 条 · 先看 2 条 · 查看这一天 →"_qs);
    QCOMPARE(row.name, u"查看8月26日的完整精选"_qs);

    QCOMPARE(row.entries.size(), 2);
    QCOMPARE(row.entries[0].number, u"01"_qs);
    QCOMPARE(row.entries[0].title, u"Title of shift"_qs);
    QCOMPARE(row.entries[0].lane, u" · 平台变化"_qs);
    QCOMPARE(row.entries[1].number, u"02"_qs);
    QCOMPARE(row.entries[1].lane, u" · 产品雷达"_qs);
}

void ArchiveDayRowTest::countsEveryFocusIdAndNumbersThoseStillThere()
{
    const auto row = ArchiveDayRow::from({u"2026-08-26"_qs, {u"gone"_qs, u"product"_qs}, 0},
                                         {sampleSignal(u"product"_qs)}, {});

    QCOMPARE(row.closing, u"当日共 0 条 · 先看 2 条 · 查看这一天 →"_qs);
    QCOMPARE(row.entries.size(), 1);
    QCOMPARE(row.entries[0].number, u"01"_qs);
}

void ArchiveDayRowTest::onlyThePacksDayIsToday_data()
{
    QTest::addColumn<QString>("packDay");
    QTest::addColumn<bool>("isToday");

    QTest::newRow("the pack's day") << u"2026-08-26"_qs << true;
    QTest::newRow("another day") << u"2026-08-27"_qs << false;
    QTest::newRow("no day") << QString() << false;
}

void ArchiveDayRowTest::onlyThePacksDayIsToday()
{
    QFETCH(QString, packDay);

    QTEST(ArchiveDayRow::from({u"2026-08-26"_qs, {}, 0}, {}, packDay).isToday, "isToday");
}

void ArchiveDayRowTest::aDayThatDoesNotReadIsShownAsStored()
{
    const auto row = ArchiveDayRow::from({u"2026-8-26"_qs, {}, 0}, {}, {});

    QCOMPARE(row.monthDay, u"2026-8-26"_qs);
    QCOMPARE(row.weekday, u"2026-8-26"_qs);
    QCOMPARE(row.name, u"查看2026-8-26的完整精选"_qs);
}

QTEST_GUILESS_MAIN(ArchiveDayRowTest)
#include "ArchiveDayRowTest.moc"
