// SPDX-License-Identifier: Apache-2.0

#include "NextEdition.h"

#include "CodePointOrder.h"
#include "EditionWriter.h"
#include "FeedTime.h"
#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "JsonPlace.h"

#include <QJsonArray>
#include <QSet>

using JsonPlace::element;
using JsonPlace::member;
using JsonPlace::root;

namespace {

Finding refusal(const QString& document, const QString& place, const QString& text)
{
    return {Finding::Severity::Error, document, place, text};
}

std::optional<Finding> missingPack(const EditionFolder& folder)
{
    if (!folder.pack) {
        return refusal(folder.path, QString(),
                       u"没有 %1：请放进这个文件夹"_qs.arg(EditionDocument::packName));
    }
    if (!InformationPackSync::parse(folder.pack->bytes)) {
        return refusal(folder.pack->name, root, u"程序不收这个信息包：请先用 check 检查"_qs);
    }
    return std::nullopt;
}

std::optional<Finding> undecodedRetired(const EditionFolder& folder)
{
    if (folder.retired && !InformationPackCoding::decodeRetired(folder.retired->bytes)) {
        return refusal(folder.retired->name, root, u"程序不收这份已退出名单：请先用 check 检查"_qs);
    }
    return std::nullopt;
}

QString idOf(const QJsonValue& signal)
{
    return signal[u"id"].toString();
}

std::optional<Finding> repeatedId(const EditionDocument& pack)
{
    QSet<QString> ids;
    const QJsonArray signalList = pack.root.value(u"signals").toArray();
    for (qsizetype index = 0; index < signalList.size(); ++index) {
        const QString id = idOf(signalList[index]);
        if (ids.contains(id)) {
            return refusal(pack.name, member(element(member(root, "signals"), index), "id"),
                           u"编号“%1”已经用过：每张卡片的编号只能出现一次"_qs.arg(id));
        }
        ids.insert(id);
    }
    return std::nullopt;
}

std::optional<Finding> troubleWith(const EditionFolder& published, const EditionFolder& next)
{
    if (auto trouble = missingPack(published)) {
        return trouble;
    }
    if (auto trouble = undecodedRetired(published)) {
        return trouble;
    }
    if (auto trouble = missingPack(next)) {
        return trouble;
    }
    return repeatedId(*next.pack);
}

/// The signals of the document whose ids are not among those met, which from now on they are.
QJsonArray unmetSignals(const EditionDocument& document, QSet<QString>& met)
{
    QJsonArray unmet;
    const QJsonArray signalList = document.root.value(u"signals").toArray();
    for (const auto& signal : signalList) {
        if (!met.contains(idOf(signal))) {
            met.insert(idOf(signal));
            unmet.append(signal);
        }
    }
    return unmet;
}

QJsonArray joined(const QJsonArray& first, const QJsonArray& second)
{
    QJsonArray all = first;
    for (const auto& element : second) {
        all.append(element);
    }
    return all;
}

/// The published days up to the first new one, then the new ones. The last day shows what the
/// edition has.
QJsonArray historyAfter(const QJsonArray& published, const QJsonArray& next, qsizetype signalCount)
{
    QJsonArray history;
    const QString firstNewDay = next.isEmpty() ? QString() : next.first()[u"date"].toString();
    for (const auto& day : published) {
        if (next.isEmpty() || day[u"date"].toString() < firstNewDay) {
            history.append(day);
        }
    }
    history = joined(history, next);
    if (!next.isEmpty()) {
        QJsonObject today = history.last().toObject();
        today.insert(u"totalShown"_qs, signalCount);
        history.replace(history.size() - 1, today);
    }
    return history;
}

/// Its own time where it has a later one than the published edition, else now.
QString timeAfter(const QString& published, const QString& own, qint64 now)
{
    return codePointLess(published, own) ? own : FeedTime::stampOf(now);
}

} // namespace

std::expected<NextEdition, Finding> NextEdition::after(const EditionFolder& published,
                                                       const EditionFolder& next, qint64 now)
{
    if (const auto trouble = troubleWith(published, next)) {
        return std::unexpected(*trouble);
    }
    const QJsonArray signalList = next.pack->root.value(u"signals").toArray();
    const QString publishedAsOf = published.pack->root.value(u"asOf").toString();
    const QString asOf = timeAfter(publishedAsOf, next.pack->root.value(u"asOf").toString(), now);
    if (!codePointLess(publishedAsOf, asOf)) {
        return std::unexpected(
            refusal(next.pack->name, member(root, "asOf"),
                    u"不晚于已发布的 %1：请核对这台机器的时钟，或者写一个更晚的时间"_qs.arg(
                        publishedAsOf)));
    }
    QJsonObject pack = next.pack->root;
    pack.insert(u"asOf"_qs, asOf);
    pack.insert(u"selectionHistory"_qs,
                historyAfter(published.pack->root.value(u"selectionHistory").toArray(),
                             pack.value(u"selectionHistory").toArray(), signalList.size()));
    QSet<QString> met;
    unmetSignals(*next.pack, met);
    const QJsonArray left = unmetSignals(*published.pack, met);
    const QJsonArray leftEarlier =
        published.retired ? unmetSignals(*published.retired, met) : QJsonArray();
    return NextEdition{
        .pack = EditionWriter::document(DocumentKind::Pack, pack),
        .retired = EditionWriter::document(
            DocumentKind::RetiredList,
            {{u"schemaVersion"_qs, QString(InformationPackSync::expectedSchemaVersion)},
             {u"signals"_qs, joined(left, leftEarlier)}}),
        .leftCount = left.size(),
    };
}
