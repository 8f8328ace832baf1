// SPDX-License-Identifier: Apache-2.0

#include "ArchivePage.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

SampleModel threeDays()
{
    SampleModel sample;
    sample.retiredSignals = {sampleSignal(u"old"_qs)};
    sample.selectionDays = {{u"2026-08-31"_qs, {u"old"_qs}, 12},
                            {u"2026-09-02"_qs, {u"gone"_qs, u"b"_qs, u"a"_qs}, 22},
                            {u"2026-09-01"_qs, {}, 17}};
    return sample;
}

} // namespace

class ArchivePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyHistoryHasNoDays()
    {
        ShownPage<ArchivePage> page;

        QCOMPARE(page->summary(), u"0 天记录"_qs);
        QCOMPARE(page->days()->rowCount(), 0);
        QVERIFY(!page->showsDay());
    }

    void listsDaysNewestFirst()
    {
        ShownPage<ArchivePage> page(threeDays());

        QCOMPARE(page->summary(), u"3 天记录"_qs);
        const auto& days = page->days()->rows();
        QCOMPARE(days.size(), 3);
        QCOMPARE(days[0].date, u"2026-09-02"_qs);
        QCOMPARE(days[0].entries.size(), 2);
        QCOMPARE(days[1].date, u"2026-09-01"_qs);
        QCOMPARE(days[2].date, u"2026-08-31"_qs);
        QCOMPARE(days[2].entries[0].title, u"Title of old"_qs);
    }

    void todayIsTheBeijingDayOfThePack_data()
    {
        QTest::addColumn<QString>("packAsOf");
        QTest::addColumn<QList<bool>>("todays");

        QTest::newRow("in milliseconds")
            << u"2026-09-02T01:00:00.000Z"_qs << QList<bool>{true, false, false};
        QTest::newRow("in seconds")
            << u"2026-09-02T01:00:00Z"_qs << QList<bool>{true, false, false};
        QTest::newRow("before midnight in Beijing")
            << u"2026-08-31T15:59:59.999Z"_qs << QList<bool>{false, false, true};
        QTest::newRow("midnight in Beijing")
            << u"2026-08-31T16:00:00.000Z"_qs << QList<bool>{false, true, false};
        QTest::newRow("no stamp") << u"昨天"_qs << QList<bool>{false, false, false};
    }

    void todayIsTheBeijingDayOfThePack()
    {
        QFETCH(QString, packAsOf);
        auto sample = threeDays();
        sample.packAsOf = packAsOf;
        ShownPage<ArchivePage> page(std::move(sample));

        QList<bool> todays;
        for (const auto& day : page->days()->rows()) {
            todays.append(day.isToday);
        }
        QTEST(todays, "todays");
    }

    void showsTheSelectedDay()
    {
        ShownPage<ArchivePage> page(threeDays());

        page.model->openArchiveDay(u"2026-09-01"_qs);

        QVERIFY(page->showsDay());
        QCOMPARE(page->dayPosition(), 1);
        QCOMPARE(page->day().title, u"2026年9月1日 的精选"_qs);
        QCOMPARE(page->day().previousText, u"前一天 · 8月31日"_qs);
        QCOMPARE(page->day().nextText, u"后一天 · 9月2日"_qs);
        QCOMPARE(page->focusRows()->rowCount(), 0);
    }

    void ranksCountTheSignalsThatAreStillThere()
    {
        auto sample = threeDays();
        const auto model = sample.make();
        model->openArchiveDay(u"2026-09-02"_qs);
        ArchivePage page;
        page.setWorkbench(model.get());

        const auto& rows = page.focusRows()->rows();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].rank, u"01"_qs);
        QCOMPARE(rows[0].title, u"Title of b"_qs);
        QCOMPARE(rows[1].rank, u"02"_qs);
        QCOMPARE(rows[1].title, u"Title of a"_qs);
    }

    void aDayStandsBelowTheSlicesOfALongOne()
    {
        auto sample = threeDays();
        sample.selectionDays[1].focusSignalIds = QList<QString>(25, u"a"_qs);
        ShownPage<ArchivePage> page(std::move(sample));
        QCOMPARE(page->summary(), u"3 天记录"_qs);
        QCOMPARE(page->days()->rowCount(), 5);

        page.model->openArchiveDay(u"2026-09-02"_qs);
        QCOMPARE(page->dayPosition(), 0);
        page.model->openArchiveDay(u"2026-09-01"_qs);
        QCOMPARE(page->dayPosition(), 3);
    }

    void goesBackToTheIndex()
    {
        ShownPage<ArchivePage> page(threeDays());
        page.model->openArchiveDay(u"2026-08-31"_qs);
        const QSignalSpy dayChanged(&*page, &ArchivePage::dayChanged);

        page.model->closeArchiveDay();

        QVERIFY(!page->showsDay());
        QCOMPARE(page->dayPosition(), -1);
        QCOMPARE(page->focusRows()->rowCount(), 0);
        QCOMPARE(dayChanged.size(), 1);
    }

    void aDayIsToldWhereItsTextsOrItsPlaceChange_data()
    {
        QTest::addColumn<qsizetype>("newestFocus");
        QTest::addColumn<qint64>("totalShown");
        QTest::addColumn<bool>("told");

        QTest::newRow("neither") << qsizetype(0) << qint64{3} << false;
        QTest::newRow("its texts") << qsizetype(0) << qint64{17} << true;
        QTest::newRow("its place") << qsizetype(25) << qint64{3} << true;
    }

    void aDayIsToldWhereItsTextsOrItsPlaceChange()
    {
        QFETCH(const qsizetype, newestFocus);
        QFETCH(const qint64, totalShown);
        SampleModel sample;
        sample.selectionDays = {{u"2026-09-01"_qs, {}, totalShown},
                                {u"2026-09-02"_qs, QList<QString>(newestFocus, u"a"_qs), 3}};
        ShownPage<ArchivePage> page(std::move(sample));
        page.model->openArchiveDay(u"2026-09-01"_qs);
        const QSignalSpy dayChanged(&*page, &ArchivePage::dayChanged);

        page.sync({u"a"_qs}, {u"2026-09-01"_qs, u"2026-09-02"_qs});

        QTEST(!dayChanged.isEmpty(), "told");
        QCOMPARE(page->dayPosition(), 1);
    }

    void goesFromDayToDay()
    {
        ShownPage<ArchivePage> page(threeDays());
        page.model->openArchiveDay(u"2026-08-31"_qs);
        QCOMPARE(page->day().previousText, QString());

        page.model->openArchiveDay(page->day().nextDate);
        page.model->openArchiveDay(page->day().nextDate);

        QCOMPARE(page->day().title, u"2026年9月2日 的精选"_qs);
        QCOMPARE(page->day().nextText, QString());
    }

    void followsASync()
    {
        ShownPage<ArchivePage> page(threeDays());

        page.sync({u"a"_qs}, {u"2026-09-03"_qs});

        QCOMPARE(page->summary(), u"1 天记录"_qs);
        QCOMPARE(page->days()->rows().first().date, u"2026-09-03"_qs);
    }

    void theFirstOfRepeatedDatesIsShown()
    {
        auto sample = threeDays();
        sample.selectionDays = {{u"2026-09-01"_qs, {u"b"_qs}, 1}, {u"2026-09-01"_qs, {u"a"_qs}, 2}};
        ShownPage<ArchivePage> page(std::move(sample));

        page.model->openArchiveDay(u"2026-09-01"_qs);

        QCOMPARE(page->day().count, u"当日共 1 条在册信号"_qs);
        QCOMPARE(page->focusRows()->rows().first().title, u"Title of b"_qs);
    }
};

TEST_SUBJECT(ArchivePageTest)
#include "ArchivePageTest.moc"
