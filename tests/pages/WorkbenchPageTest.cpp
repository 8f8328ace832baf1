// SPDX-License-Identifier: Apache-2.0

#include "KeptPage.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

namespace {

/// Counts how often it is worked out.
class CountedPage : public WorkbenchPage
{
public:
    int count = 0;
    bool isOfItsTime = false;

protected:
    void follow(const InformationModel& workbench) override
    {
        connect(&workbench, &InformationModel::workspaceChanged, this, &CountedPage::refresh);
    }
    void show(const InformationModel& /*workbench*/) override { ++count; }
    bool tellsTime() const override { return isOfItsTime; }
};

} // namespace

class WorkbenchPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsWorkedOutWhileNobodySees()
    {
        ShownPage<KeptPage> page;
        page->setShown(false);
        page.model->toggleKeep(u"a"_qs);
        QCOMPARE(page->eyebrow(), u"已收下 · 0 项"_qs);
        QCOMPARE(page->rows()->rows().size(), 0);
    }

    void tellsOfAnotherModelAndOfBeingShown()
    {
        SampleModel sample;
        const auto model = sample.make();
        CountedPage page;
        const QSignalSpy workbench(&page, &WorkbenchPage::workbenchChanged);
        const QSignalSpy shown(&page, &WorkbenchPage::shownChanged);

        page.setWorkbench(model.get());
        page.setWorkbench(model.get());
        QCOMPARE(workbench.size(), 1);
        QCOMPARE(page.count, 1);

        page.setShown(true);
        QCOMPARE(shown.size(), 0);
        page.setShown(false);
        QCOMPARE(shown.size(), 1);
    }

    void aModelThatWasLeftIsNotFollowed()
    {
        SampleModel sample;
        SampleModel otherSample;
        const auto model = sample.make();
        const auto other = otherSample.make();
        CountedPage page;
        page.setWorkbench(model.get());
        page.setWorkbench(other.get());
        QCOMPARE(page.count, 2);

        model->toggleKeep(u"a"_qs);
        QCOMPARE(page.count, 2);
    }

    void isWorkedOutAgainOnlyWhereTheModelOrTheTimeHasMovedOn_data()
    {
        QTest::addColumn<bool>("changes");
        QTest::addColumn<bool>("isOfItsTime");
        QTest::addColumn<int>("count");

        QTest::newRow("neither") << false << false << 1;
        QTest::newRow("the model") << true << false << 2;
        QTest::newRow("the time") << false << true << 2;
    }

    void isWorkedOutAgainOnlyWhereTheModelOrTheTimeHasMovedOn()
    {
        QFETCH(const bool, changes);
        QFETCH(const bool, isOfItsTime);
        ShownPage<CountedPage> page;
        page->isOfItsTime = isOfItsTime;

        page->setShown(false);
        if (changes) {
            page.model->toggleKeep(u"a"_qs);
        }
        QCOMPARE(page->count, 1);
        page->setShown(true);

        QTEST(page->count, "count");
        page->setShown(false);
        QTEST(page->count, "count");
    }

    void whatWasMissedIsMadeUpFor()
    {
        ShownPage<KeptPage> page;
        page->setShown(false);
        page.model->toggleKeep(u"a"_qs);
        page->setShown(true);
        QCOMPARE(page->eyebrow(), u"已收下 · 1 项"_qs);
        QCOMPARE(page->rows()->rows().size(), 1);
    }
};

TEST_SUBJECT(WorkbenchPageTest)
#include "WorkbenchPageTest.moc"
