// SPDX-License-Identifier: Apache-2.0

#include "TodayPage.h"
#include "ShownPage.h"
#include "Subject.h"
#include "Words.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// One word an entry: "intro", a card's id, "more", "rail", a line's number and id.
QStringList wordsOf(const RowListModel<TodayEntry>& entries)
{
    QStringList words;
    for (const auto& entry : entries.rows()) {
        switch (entry.kind) {
        case TodayEntry::Kind::Intro:
            words.append(u"intro"_qs);
            break;
        case TodayEntry::Kind::Card:
            words.append(entry.card().signalId);
            break;
        case TodayEntry::Kind::Disclosure:
            words.append(u"more"_qs);
            break;
        case TodayEntry::Kind::RailHeading:
            words.append(u"rail"_qs);
            break;
        case TodayEntry::Kind::RailLine:
            words.append(entry.rail().number() + entry.rail().signalId);
            break;
        }
    }
    return words;
}

QStringList textsOf(const RowListModel<LaneChipRow>& chips)
{
    QStringList texts;
    for (const auto& chip : chips.rows()) {
        texts.append(chip.selected ? u'[' + chip.text + u']' : chip.text);
    }
    return texts;
}

QStringList textsOf(const QList<LabelledTextRow>& rows)
{
    QStringList texts;
    for (const auto& row : rows) {
        texts.append(row.name());
    }
    return texts;
}

// Five signals of the day, the last of another lane.
SampleModel fiveSignals()
{
    SampleModel sample;
    sample.packAsOf = u"2026-09-01T12:00:00.000Z"_qs;
    sample.signals.clear();
    for (const QChar id : u"abcde"_qs) {
        sample.signals.append(sampleSignal(id));
    }
    sample.signals.last().lane = InformationLane::Workflow;
    return sample;
}

} // namespace

class TodayPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadsIntoTheDay()
    {
        ShownPage<TodayPage> page(fiveSignals());

        QCOMPARE(page->eyebrow(), u"8月27日 · AI 时代重要信号"_qs);
        QCOMPARE(page->title(), u"今天先看 3 条"_qs);
        QCOMPARE(page->lead(),
                 u"已检查 478 条公开信息，归并、去重和过滤后留下 5 条；先替你放出 3 条。"_qs);
        QVERIFY(!page->adjusted());
        QVERIFY(!page->empty());
        QCOMPARE(page->remainingTitle(), u"其余 2 条已替你排好"_qs);
        QCOMPARE(textsOf(page->receiptRows()),
                 QStringList({u"478 条公开信息已检查"_qs, u"5 条值得看"_qs, u"3 条先放出"_qs}));
        QCOMPARE(page->updatedText(), u"数据更新于 8月27日"_qs);
    }

    void showsTheFocusAndOnDemandTheRest()
    {
        ShownPage<TodayPage> page(fiveSignals());
        QCOMPARE(wordsOf(*page->entries()), words("intro a b c more"));
        QCOMPARE(page->focusedCount(), 3);
        QCOMPARE(page->remainingCount(), 2);

        page->setShowingRemaining(true);
        QCOMPARE(wordsOf(*page->entries()), words("intro a b c more d e"));

        page->setShowingRemaining(false);
        QCOMPARE(wordsOf(*page->entries()), words("intro a b c more"));
    }

    void tellsThatTheRestIsShown()
    {
        ShownPage<TodayPage> page;
        const QSignalSpy told(&*page, &TodayPage::showingRemainingChanged);

        page->setShowingRemaining(true);
        page->setShowingRemaining(true);

        QCOMPARE(told.size(), 1);
    }

    void offersNoRestWhereEverythingIsShown()
    {
        ShownPage<TodayPage> page;
        page->setShowingRemaining(true);

        QCOMPARE(wordsOf(*page->entries()), words("intro a b"));
    }

    void listsEverything()
    {
        ShownPage<TodayPage> page;

        QCOMPARE(page->railCount(), 2);
        QCOMPARE(wordsOf(*page->railEntries()), words("rail 01a 02b"));
    }

    void countsTheLanes()
    {
        ShownPage<TodayPage> page(fiveSignals());

        QCOMPARE(textsOf(*page->lanes()),
                 QStringList({u"[全部 5]"_qs, u"开源增长 0"_qs, u"产品雷达 4"_qs, u"赚钱机会 0"_qs,
                              u"工作流与方法 1"_qs, u"创业复盘 0"_qs, u"平台变化 0"_qs}));
    }

    void showsOneLane()
    {
        ShownPage<TodayPage> page(fiveSignals());

        page->selectLane(u"workflow"_qs);
        QCOMPARE(page.model->activeLane(), InformationLane::Workflow);
        QCOMPARE(textsOf(*page->lanes()).at(0), u"全部 5"_qs);
        QCOMPARE(textsOf(*page->lanes()).at(4), u"[工作流与方法 1]"_qs);
        QCOMPARE(page->title(), u"今天先看 1 条"_qs);
        QCOMPARE(page->lead(),
                 u"已检查 478 条公开信息，归并、去重和过滤后留下 5 条；先替你放出 1 条。"_qs);
        QCOMPARE(wordsOf(*page->entries()), words("intro e"));
        QCOMPARE(wordsOf(*page->railEntries()), words("rail 01e"));
        QCOMPARE(textsOf(page->receiptRows()),
                 QStringList({u"478 条公开信息已检查"_qs, u"1 条值得看"_qs, u"1 条先放出"_qs}));

        page->selectLane(QString());
        QVERIFY(!page.model->activeLane());
        QCOMPARE(page->title(), u"今天先看 3 条"_qs);
    }

    void aLaneWithoutSignalsIsNotAnEmptyDay()
    {
        ShownPage<TodayPage> page;

        page->selectLane(u"founderStory"_qs);

        QVERIFY(!page->empty());
        QCOMPARE(page->title(), u"今天先看 0 条"_qs);
        QCOMPARE(wordsOf(*page->entries()), words("intro"));
    }

    void tellsHowTheSelectionIsAdjusted()
    {
        ShownPage<TodayPage> page(fiveSignals());

        page.model->reduceSimilar(u"e"_qs);

        QVERIFY(page->adjusted());
        QCOMPARE(page->preferenceStatus(),
                 u"已按你之前的 1 次反馈调整顺序；重要变化不会被完全屏蔽。"_qs);
        QCOMPARE(page->lead(),
                 u"已检查 478 条公开信息，归并、去重和过滤后留下 4 条；先替你放出 3 条，"
                 "另有 1 条按你的调整暂不展示。"_qs);

        page.model->resetPreferences();
        QVERIFY(!page->adjusted());
    }

    void tellsOfHiddenEntriesWhereNoLaneIsReduced()
    {
        SampleModel sample;
        sample.files.files.insert(u"/support/Corvanite/Information/workspace-v1.json"_qs,
                                  R"({"version": 3, "hidden": ["a", "gone"]})");
        ShownPage<TodayPage> page(std::move(sample));

        QVERIFY(page->adjusted());
        QCOMPARE(page->preferenceStatus(),
                 u"已保留之前的 2 条内容调整；后续重要变化仍会重新出现。"_qs);
        QCOMPARE(wordsOf(*page->entries()), words("intro b"));
    }

    void theRemainingCardsFold()
    {
        SampleModel sample = fiveSignals();
        const auto model = sample.make();
        TodayPage page;
        page.setWorkbench(model.get());
        page.setShowingRemaining(true);

        QList<int> positions;
        for (const auto& entry : page.entries()->rows()) {
            positions.append(entry.folds ? entry.position : -1);
        }
        QCOMPARE(positions, (QList{-1, -1, -1, -1, -1, 0, 1}));
    }

    void remembersWhoseChangeIsUnfolded()
    {
        SampleModel sample;
        sample.signals.first().updateSummary = u"Change of a"_qs;
        const auto model = sample.make();
        TodayPage page;
        page.setWorkbench(model.get());
        const auto unfolded = [&page] {
            QStringList ids;
            for (const auto& entry : page.entries()->rows()) {
                if (entry.card().changeOpen) {
                    ids.append(entry.card().signalId);
                }
            }
            return ids;
        };

        page.toggleChange(u"a"_qs);
        page.toggleChange(u"b"_qs);
        QCOMPARE(unfolded(), QStringList(u"a"_qs));
        page.toggleChange(u"a"_qs);
        QCOMPARE(unfolded(), QStringList());
    }

    void nothingIsLeftOfALane()
    {
        SampleModel sample = fiveSignals();
        const auto model = sample.make();
        TodayPage page;
        page.setWorkbench(model.get());
        QVERIFY(!page.laneEmpty());

        page.selectLane(u"opportunity"_qs);
        QVERIFY(page.laneEmpty());
        QVERIFY(!page.empty());
        page.selectLane({});
        QVERIFY(!page.laneEmpty());
    }

    void nothingIsLeftOfTheDay()
    {
        ShownPage<TodayPage> page;

        page.model->reduceSimilar(u"a"_qs);
        QVERIFY(!page->empty());
        page.model->reduceSimilar(u"b"_qs);

        QVERIFY(page->empty());
        QCOMPARE(page->title(), u"今天先看 0 条"_qs);
        QCOMPARE(page->remainingTitle(), QString());
        QCOMPARE(wordsOf(*page->entries()), words("intro"));

        page.model->undoLastAction();
        QVERIFY(!page->empty());
        QCOMPARE(wordsOf(*page->entries()), words("intro b"));
    }

    void keepingChangesNothingButTheCard()
    {
        ShownPage<TodayPage> page;
        const QSignalSpy texts(&*page, &TodayPage::textsChanged);
        const QSignalSpy changed(page->entries(), &QAbstractItemModel::dataChanged);
        const QSignalSpy inserted(page->entries(), &QAbstractItemModel::rowsInserted);
        const QSignalSpy removed(page->entries(), &QAbstractItemModel::rowsRemoved);
        const QSignalSpy railChanged(page->railEntries(), &QAbstractItemModel::dataChanged);

        page.model->toggleKeep(u"b"_qs);

        QVERIFY(page->entries()->rows().at(2).card().kept);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().toModelIndex().row(), 2);
        QVERIFY(inserted.isEmpty());
        QVERIFY(removed.isEmpty());
        QVERIFY(railChanged.isEmpty());
        QVERIFY(texts.isEmpty());
    }

    void whatIsSeenIsMarkedOnCardAndLine()
    {
        ShownPage<TodayPage> page;
        QCOMPARE(page->railEntries()->rows().at(1).rail().badge(), u"新"_qs);

        page.model->markSeen(u"a"_qs);

        QVERIFY(page->entries()->rows().at(1).card().seen);
        QCOMPARE(page->railEntries()->rows().at(1).rail().badge(), u"已看过"_qs);
        QCOMPARE(page->railEntries()->rows().at(2).rail().badge(), u"新"_qs);
    }

    void followsASync()
    {
        ShownPage<TodayPage> page;

        page.sync({u"c"_qs});

        QCOMPARE(wordsOf(*page->entries()), words("intro c"));
        QCOMPARE(wordsOf(*page->railEntries()), words("rail 01c"));
    }

    void agesOnlyWhenAsked()
    {
        SampleModel sample;
        sample.now = 1788220800 + 3600;
        ShownPage<TodayPage> page(std::move(sample));
        QCOMPARE(page->entries()->rows().at(1).card().timeLabel, u"1 小时前核验"_qs);

        page.sample.now += 3600;
        QCOMPARE(page->entries()->rows().at(1).card().timeLabel, u"1 小时前核验"_qs);

        page->refresh();
        QCOMPARE(page->entries()->rows().at(1).card().timeLabel, u"2 小时前核验"_qs);
    }

    // It told the hour at which it was left.
    void hasAgedWhenItShowsAgain()
    {
        SampleModel sample;
        sample.now = 1788220800 + 3600;
        ShownPage<TodayPage> page(std::move(sample));

        page->setShown(false);
        page.sample.now += 3600;
        page->setShown(true);

        QCOMPARE(page->entries()->rows().at(1).card().timeLabel, u"2 小时前核验"_qs);
    }

    // A pack stamped in whole seconds shows the day's own focus, while the rest is what the
    // computed focus leaves: a signal can stand in both.
    void aCardMayStandTwice()
    {
        SampleModel sample = fiveSignals();
        sample.packAsOf = u"2026-09-01T12:00:00Z"_qs;
        sample.selectionDays = {{u"2026-09-01"_qs, {u"e"_qs}, 5}};
        ShownPage<TodayPage> page(std::move(sample));
        page->setShowingRemaining(true);

        QCOMPARE(wordsOf(*page->entries()), words("intro e more d e"));
    }

    void withoutAModelThereIsNothing()
    {
        TodayPage page;
        page.setShowingRemaining(true);
        page.selectLane(u"workflow"_qs);

        QCOMPARE(page.title(), QString());
        QVERIFY(page.entries()->rows().isEmpty());
    }
};

TEST_SUBJECT(TodayPageTest)
#include "TodayPageTest.moc"
