// SPDX-License-Identifier: Apache-2.0

#include "WeekDayRow.h"
#include "InformationSignalIndex.h"
#include "LaneColor.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QTest>

namespace {

/// One word a slice: its date, how many entries it holds, and what it opens and closes.
QStringList wordsOf(const QList<WeekDayRow>& slices)
{
    QStringList words;
    for (const auto& slice : slices) {
        QString word = slice.date + u'/' + QString::number(slice.entries.size());
        word += slice.opensWeek ? u" opens week"_qs : QString();
        word += slice.opensDay ? u" opens day"_qs : QString();
        word += slice.closesDay ? u" closes day"_qs : QString();
        word += slice.closesWeek ? u" closes week"_qs : QString();
        words.append(word);
    }
    return words;
}

} // namespace

class WeekDayRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDayListsItsFocusInStoredOrder()
    {
        auto tool = sampleSignal(u"tool"_qs);
        tool.lane = InformationLane::Workflow;

        const auto slices = WeekDayRow::slicesOf({u"2026-08-24"_qs, {u"tool"_qs, u"gone"_qs}, 17},
                                                 indexById({tool}));

        QCOMPARE(slices.size(), 1);
        const auto& day = slices.first();
        QCOMPARE(day.date, u"2026-08-24"_qs);
        QCOMPARE(day.label, u"8月24日 星期一"_qs);
        QCOMPARE(day.count, u"共 17 条在册"_qs);
        QCOMPARE(day.linkName, u"查看8月24日 星期一的完整精选"_qs);

        QCOMPARE(day.entries.size(), 2);
        QCOMPARE(day.entries[0].number, u"01"_qs);
        QCOMPARE(day.entries[0].title, u"Title of tool"_qs);
        QVERIFY(day.entries[0].resolved);
        QCOMPARE(day.entries[0].laneColor, laneColor(InformationLane::Workflow));
        QCOMPARE(day.entries[0].laneName, u"工作流与方法"_qs);
        QCOMPARE(day.entries[1].number, u"02"_qs);
        QCOMPARE(day.entries[1].title, u"已归档条目（gone）"_qs);
        QVERIFY(!day.entries[1].resolved);
        QCOMPARE(day.entries[1].laneName, QString());
    }

    void aDayThatDoesNotReadIsShownAsStored()
    {
        const auto day = WeekDayRow::slicesOf(SelectionDay{u"某天"_qs, {}, 0}, {}).first();

        QCOMPARE(day.label, u"某天"_qs);
        QCOMPARE(day.linkName, u"查看某天的完整精选"_qs);
    }

    void aLongDayIsDealtOut()
    {
        const SelectionDay day{u"2026-08-24"_qs, QList<QString>(25, u"gone"_qs), 0};

        QCOMPARE(wordsOf(WeekDayRow::slicesOf(day, {})),
                 QStringList({u"2026-08-24/12 opens day"_qs, u"2026-08-24/12"_qs,
                              u"2026-08-24/1 closes day"_qs}));
    }

    void aWeekIsOneCard()
    {
        const WeeklyDigest::Week week{
            .weekId = u"2026-W35"_qs,
            .monday = u"2026-08-24"_qs,
            .sunday = u"2026-08-30"_qs,
            .days = {{u"2026-08-24"_qs, QList<QString>(13, u"gone"_qs), 0},
                     {u"2026-08-25"_qs, {}, 0},
                     {u"2026-08-26"_qs, QList<QString>(2, u"gone"_qs), 0}}};

        QCOMPARE(
            wordsOf(WeekDayRow::slicesOf(week, {})),
            QStringList({u"2026-08-24/12 opens week opens day"_qs, u"2026-08-24/1 closes day"_qs,
                         u"2026-08-25/0 opens day closes day"_qs,
                         u"2026-08-26/2 opens day closes day closes week"_qs}));
    }
};

TEST_SUBJECT(WeekDayRowTest)
#include "WeekDayRowTest.moc"
