// SPDX-License-Identifier: Apache-2.0

#include "ThreadPage.h"
#include "RowSlices.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

// A thread of the signal "a".
void open(ThreadPage& page, InformationModel& model)
{
    page.setWorkbench(&model);
    page.setSignalId(u"a"_qs);
}

} // namespace

class ThreadPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheWholeThread()
    {
        SampleModel sample;
        auto& signal = sample.signals.first();
        signal.digest = u"要点"_qs;
        signal.timeline = {
            {u"8 月 25 日"_qs, u"2026-08-25T00:00:00Z"_qs, u"首次出现"_qs, u"榜单"_qs}};
        signal.relatedSources = {{u"官网"_qs, u"https://origin.example/"_qs}};
        ShownPage<ThreadPage> page(std::move(sample));
        page->setSignalId(u"a"_qs);

        QCOMPARE(page->title(), u"Title of a"_qs);
        QVERIFY(page->hasDigest());
        QCOMPARE(page->digest(), u"要点"_qs);
        QCOMPARE(page->description(),
                 u"页内要点：要点\n现在：Summary of a\n8 月 25 日：首次出现（榜单）"_qs);
        QCOMPARE(page->originalAddress(), u"https://origin.example/a"_qs);
        QVERIFY(page->hasSources());
        QCOMPARE(page->rows()->rows(), ThreadRow::columnOf(page.sample.signals.first()));
        QVERIFY(!page->kept());
    }

    void hasNoDigestWhereTheSignalHasNone()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);

        QVERIFY(!page->hasDigest());
        QCOMPARE(page->description(), u"现在：Summary of a"_qs);
        QVERIFY(!page->hasSources());
    }

    void describesNoMoreThanTheFirstOfALongTimeline()
    {
        SampleModel sample;
        sample.signals.first().timeline.fill(
            {u"8 月 25 日"_qs, u"2026-08-25T00:00:00Z"_qs, u"复核"_qs, u"编辑"_qs}, 1000);
        ShownPage<ThreadPage> page(std::move(sample));
        page->setSignalId(u"a"_qs);

        QCOMPARE(page->description().count(u'\n') + 1, RowSlices::longest);
    }

    void anotherSignalIsTold()
    {
        ShownPage<ThreadPage> page;
        const QSignalSpy told(&*page, &ThreadPage::signalIdChanged);
        page->setSignalId(u"a"_qs);
        page->setSignalId(u"a"_qs);
        QCOMPARE(told.size(), 1);
    }

    void marksTheSignalSeen()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);
        QVERIFY(page.model->workspace().seenTargets.isEmpty());

        page->markSeen();
        QCOMPARE(page.model->workspace().seenTargets, QStringList(u"target:a"_qs));
    }

    void showsWhyAKeptSignalWasKept()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);
        const QSignalSpy told(&*page, &ThreadPage::keptChanged);

        page.model->toggleKeep(u"a"_qs);
        QVERIFY(page->kept());
        QCOMPARE(page->saveReason(), u"Why a"_qs);
        QCOMPARE(page->storedNote(), QString());
        QCOMPARE(told.size(), 1);

        page.model->toggleKeep(u"a"_qs);
        QVERIFY(!page->kept());
        QCOMPARE(told.size(), 2);
    }

    // The entry alone does not count as kept once its target is no longer followed.
    void aSavedSignalWhoseTargetIsNotFollowedIsNotKept()
    {
        SampleModel sample;
        sample.files.files.insert(
            u"/support/Corvanite/Information/workspace-v1.json"_qs,
            R"({"version": 3, "saved": {"a": {"savedAt": "2026-09-01T00:00:00Z",
                "saveReason": "Why a", "note": "n"}}})");
        ShownPage<ThreadPage> page(std::move(sample));
        page->setSignalId(u"a"_qs);

        QVERIFY(!page->kept());
    }

    void everyEditIsStoredAndNotEchoed()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        ThreadPage page;
        open(page, *model);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        page.writeNote(u"备"_qs);
        page.writeNote(u"备注 "_qs);

        QCOMPARE(model->workspace().saved.at(u"a"_qs).note, u"备注 "_qs);
        QCOMPARE(page.storedNote(), u"备注 "_qs);
        QVERIFY(replaced.isEmpty());
    }

    void aNoteThatCouldNotBeStoredStaysInTheEditor()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        ThreadPage page;
        open(page, *model);
        page.writeNote(u"旧"_qs);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        sample.files.writeFailure = FileError{FileError::Reason::NoSpace};
        page.writeNote(u"旧的和新的"_qs);
        model->markSeen(u"b"_qs);

        QVERIFY(model->errorMessage());
        QCOMPARE(page.storedNote(), u"旧"_qs);
        QVERIFY(replaced.isEmpty());
        QVERIFY(page.kept());
    }

    void aNoteThatChangesElsewhereIsReplaced()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        ThreadPage page;
        open(page, *model);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        model->updateNote(u"a"_qs, u"别处写的"_qs);

        QCOMPARE(replaced.size(), 1);
        QCOMPARE(page.storedNote(), u"别处写的"_qs);
    }

    // It gave way to what another program had stored, and the cursor went to its beginning.
    void aNoteThatIsBeingWrittenStays()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        ThreadPage page;
        open(page, *model);
        page.writeNote(u"正在写"_qs);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        sample.make()->updateNote(u"a"_qs, u"别处写的"_qs);
        model->catchUpWithStorage();
        QVERIFY(replaced.isEmpty());
        page.writeNote(u"正在写的"_qs);

        QCOMPARE(sample.make()->workspace().saved.at(u"a"_qs).note, u"正在写的"_qs);
    }

    void aNoteThatWasWrittenIsReplacedOnceItsCardHasBeenAway()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        ThreadPage page;
        open(page, *model);
        page.writeNote(u"写过"_qs);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        model->removeKept(u"a"_qs);
        model->undoLastAction();

        QCOMPARE(replaced.size(), 1);
        QCOMPARE(page.storedNote(), u"写过"_qs);
    }

    void aNoteWrittenInOneThreadHoldsUpNoOtherThreads()
    {
        SampleModel sample;
        const auto model = sample.make();
        model->toggleKeep(u"a"_qs);
        model->toggleKeep(u"b"_qs);
        ThreadPage page;
        open(page, *model);
        page.writeNote(u"写过"_qs);
        page.setSignalId(u"b"_qs);
        const QSignalSpy replaced(&page, &ThreadPage::noteReplaced);

        model->updateNote(u"b"_qs, u"别处写的"_qs);

        QCOMPARE(replaced.size(), 1);
    }

    void showsTheNoteOfTheThreadsSavedVersion()
    {
        SampleModel sample;
        sample.signals = {sampleSignal(u"a"_qs, u"t"_qs), sampleSignal(u"b"_qs, u"t"_qs)};
        const auto model = sample.make();
        model->toggleKeep(u"b"_qs);
        ThreadPage page;
        open(page, *model);

        QVERIFY(page.kept());
        QCOMPARE(page.saveReason(), u"Why b"_qs);
        page.writeNote(u"同一条脉络"_qs);
        QCOMPARE(model->workspace().saved.at(u"b"_qs).note, u"同一条脉络"_qs);
        QVERIFY(!model->workspace().saved.contains(u"a"_qs));
    }

    void aRetiredSignalHasAThread()
    {
        SampleModel sample;
        sample.retiredSignals = {sampleSignal(u"old"_qs)};
        ShownPage<ThreadPage> page(std::move(sample));
        page->setSignalId(u"old"_qs);

        QCOMPARE(page->title(), u"Title of old"_qs);
        QVERIFY(!page->kept());
    }

    void followsASync()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);
        const auto before = page->rows()->rows();

        page.sync({u"a"_qs});

        QVERIFY(page->rows()->rows() != before);
        QCOMPARE(page->rows()->rows(), ThreadRow::columnOf(page.model->signals().first()));
    }

    void anUnknownSignalLeavesTheThreadAsItWas()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);

        page->setSignalId(QString());
        QCOMPARE(page->title(), u"Title of a"_qs);
    }

    void nothingIsAnnouncedThatDidNotChange()
    {
        ShownPage<ThreadPage> page;
        page->setSignalId(u"a"_qs);
        const QSignalSpy thread(&*page, &ThreadPage::threadChanged);
        const QSignalSpy rows(page->rows(), &QAbstractItemModel::dataChanged);
        const QSignalSpy kept(&*page, &ThreadPage::keptChanged);

        page.model->markSeen(u"b"_qs);
        page.model->toggleKeep(u"b"_qs);

        QVERIFY(thread.isEmpty());
        QVERIFY(rows.isEmpty());
        QVERIFY(kept.isEmpty());
    }
};

TEST_SUBJECT(ThreadPageTest)
#include "ThreadPageTest.moc"
