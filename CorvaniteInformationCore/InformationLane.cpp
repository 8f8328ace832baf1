// SPDX-License-Identifier: Apache-2.0

#include "InformationLane.h"

#include <utility>

QString displayName(InformationLane lane)
{
    switch (lane) {
    case InformationLane::OpenSourceGrowth:
        return QStringLiteral("开源增长");
    case InformationLane::ProductRadar:
        return QStringLiteral("产品雷达");
    case InformationLane::Opportunity:
        return QStringLiteral("赚钱机会");
    case InformationLane::Workflow:
        return QStringLiteral("工作流与方法");
    case InformationLane::FounderStory:
        return QStringLiteral("创业复盘");
    case InformationLane::PlatformShift:
        return QStringLiteral("平台变化");
    }
    std::unreachable();
}

LaneAccent accent(InformationLane lane)
{
    switch (lane) {
    case InformationLane::OpenSourceGrowth:
        return {0.49, 0.78, 0.61};
    case InformationLane::ProductRadar:
        return {0.52, 0.72, 0.88};
    case InformationLane::Opportunity:
        return {0.91, 0.70, 0.37};
    case InformationLane::Workflow:
        return {0.85, 0.65, 0.78};
    case InformationLane::FounderStory:
        return {0.88, 0.56, 0.59};
    case InformationLane::PlatformShift:
        return {0.68, 0.73, 0.80};
    }
    std::unreachable();
}
