// SPDX-License-Identifier: Apache-2.0

#include "InformationLane.h"
#include "Subject.h"

#include <QTest>

class InformationLaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTokenNamesItsLane()
    {
        for (const auto& entry : vocabulary<InformationLane>) {
            QCOMPARE(rawValue(entry.value), entry.token);
            QCOMPARE(fromRawValue<InformationLane>(QString(entry.token)), entry.value);
        }
    }

    void unknownTokensNameNothing()
    {
        QVERIFY(!fromRawValue<InformationLane>(u"Workflow"));
        QVERIFY(!fromRawValue<InformationLane>(u""));
    }

    void namesAndAccents_data()
    {
        QTest::addColumn<InformationLane>("lane");
        QTest::addColumn<QString>("name");
        QTest::addColumn<LaneAccent>("color");

        using enum InformationLane;
        const auto row = [](InformationLane lane, const QString& name, const LaneAccent& color) {
            QTest::newRow(qPrintable(name)) << lane << name << color;
        };
        row(OpenSourceGrowth, u"开源增长"_qs, {0.49, 0.78, 0.61});
        row(ProductRadar, u"产品雷达"_qs, {0.52, 0.72, 0.88});
        row(Opportunity, u"赚钱机会"_qs, {0.91, 0.70, 0.37});
        row(Workflow, u"工作流与方法"_qs, {0.85, 0.65, 0.78});
        row(FounderStory, u"创业复盘"_qs, {0.88, 0.56, 0.59});
        row(PlatformShift, u"平台变化"_qs, {0.68, 0.73, 0.80});
    }

    void namesAndAccents()
    {
        QFETCH(const InformationLane, lane);

        QTEST(displayName(lane), "name");
        QTEST(accent(lane), "color");
    }
};

TEST_SUBJECT(InformationLaneTest)
#include "InformationLaneTest.moc"
