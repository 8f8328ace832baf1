// SPDX-License-Identifier: Apache-2.0

#include "WeeklyPage.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// 2026-08-30 is a Sunday. A stamp at UTC+8 of that day and of the one after it.
constexpr double sundayLate = 1788105599;
constexpr double mondayEarly = 1788105600;

SampleModel twoWeeks()
{
    SampleModel sample;
    sample.now = sundayLate;
    sample.retiredSignals = {sampleSignal(u"old"_qs)};
    sample.selectionDays = {{u"2026-08-23"_qs, {u"old"_qs, u"gone"_qs}, 14},
                            {u"2026-08-26"_qs, {u"a"_qs, u"b"_qs}, 27},
                            {u"2026-8-27"_qs, {u"a"_qs}, 1},
                            {u"2026-08-24"_qs, {u"b"_qs}, 17}};
    return sample;
}

QStringList badgesOf(WeeklyPage& page)
{
    QStringList badges;
    for (const auto& row : page.rows()->rows()) {
        if (!row.isDay) {
            badges.append(row.week.badge);
        }
    }
    return badges;
}

/// What each row begins with: the range of a week, the date of a day.
QStringList wordsOf(WeeklyPage& page)
{
    QStringList words;
    for (const auto& row : page.rows()->rows()) {
        words.append(row.isDay ? row.day.date : row.week.range);
    }
    return words;
}

} // namespace

class WeeklyPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyWithoutHistory()
    {
        ShownPage<WeeklyPage> page;

        QVERIFY(page->empty());
        QCOMPARE(page->rows()->rowCount(), 0);
    }

    void foldsTheHistoryNewestWeekFirst()
    {
        auto sample = twoWeeks();
        const auto model = sample.make();
        WeeklyPage page;
        const QSignalSpy emptyChanged(&page, &WeeklyPage::emptyChanged);
        page.setWorkbench(model.get());

        QVERIFY(!page.empty());
        QCOMPARE(emptyChanged.size(), 1);
        QCOMPARE(wordsOf(page),
                 QStringList({u"8月24日–8月30日"_qs, u"2026-08-24"_qs, u"2026-08-26"_qs,
                              u"8月17日–8月23日"_qs, u"2026-08-23"_qs}));
    }

    void resolvesRetiredSignals()
    {
        ShownPage<WeeklyPage> page(twoWeeks());

        const auto& rows = page->rows()->rows();
        const auto& entries = rows[4].day.entries;
        QCOMPARE(entries[0].title, u"Title of old"_qs);
        QCOMPARE(entries[1].title, u"已归档条目（gone）"_qs);
        QCOMPARE(rows[3].week.summary, u"1 天 · 2 条焦点 · 覆盖 1 条泳道"_qs);
    }

    void followsASync()
    {
        ShownPage<WeeklyPage> page(twoWeeks());

        page.sync({u"a"_qs}, {u"2026-09-03"_qs});

        QCOMPARE(wordsOf(*page), QStringList({u"8月31日–9月6日"_qs, u"2026-09-03"_qs}));
    }

    void theWeekRunsUntilMidnightInBeijing()
    {
        ShownPage<WeeklyPage> page(twoWeeks());
        QCOMPARE(badgesOf(*page), QStringList({u"本周 · 进行中"_qs, u"已定格"_qs}));

        page.sample.now = mondayEarly;
        page->refresh();
        QCOMPARE(badgesOf(*page), QStringList({u"已定格"_qs, u"已定格"_qs}));
    }

    // A reader who came back to it on Monday still saw last week running.
    void theWeekHasEndedWhenItShowsAgain()
    {
        ShownPage<WeeklyPage> page(twoWeeks());

        page->setShown(false);
        page.sample.now = mondayEarly;
        page->setShown(true);

        QCOMPARE(badgesOf(*page), QStringList({u"已定格"_qs, u"已定格"_qs}));
    }
};

TEST_SUBJECT(WeeklyPageTest)
#include "WeeklyPageTest.moc"
