// SPDX-License-Identifier: Apache-2.0

#include "RowSlices.h"
#include "Subject.h"

#include <QTest>

#include <numeric>

class RowSlicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dealsTheRowsOutInTheirOrder_data()
    {
        QTest::addColumn<qsizetype>("count");
        QTest::addColumn<QList<qsizetype>>("lengths");

        QTest::newRow("none") << qsizetype(0) << QList<qsizetype>{0};
        QTest::newRow("one") << qsizetype(1) << QList<qsizetype>{1};
        QTest::newRow("as many as go into a slice") << qsizetype(12) << QList<qsizetype>{12};
        QTest::newRow("one more") << qsizetype(13) << QList<qsizetype>{12, 1};
        QTest::newRow("several slices full") << qsizetype(36) << QList<qsizetype>{12, 12, 12};
    }

    void dealsTheRowsOutInTheirOrder()
    {
        QFETCH(const qsizetype, count);
        QList<int> rows(count);
        std::iota(rows.begin(), rows.end(), 0);

        QList<qsizetype> lengths;
        QList<int> together;
        for (const auto& slice : RowSlices::of(rows)) {
            lengths.append(slice.size());
            together.append(slice);
        }

        QTEST(lengths, "lengths");
        QCOMPARE(together, rows);
    }
};

TEST_SUBJECT(RowSlicesTest)
#include "RowSlicesTest.moc"
