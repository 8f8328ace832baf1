// SPDX-License-Identifier: Apache-2.0

#include "FirstSize.h"
#include "Subject.h"

#include <QTest>

class FirstSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsTheScreen_data()
    {
        QTest::addColumn<QSize>("available");
        QTest::addColumn<QSize>("size");

        QTest::newRow("roomy") << QSize(1920, 1080) << QSize(1120, 780);
        QTest::newRow("a small laptop") << QSize(1366, 738) << QSize(1120, 738);
        QTest::newRow("half scale") << QSize(960, 510) << QSize(960, 560);
        QTest::newRow("upright") << QSize(600, 1024) << QSize(720, 780);
        QTest::newRow("smaller than the least") << QSize(640, 480) << QSize(720, 560);
    }

    void fitsTheScreen()
    {
        QFETCH(const QSize, available);
        QTEST(FirstSize::within(available), "size");
    }
};

TEST_SUBJECT(FirstSizeTest)
#include "FirstSizeTest.moc"
