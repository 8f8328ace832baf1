// SPDX-License-Identifier: Apache-2.0

#include "HistoryCheck.h"

#include "InformationProjection.h"
#include "JsonPlace.h"

#include <QDate>
#include <QSet>

using JsonPlace::element;
using JsonPlace::member;

namespace {

using SignalsById = QHash<QString, InformationSignal>;

bool isDay(const QString& text)
{
    const QString form = u"yyyy-MM-dd"_qs;
    return QDate::fromString(text, form).toString(form) == text && !text.isEmpty();
}

/// The day of a time at UTC+8; empty for a text that is no time.
QString dayOf(const QString& time)
{
    const auto milliseconds = InformationProjection::isoMilliseconds(time);
    return milliseconds ? InformationProjection::beijingDay(*milliseconds) : QString();
}

void checkFocusId(const QString& id, const QString& day, const QString& place,
                  const SignalsById& known, const EditionContext& context, Findings& findings)
{
    const auto signal = known.constFind(id);
    if (signal == known.cend()) {
        if (context.hasRetiredList) {
            findings.error(place, u"“%1”不在信息包里，也不在已退出名单里：请改正编号"_qs.arg(id));
        } else {
            findings.hint(place, u"“%1”不在信息包里：请连同已退出名单一起检查"_qs.arg(id));
        }
        return;
    }
    if (const QString observedDay = dayOf(signal->observedAt); observedDay > day) {
        const QString text =
            u"“%1”到 %2 才核验，%3 还不可能入选：请改正其中一个"_qs.arg(id, observedDay, day);
        // An update may have been featured in an earlier form.
        if (signal->kind == InformationSignalKind::Update) {
            findings.hint(place, text);
        } else {
            findings.error(place, text);
        }
    }
}

void checkFocus(const SelectionDay& day, const QString& place, const SignalsById& known,
                const EditionContext& context, Findings& findings)
{
    const QString list = member(place, "focusSignalIds");
    if (day.focusSignalIds.isEmpty()) {
        findings.error(list, u"这一天没有入选的卡片：请按先后写上编号，或者去掉这一天"_qs);
    }
    QSet<QString> named;
    for (qsizetype index = 0; index < day.focusSignalIds.size(); ++index) {
        const QString& id = day.focusSignalIds[index];
        const QString idPlace = element(list, index);
        checkFocusId(id, day.date, idPlace, known, context, findings);
        if (named.contains(id)) {
            findings.error(idPlace, u"“%1”这一天写了两次：请去掉一个"_qs.arg(id));
        }
        named.insert(id);
    }
}

void checkDay(const SelectionDay& day, const QString& place, const EditionContext& context,
              Findings& findings)
{
    const QString date = member(place, "date");
    if (!isDay(day.date)) {
        findings.error(date, u"“%1”不是日期：请写成 2026-08-27 这样"_qs.arg(day.date));
    } else if (context.asOf && day.date > dayOf(*context.asOf)) {
        findings.error(
            date, u"“%1”晚于本版的日期 %2：请改正其中一个"_qs.arg(day.date, dayOf(*context.asOf)));
    }
    if (day.totalShown < day.focusSignalIds.size()) {
        findings.error(member(place, "totalShown"), u"比入选的卡片还少：请写这一天列出的总数"_qs);
    }
}

} // namespace

void HistoryCheck::check(const QList<SelectionDay>& history,
                         const QList<InformationSignal>& packSignals, const QString& place,
                         const EditionContext& context, Findings& findings)
{
    if (history.isEmpty()) {
        findings.hint(place, u"没有往期：读者会继续看到已有的往期；请写上这一天的选择"_qs);
    }
    SignalsById known = context.retiredSignals;
    for (const auto& signal : packSignals) {
        known.insert(signal.id, signal);
    }
    for (qsizetype index = 0; index < history.size(); ++index) {
        const QString entry = element(place, index);
        checkDay(history[index], entry, context, findings);
        checkFocus(history[index], entry, known, context, findings);
        if (index > 0 && history[index].date <= history[index - 1].date) {
            findings.error(member(entry, "date"), u"不在上一天之后：往期请从旧到新排，一天一条"_qs);
        }
    }
}
