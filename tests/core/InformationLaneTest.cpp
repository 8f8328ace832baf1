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

    void namesAndAccents()
    {
        QCOMPARE(displayName(InformationLane::Workflow), u"工作流与方法"_qs);
        QCOMPARE(accent(InformationLane::PlatformShift), (LaneAccent{0.68, 0.73, 0.80}));
    }
};

TEST_SUBJECT(InformationLaneTest)
#include "InformationLaneTest.moc"
