// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchTexts.h"

#include "InformationIntake.h"

#include <utility>

QString WorkbenchTexts::todayLead(qsizetype visible, qsizetype focused, qsizetype hidden)
{
    const QString adjusted =
        hidden == 0 ? QString() : u"，另有 %1 条按你的调整暂不展示"_qs.arg(hidden);
    return u"已检查 %1 条公开信息，归并、去重和过滤后留下 %2 条；先替你放出 %3 条%4。"_qs
        .arg(checkedItemCount)
        .arg(visible)
        .arg(focused)
        .arg(adjusted);
}

QString WorkbenchTexts::preferenceStatusText(qsizetype reducedLanes, qsizetype hidden)
{
    if (reducedLanes > 0) {
        return u"已按你之前的 %1 次反馈调整顺序；重要变化不会被完全屏蔽。"_qs.arg(reducedLanes);
    }
    return u"已保留之前的 %1 条内容调整；后续重要变化仍会重新出现。"_qs.arg(hidden);
}

QString WorkbenchTexts::intakeMessage(InformationIntakeFailure failure)
{
    switch (failure) {
    case InformationIntakeFailure::Empty:
        return u"请粘贴一个链接，或写一句想持续更新的内容。"_qs;
    case InformationIntakeFailure::TooLong:
        return u"请缩短到 %1 个字以内；只需说清想跟踪什么。"_qs.arg(
            InformationIntake::maximumInputLength);
    case InformationIntakeFailure::UnsupportedURL:
        return u"当前只接收公开 HTTPS 网页；内网、带账号或其他协议不会接入。"_qs;
    }
    std::unreachable();
}

QString WorkbenchTexts::keepReceipt(InformationFollowUpdateMode updateMode)
{
    switch (updateMode) {
    case InformationFollowUpdateMode::VerifiedChange:
        return u"已收下；后续实质变化会续到同一条脉络。"_qs;
    case InformationFollowUpdateMode::SnapshotBaseline:
        return u"已收下；完整核验后的变化会续到同一条脉络。"_qs;
    case InformationFollowUpdateMode::EditorialWatch:
        return u"已收下；这个来源尚未接入自动更新，不会冒充已经同步。"_qs;
    }
    std::unreachable();
}

QString WorkbenchTexts::followText(InformationFollowUpdateMode updateMode)
{
    switch (updateMode) {
    case InformationFollowUpdateMode::VerifiedChange:
        return u"后续实质变化会续到这里"_qs;
    case InformationFollowUpdateMode::SnapshotBaseline:
        return u"完整核验后的变化会续到这里"_qs;
    case InformationFollowUpdateMode::EditorialWatch:
        return u"尚未接入自动更新，不会冒充已经同步"_qs;
    }
    std::unreachable();
}
