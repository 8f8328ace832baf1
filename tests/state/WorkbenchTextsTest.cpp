// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchTexts.h"
#include "Subject.h"

#include <QTest>

class WorkbenchTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLeadCountsWhatIsHidden()
    {
        QCOMPARE(WorkbenchTexts::todayLead(22, 3, 0),
                 u"已检查 478 条公开信息，归并、去重和过滤后留下 22 条；先替你放出 3 条。"_qs);
        QCOMPARE(
            WorkbenchTexts::todayLead(19, 3, 3),
            u"已检查 478 条公开信息，归并、去重和过滤后留下 19 条；先替你放出 3 条，另有 3 条按你的调整暂不展示。"_qs);
    }

    void reducedLanesGoBeforeHiddenItems()
    {
        QCOMPARE(WorkbenchTexts::preferenceStatusText(2, 5),
                 u"已按你之前的 2 次反馈调整顺序；重要变化不会被完全屏蔽。"_qs);
        QCOMPARE(WorkbenchTexts::preferenceStatusText(1, 5),
                 u"已按你之前的 1 次反馈调整顺序；重要变化不会被完全屏蔽。"_qs);
        QCOMPARE(WorkbenchTexts::preferenceStatusText(0, 5),
                 u"已保留之前的 5 条内容调整；后续重要变化仍会重新出现。"_qs);
    }

    void everyUpdateModeIsToldApart()
    {
        QCOMPARE(WorkbenchTexts::followText(InformationFollowUpdateMode::VerifiedChange),
                 u"后续实质变化会续到这里"_qs);
        QCOMPARE(WorkbenchTexts::followText(InformationFollowUpdateMode::SnapshotBaseline),
                 u"完整核验后的变化会续到这里"_qs);
        QCOMPARE(WorkbenchTexts::followText(InformationFollowUpdateMode::EditorialWatch),
                 u"尚未接入自动更新，不会冒充已经同步"_qs);
    }
};

TEST_SUBJECT(WorkbenchTextsTest)
#include "WorkbenchTextsTest.moc"
