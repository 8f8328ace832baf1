// SPDX-License-Identifier: Apache-2.0

#include "LivingProgram.h"

#include "SiteDocuments.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QQmlEngine>

namespace {

constexpr int mostCards = 300;
constexpr int olderBySeconds = 1800;

QStringList idsOf(int first, int end)
{
    QStringList ids;
    for (int number = first; number < end; ++number) {
        ids.append(u"card-%1"_qs.arg(number));
    }
    return ids;
}

/// The days of the two weeks before the Monday.
QStringList days()
{
    QStringList days;
    for (int day = -14; day < 0; ++day) {
        days.append(QDate(2026, 11, 2).addDays(day).toString(Qt::ISODate));
    }
    return days;
}

} // namespace

void LivingProgram::sync(int cards)
{
    m_site.requests.clear();
    m_site.offer(SiteClient::packPath, nextPack(cards));
    m_site.offer(SiteClient::retiredSignalsPath, SiteDocuments::retired(idsOf(cards, mostCards)));
    m_window.pressKey(Qt::Key_F5);
}

void LivingProgram::settle()
{
    qmlEngine(m_window.window())->collectGarbage();
    m_window.settle();
}

QByteArray LivingProgram::nextPack(int cards)
{
    const auto hour = QDateTime(QDate(2026, 11, 1), {}, Qt::UTC).addSecs(3600 * m_packs++);
    auto pack = QJsonDocument::fromJson(
                    SiteDocuments::pack(hour.toString(Qt::ISODateWithMs), idsOf(0, cards), days()))
                    .object();
    auto observed = QDateTime::fromSecsSinceEpoch(static_cast<qint64>(m_now), Qt::UTC);
    QJsonArray signals;
    for (const auto& value : pack.value(u"signals"_qs).toArray()) {
        auto signal = value.toObject();
        signal.insert(u"observedAt"_qs, observed.toString(Qt::ISODate));
        signal.insert(u"lane"_qs,
                      QString(vocabulary<InformationLane>.at(signals.size() % 6).token));
        signals.append(signal);
        observed = observed.addSecs(-olderBySeconds);
    }
    pack.insert(u"signals"_qs, signals);
    return QJsonDocument(pack).toJson();
}
