// SPDX-License-Identifier: Apache-2.0

#include "SignalCardRow.h"

#include "LaneColor.h"
#include "OpenableAddress.h"
#include "WorkbenchDateLabels.h"

#include <QStringList>

namespace {

QString kindTag(InformationSignalKind kind)
{
    switch (kind) {
    case InformationSignalKind::New:
        return u"新出现"_qs;
    case InformationSignalKind::Update:
        return u"重要更新"_qs;
    }
    Q_UNREACHABLE();
}

QString reachabilityTag(OriginalReachability reachability)
{
    switch (reachability) {
    case OriginalReachability::Open:
        return {};
    case OriginalReachability::Spotty:
        return u"访问可能不稳定"_qs;
    case OriginalReachability::Blocked:
        return u"国内访问受限"_qs;
    }
    Q_UNREACHABLE();
}

QString timeLabel(const InformationSignal& signal, const std::optional<QString>& relativeLabel)
{
    return relativeLabel ? *relativeLabel
                         : WorkbenchDateLabels::label(signal.observedAt) + u"核验"_qs;
}

QString sourceLine(const InformationSignal& signal)
{
    return signal.source + u" · "_qs +
           (signal.publishedAt ? *signal.publishedAt
                               : WorkbenchDateLabels::label(signal.observedAt) + u"观察"_qs);
}

QString description(const SignalCardRow& row)
{
    QStringList parts{row.kindTag, row.laneName, row.timeLabel};
    if (!row.reachabilityTag.isEmpty()) {
        parts.append(row.reachabilityTag);
    }
    if (row.seen) {
        parts.append(u"已看过"_qs);
    }
    return QStringList{parts.join(u'，'), u"为什么值得看："_qs + row.why,
                       u"最大限制："_qs + row.caveat}
        .join(u'\n');
}

} // namespace

SignalCardRow SignalCardRow::from(const InformationSignal& signal, Standing standing,
                                  const std::optional<QString>& relativeLabel)
{
    const auto reachability = signal.originalReachability();
    const auto alternate = signal.reachableAlternate();

    SignalCardRow row;
    row.signalId = signal.id;
    row.laneColor = ::laneColor(signal.lane);
    row.kindTag = ::kindTag(signal.kind);
    row.isUpdate = signal.kind == InformationSignalKind::Update;
    row.laneName = displayName(signal.lane);
    row.timeLabel = ::timeLabel(signal, relativeLabel);
    row.seen = standing.seen;
    row.reachabilityTag = ::reachabilityTag(reachability);
    row.blocked = reachability == OriginalReachability::Blocked;
    row.hasAlternate = alternate.has_value();
    row.alternateAddress = alternate ? OpenableAddress::from(alternate->url) : QString();
    row.title = signal.title;
    row.why = signal.why;
    row.caveat = signal.caveat;
    row.sourceLine = ::sourceLine(signal);
    row.originalAddress = OpenableAddress::from(signal.originalURL);
    row.originalName =
        row.originalAddress.isEmpty() ? row.sourceLine : u"看原文："_qs + signal.title;
    row.hasChange = signal.updateSummary.has_value();
    row.change = signal.updateSummary.value_or(QString());
    row.changeOpen = row.hasChange && standing.changeOpen;
    row.kept = standing.kept;
    row.keepName =
        (standing.kept ? u"从工作台移除并停止更新："_qs : u"收下并持续更新："_qs) + signal.title;
    row.reduceName = u"这类少看："_qs + row.laneName;
    row.description = ::description(row);
    return row;
}
