// SPDX-License-Identifier: Apache-2.0

#include "WalkDocuments.h"

#include "SiteDocuments.h"

#include <QDateTime>
#include <QJsonDocument>

namespace {

constexpr int keptAtStart = 3000;
constexpr int knownSignals = 400;
constexpr int publishedSignals = 120;
constexpr int targets = 250;

QString signalId(int number)
{
    return u"signal-%1"_qs.arg(number);
}

QStringList selectedIds(Dice& dice)
{
    QStringList ids;
    for (int number = dice.roll(knownSignals); ids.size() < publishedSignals; ++number) {
        if (dice.roll(3) == 0) {
            ids.append(signalId(number % knownSignals));
        }
    }
    ids.removeDuplicates();
    return ids;
}

QJsonObject newVersion(QJsonObject signal, int packNumber, const QDateTime& published, Dice& dice)
{
    const int number = signal.value(u"id"_qs).toString().section(u'-', 1).toInt();
    QJsonObject target = signal.value(u"followTarget"_qs).toObject();
    target.insert(u"id"_qs, u"target-of-signal-%1"_qs.arg(number % targets));
    signal.insert(u"followTarget"_qs, target);
    signal.insert(u"why"_qs, QJsonObject{{u"zh"_qs, u"理由 %1"_qs.arg(packNumber)}});
    signal.insert(u"state"_qs, dice.roll(3) == 0 ? u"update"_qs : u"new"_qs);
    signal.insert(u"observedAt"_qs, published.addSecs(-3600 * dice.roll(60)).toString(Qt::ISODate));
    signal.insert(u"lane"_qs, QString(vocabulary<InformationLane>.at(number % 6).token));
    return signal;
}

} // namespace

QString WalkDocuments::sourceText(int number)
{
    return u"想跟踪的第 %1 句话"_qs.arg(number);
}

InformationWorkspace WalkDocuments::workspace(std::chrono::sys_seconds now)
{
    InformationWorkspace workspace;
    for (int number = 0; number < keptAtStart; ++number) {
        const QString id = number < publishedSignals ? signalId(number) : u"past-%1"_qs.arg(number);
        workspace.saved[id] = {now - std::chrono::hours(number), u"当时收下的理由 "_qs + id,
                               u"备注 %1"_qs.arg(number)};
        workspace.following.append(u"target-of-%1"_qs.arg(id));
    }
    for (int number = 0; number < 200; ++number) {
        workspace.hidden.append(u"past-%1@2089-01-01T00:00:00Z"_qs.arg(number));
        workspace.seenTargets.append(u"target-of-past-%1"_qs.arg(number));
    }
    workspace.reducedLanes = {InformationLane::Opportunity};
    for (int number = 0; number < mostSources - 2; ++number) {
        workspace.customSources.append({QUuid::createUuid(), sourceText(number), now});
    }
    return workspace;
}

QByteArray WalkDocuments::pack(int number, Dice& dice)
{
    const auto published = QDateTime(QDate(2090, 1, 1), QTime(), Qt::UTC).addSecs(3600 * number);
    const QStringList days{u"2090-01-01"_qs, u"2090-01-02"_qs, u"2090-01-03"_qs, u"2090-01-04"_qs,
                           u"2090-01-05"_qs};
    const auto asOf = published.toString(dice.roll(4) == 0 ? Qt::ISODate : Qt::ISODateWithMs);
    auto pack =
        QJsonDocument::fromJson(SiteDocuments::pack(asOf, selectedIds(dice), days)).object();
    QJsonArray signals;
    for (const auto& signal : pack.value(u"signals"_qs).toArray()) {
        signals.append(newVersion(signal.toObject(), number, published, dice));
    }
    pack.insert(u"signals"_qs, signals);
    return QJsonDocument(pack).toJson();
}
