// SPDX-License-Identifier: Apache-2.0

#include "EditionDiff.h"

#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "InformationUpdateNotice.h"
#include "TerminalText.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Snapshot = InformationPackSync::Snapshot;
using SignalsById = QHash<QString, InformationSignal>;

SignalsById byId(const QList<InformationSignal>& signalList)
{
    SignalsById index;
    for (const auto& signal : signalList) {
        if (!index.contains(signal.id)) {
            index.insert(signal.id, signal);
        }
    }
    return index;
}

QString listed(const InformationSignal& signal)
{
    return u"  · %1（%2，%3）"_qs.arg(signal.title, displayName(signal.lane), signal.id);
}

/// A heading with a count and a line for each; nothing for no lines.
QStringList section(const QString& heading, const QStringList& lines)
{
    return lines.isEmpty() ? QStringList() : QStringList{heading.arg(lines.size())} + lines;
}

QStringList changedFields(const InformationSignal& before, const InformationSignal& after)
{
    QStringList fields;
    const auto compare = [&](const QString& name, const auto& field) {
        if (before.*field != after.*field) {
            fields.append(name);
        }
    };
    compare(u"新或变化"_qs, &InformationSignal::kind);
    compare(u"栏目"_qs, &InformationSignal::lane);
    compare(u"标题"_qs, &InformationSignal::title);
    compare(u"摘要"_qs, &InformationSignal::summary);
    compare(u"变化说明"_qs, &InformationSignal::updateSummary);
    compare(u"要点"_qs, &InformationSignal::digest);
    compare(u"为什么值得看"_qs, &InformationSignal::why);
    compare(u"限制"_qs, &InformationSignal::caveat);
    compare(u"来源"_qs, &InformationSignal::source);
    compare(u"原文地址"_qs, &InformationSignal::originalURL);
    compare(u"相关链接"_qs, &InformationSignal::relatedSources);
    compare(u"时间线"_qs, &InformationSignal::timeline);
    compare(u"发布时间"_qs, &InformationSignal::publishedAt);
    compare(u"核验时间"_qs, &InformationSignal::observedAt);
    compare(u"脉络"_qs, &InformationSignal::followTarget);
    compare(u"依据"_qs, &InformationSignal::ingestion);
    return fields;
}

QString changeLine(const InformationSignal& before, const InformationSignal& after)
{
    QString line = listed(after) + u'：' + changedFields(before, after).join(u'、');
    if (before.observedAt == after.observedAt) {
        line += u"；核验时间没变，隐藏过它的读者看不到这次变化"_qs;
    }
    return line;
}

QString arrivalLine(const InformationSignal& signal, const QList<InformationSignal>& known)
{
    const bool goesOn = std::ranges::any_of(known, [&](const InformationSignal& earlier) {
        return earlier.followTarget.id == signal.followTarget.id;
    });
    return goesOn ? listed(signal) + u"：续到已有的脉络"_qs : listed(signal);
}

QList<InformationSignal> retiredOf(const EditionFolder& edition)
{
    return edition.retired ? InformationPackCoding::decodeRetired(edition.retired->bytes)
                                 .value_or(QList<InformationSignal>())
                           : QList<InformationSignal>();
}

QStringList departureLines(const Snapshot& before, const SignalsById& now,
                           const SignalsById& retired)
{
    QStringList lines;
    for (const auto& signal : before.signals) {
        if (!now.contains(signal.id)) {
            lines.append(retired.contains(signal.id)
                             ? listed(signal)
                             : listed(signal) + u"：不在已退出名单里，往期会找不到它"_qs);
        }
    }
    return lines;
}

QStringList dayLines(const Snapshot& before, const Snapshot& after)
{
    QHash<QString, SelectionDay> earlier;
    for (const auto& day : before.selectionDays) {
        earlier.insert(day.date, day);
    }
    QStringList lines;
    for (const auto& day : after.selectionDays) {
        const auto known = earlier.constFind(day.date);
        if (known != earlier.cend() && *known == day) {
            earlier.remove(day.date);
            continue;
        }
        const QString change = known == earlier.cend() ? u"新的一天"_qs : u"改动"_qs;
        lines.append(u"  · %1：%2，入选 %3 条，列出 %4 条"_qs.arg(day.date, change)
                         .arg(day.focusSignalIds.size())
                         .arg(day.totalShown));
        earlier.remove(day.date);
    }
    QStringList gone = earlier.keys();
    gone.sort();
    for (const QString& date : gone) {
        lines.append(u"  · %1：不再列出"_qs.arg(date));
    }
    return lines;
}

QString syncLine(const Snapshot& before, const Snapshot& after)
{
    constexpr qsizetype dayLength = 10;
    const QString day = after.asOf.first(std::min(dayLength, after.asOf.size()));
    if (!after.isNewer(before.asOf)) {
        return u"按下“同步站点”后什么也不变，显示“已是最新（%1 条，%2）”：新版的 asOf 要晚于 %3"_qs
            .arg(after.signals.size())
            .arg(day, before.asOf);
    }
    return u"按下“同步站点”后显示“已同步 %1 条 · %2”"_qs.arg(after.signals.size()).arg(day);
}

QString memberOf(const std::optional<EditionDocument>& document, QStringView key)
{
    return document ? document->root.value(key).toString() : QString();
}

QStringList versionLines(const EditionFolder& before, const EditionFolder& after)
{
    const QString old = memberOf(before.appVersion, u"version");
    const QString now = memberOf(after.appVersion, u"version");
    return InformationUpdateNotice::isNewer(now, old)
               ? QStringList{u"%1 的程序会提示有 %2"_qs.arg(old, now)}
               : QStringList();
}

QStringList orderLines(const Snapshot& before, const Snapshot& after, const SignalsById& old,
                       const SignalsById& now)
{
    const auto remaining = [](const Snapshot& snapshot, const SignalsById& others) {
        QStringList ids;
        for (const auto& signal : snapshot.signals) {
            if (others.contains(signal.id)) {
                ids.append(signal.id);
            }
        }
        return ids;
    };
    return remaining(before, now) == remaining(after, old) ? QStringList()
                                                           : QStringList{u"留下的卡片换了先后"_qs};
}

} // namespace

QStringList EditionDiff::lines(const EditionFolder& before, const EditionFolder& after)
{
    const Snapshot old = InformationPackSync::parse(before.pack->bytes).value();
    const Snapshot now = InformationPackSync::parse(after.pack->bytes).value();
    const SignalsById oldById = byId(old.signals);
    const SignalsById nowById = byId(now.signals);
    const QList<InformationSignal> known = old.signals + retiredOf(before);

    QStringList arrived;
    QStringList changed;
    for (const auto& signal : now.signals) {
        const auto earlier = oldById.constFind(signal.id);
        if (earlier == oldById.cend()) {
            arrived.append(arrivalLine(signal, known));
        } else if (*earlier != signal) {
            changed.append(changeLine(*earlier, signal));
        }
    }
    QStringList told =
        QStringList{syncLine(old, now)} + section(u"新来 %1 张"_qs, arrived) +
        section(u"变化 %1 张"_qs, changed) +
        section(u"离开 %1 张"_qs, departureLines(old, nowById, byId(retiredOf(after)))) +
        orderLines(old, now, oldById, nowById) + section(u"往期 %1 天"_qs, dayLines(old, now)) +
        versionLines(before, after);
    std::ranges::transform(told, told.begin(), TerminalText::of);
    return told;
}
