// SPDX-License-Identifier: Apache-2.0

#include "TodayFocus.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

const QString asOf = u"2026-09-02T04:00:00Z"_qs;
const QString asOfInMilliseconds = u"2026-09-02T04:00:00.000Z"_qs;

// Updates, of which the computed focus takes the first.
QList<InformationSignal> fiveSignals()
{
    QList<InformationSignal> signals;
    for (const QString& id : {u"a"_qs, u"b"_qs, u"c"_qs, u"d"_qs, u"e"_qs}) {
        signals.append(sampleSignal(id));
        signals.last().kind = InformationSignalKind::Update;
    }
    return signals;
}

SelectionDay selectionDay(const QString& date, const QList<QString>& ids)
{
    return {date, ids, 5};
}

} // namespace

class TodayFocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packDays_data()
    {
        QTest::addColumn<QString>("stamp");
        QTest::addColumn<std::optional<QString>>("day");

        const auto row = [](const char* name, const QString& stamp, std::optional<QString> day) {
            QTest::newRow(name) << stamp << std::move(day);
        };
        row("whole seconds", asOf, u"2026-09-02"_qs);
        row("evening at UTC", u"2026-09-02T16:00:00Z"_qs, u"2026-09-03"_qs);
        row("just before it", u"2026-09-02T15:59:59Z"_qs, u"2026-09-02"_qs);
        row("before 1970", u"1969-12-31T15:59:59Z"_qs, u"1969-12-31"_qs);
        row("milliseconds", asOfInMilliseconds, std::nullopt);
        row("offset", u"2026-09-02T04:00:00+00:00"_qs, std::nullopt);
        row("small t", u"2026-09-02t04:00:00Z"_qs, std::nullopt);
        row("31 February", u"2026-02-31T04:00:00Z"_qs, std::nullopt);
        row("second 60", u"2026-09-02T04:00:60Z"_qs, std::nullopt);
        row("day alone", u"2026-09-02"_qs, std::nullopt);
        row("empty", QString(), std::nullopt);
    }

    void packDays()
    {
        QFETCH(QString, stamp);

        QTEST(TodayFocus::packDay(stamp), "day");
    }

    void featuredCardsLeadInTheirOrder_data()
    {
        QTest::addColumn<QList<QString>>("featured");
        QTest::addColumn<QStringList>("focus");

        const QStringList computed{u"a"_qs, u"b"_qs, u"c"_qs};
        QTest::newRow("two") << QList{u"d"_qs, u"a"_qs} << QStringList{u"d"_qs, u"a"_qs};
        QTest::newRow("more than the limit") << QList{u"e"_qs, u"d"_qs, u"c"_qs, u"b"_qs}
                                             << QStringList{u"e"_qs, u"d"_qs, u"c"_qs, u"b"_qs};
        QTest::newRow("some gone") << QList{u"gone"_qs, u"e"_qs} << QStringList{u"e"_qs};
        QTest::newRow("all gone") << QList{u"gone"_qs} << computed;
        QTest::newRow("none") << QList<QString>() << computed;
    }

    void featuredCardsLeadInTheirOrder()
    {
        QFETCH(QList<QString>, featured);

        QTEST(focusIds(asOf, {selectionDay(u"2026-09-01"_qs, {u"c"_qs}),
                              selectionDay(u"2026-09-02"_qs, featured)}),
              "focus");
    }

    void onlyTheFirstEntryOfTheDayCounts()
    {
        QCOMPARE(focusIds(asOf, {selectionDay(u"2026-09-02"_qs, {u"d"_qs}),
                                 selectionDay(u"2026-09-02"_qs, {u"e"_qs})}),
                 QStringList{u"d"_qs});
    }

    void aStampThatNamesNoDayShowsTheComputedFocus_data()
    {
        QTest::addColumn<QString>("stamp");

        QTest::newRow("milliseconds") << asOfInMilliseconds;
        QTest::newRow("small t") << u"2026-09-02t04:00:00Z"_qs;
        QTest::newRow("no time") << u"some day"_qs;
    }

    // The focus of a day without a date stood among the remaining cards too.
    void aStampThatNamesNoDayShowsTheComputedFocus()
    {
        QFETCH(QString, stamp);

        QCOMPARE(focusIds(stamp, {selectionDay(u""_qs, {u"e"_qs}),
                                  selectionDay(u"2026-09-02"_qs, {u"e"_qs})}),
                 (QStringList{u"a"_qs, u"b"_qs, u"c"_qs}));
    }

    void whatRemainsCompletesTheComputedFocus()
    {
        const QList<SelectionDay> seedHistory{selectionDay(u"2026-09-02"_qs, {u"a"_qs, u"b"_qs})};
        QCOMPARE(idsOf(TodayFocus::focused(fiveSignals(), {}, asOf, {}, seedHistory)),
                 (QStringList{u"c"_qs, u"d"_qs, u"e"_qs}));
        QCOMPARE(idsOf(TodayFocus::remaining(fiveSignals(), {}, asOf, seedHistory)),
                 (QStringList{u"a"_qs, u"b"_qs}));
    }

private:
    static QStringList focusIds(const QString& stamp, const QList<SelectionDay>& selectionDays)
    {
        return idsOf(TodayFocus::focused(fiveSignals(), {}, stamp, selectionDays, {}));
    }
};

TEST_SUBJECT(TodayFocusTest)
#include "TodayFocusTest.moc"
