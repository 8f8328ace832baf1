// SPDX-License-Identifier: Apache-2.0

#include "KeptPage.h"
#include "ShownPage.h"
#include "Subject.h"

#include <QSignalSpy>
#include <QTest>

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
