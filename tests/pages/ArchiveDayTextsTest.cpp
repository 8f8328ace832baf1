// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDayTexts.h"
#include "Subject.h"

#include <QTest>

namespace {

SelectionDay emptyDay(const QString& date)
{
    return {date, {}, 0};
}

QList<SelectionDay> emptyDays(const QStringList& dates)
{
    QList<SelectionDay> days;
    for (const QString& date : dates) {
        days.append(emptyDay(date));
    }
    return days;
}

} // namespace

class ArchiveDayTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatTheDayHeld()
    {
        const auto texts =
            ArchiveDayTexts::from({u"2026-08-26"_qs, {u"a"_qs, u"b"_qs, u"gone"_qs}, 27}, {});

        QCOMPARE(texts.title, u"2026年8月26日 的精选"_qs);
        QCOMPARE(texts.lead, u"这一天 Corvanite 在册 27 条信号，先看 3 条焦点。"
                             u"本页是不可变归档：记录当时的选择，方便对照后来的变化。"_qs);
        QCOMPARE(texts.weekLink, u"在周报里看 8月24日–8月30日 这一周"_qs);
        QCOMPARE(texts.count, u"当日共 27 条在册信号"_qs);
    }

    void aDayThatDoesNotReadIsShownAsStoredAndHasNoWeek()
    {
        const auto texts = ArchiveDayTexts::from(emptyDay(u"2026-8-26"_qs), {});

        QCOMPARE(texts.title, u"2026-8-26 的精选"_qs);
        QCOMPARE(texts.weekLink, QString());
    }

    void theNeighboursAreTheNearestOtherDates_data()
    {
        QTest::addColumn<QStringList>("datesNewestFirst");
        QTest::addColumn<QString>("previousText");
        QTest::addColumn<QString>("nextText");

        const QString day = u"2026-08-26"_qs;
        QTest::newRow("alone") << QStringList{day} << QString() << QString();
        QTest::newRow("newest") << QStringList{day, u"2026-08-25"_qs, u"2026-08-24"_qs}
                                << u"前一天 · 8月25日"_qs << QString();
        QTest::newRow("oldest") << QStringList{u"2026-08-30"_qs, u"2026-08-28"_qs, day} << QString()
                                << u"后一天 · 8月28日"_qs;
        QTest::newRow("between, across a month")
            << QStringList{u"2026-09-01"_qs, day, u"2026-07-31"_qs} << u"前一天 · 7月31日"_qs
            << u"后一天 · 9月1日"_qs;
        QTest::newRow("repeated dates are no neighbours")
            << QStringList{u"2026-08-27"_qs, day, day, u"2026-08-25"_qs} << u"前一天 · 8月25日"_qs
            << u"后一天 · 8月27日"_qs;
        QTest::newRow("dates that do not read sort as texts")
            << QStringList{u"某天"_qs, day, u"2026"_qs} << u"前一天 · 2026"_qs
            << u"后一天 · 某天"_qs;
    }

    void theNeighboursAreTheNearestOtherDates()
    {
        QFETCH(QStringList, datesNewestFirst);

        const auto texts =
            ArchiveDayTexts::from(emptyDay(u"2026-08-26"_qs), emptyDays(datesNewestFirst));

        QTEST(texts.previousText, "previousText");
        QTEST(texts.nextText, "nextText");
        QCOMPARE(texts.previousDate.isEmpty(), texts.previousText.isEmpty());
        QCOMPARE(texts.nextDate.isEmpty(), texts.nextText.isEmpty());
    }
};

TEST_SUBJECT(ArchiveDayTextsTest)
#include "ArchiveDayTextsTest.moc"
