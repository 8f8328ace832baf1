#include "WorkbenchTexts.h"

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
