// SPDX-License-Identifier: Apache-2.0

#include "LaneChipRow.h"
#include "Subject.h"

#include <QTest>

class LaneChipRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsForALaneInItsColour()
    {
        const auto row = LaneChipRow::from(InformationLane::Workflow, 4, true);

        QCOMPARE(row.key(), u"workflow"_qs);
        QCOMPARE(row.text, u"工作流与方法 4"_qs);
        QVERIFY(row.selected);
        QCOMPARE(row.square.name(), u"#d9a6c7"_qs);
    }

    void standsForAllLanesWithoutAColour()
    {
        const auto row = LaneChipRow::from(std::nullopt, 1234, false);

        QCOMPARE(row.key(), QString());
        QCOMPARE(row.text, u"全部 1234"_qs);
        QVERIFY(!row.selected);
        QCOMPARE(row.square.alpha(), 0);
    }
};

TEST_SUBJECT(LaneChipRowTest)
#include "LaneChipRowTest.moc"
