// SPDX-License-Identifier: Apache-2.0

#include "Browser.h"
#include "ScreenTour.h"
#include "Subject.h"

#include <QTest>

/// The sources under the reader's hands.
class SourcesViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theirLinkOpensThePageOfTheSite()
    {
        ScreenTour::Visit visit(
            {.name = {}, .act = ScreenTour::goTo(InformationModel::Surface::Sources)});
        const Browser browser;
        visit.window().press(u"网页版"_qs, QAccessible::Link);
        QCOMPARE(browser.opened, QList{QUrl(u"https://corvanite.example/sources"_qs)});
        QCOMPARE(visit.window().warnings(), QStringList());
    }
};

TEST_SUBJECT(SourcesViewTest)
#include "SourcesViewTest.moc"
