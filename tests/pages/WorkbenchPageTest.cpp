#include "KeptPage.h"
#include "SampleModel.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

class WorkbenchPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsWorkedOutWhileNobodySees()
    {
        SampleModel sample;
        const auto model = sample.make();
        KeptPage page;
        page.setShown(false);
        page.setWorkbench(model.get());
        model->toggleKeep(u"a"_qs);
        QCOMPARE(page.eyebrow(), QString());
        QCOMPARE(page.rows()->rows().size(), 0);
    }

    void whatWasMissedIsMadeUpFor()
    {
        SampleModel sample;
        const auto model = sample.make();
        KeptPage page;
        page.setWorkbench(model.get());
        page.setShown(false);
        model->toggleKeep(u"a"_qs);
        QCOMPARE(page.eyebrow(), u"已收下 · 0 项"_qs);
        page.setShown(true);
        QCOMPARE(page.eyebrow(), u"已收下 · 1 项"_qs);
    }

    void nothingMissedIsNotWorkedOutAgain()
    {
        SampleModel sample;
        const auto model = sample.make();
        KeptPage page;
        page.setWorkbench(model.get());
        model->toggleKeep(u"a"_qs);
        const QSignalSpy changes(&page, &KeptPage::textsChanged);
        page.setShown(false);
        page.setShown(true);
        QCOMPARE(changes.size(), 0);
    }
};

TEST_SUBJECT(WorkbenchPageTest)
#include "WorkbenchPageTest.moc"
