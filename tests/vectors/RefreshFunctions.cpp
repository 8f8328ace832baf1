// SPDX-License-Identifier: Apache-2.0

#include "VectorFunctions.h"

#include "SampleModel.h"
#include "VectorFixtures.h"

#include <QJsonArray>

namespace {

// Sets the site's answer and, where the reply says so, lets storing it fail.
void offer(const QJsonValue& reply, QLatin1StringView path, const QString& file,
           SampleModel& sample)
{
    const QJsonObject object = reply.toObject();
    const auto body =
        VectorFixtures::document(object.value(QLatin1StringView("doc")).toObject()).value();
    sample.site->answers.insert(path, VectorFixtures::siteAnswer(reply, body));
    if (object.value(QLatin1StringView("saveFails")).toBool()) {
        sample.files.writeFailures.insert(file, VectorFixtures::injectedFailure);
    }
}

// Whether the file holds what the site sent.
QJsonValue storedFile(const SampleModel& sample, const QString& file, QLatin1StringView path)
{
    const auto& files = sample.files.files;
    if (!files.contains(file)) {
        return QJsonValue::Null;
    }
    const auto answer = sample.site->answers.value(path);
    return answer && files.value(file) == answer->body ? u"downloaded"_qs : u"something else"_qs;
}

QJsonValue refreshPackFromSite(const QJsonObject& in)
{
    using namespace VectorFixtures;
    SampleModel sample;
    sample.hasRepository = false;
    sample.signals = shortSignals(in.value(QLatin1StringView("signals")));
    sample.retiredSignals = shortSignals(in.value(QLatin1StringView("retired")));
    sample.selectionDays = selectionDays(in.value(QLatin1StringView("selectionDays")));
    sample.packAsOf = in.value(QLatin1StringView("asOf")).toString();
    const QString directory = InformationPackSync::liveDirectory(sample.files).value();
    const QString packFile = directory + u"/information-pack.json"_qs;
    const QString retiredFile = directory + u"/retired-signals.json"_qs;
    if (!in.value(QLatin1StringView("directory")).toBool()) {
        sample.files.supportDirectory.reset();
    }
    offer(in.value(QLatin1StringView("packResponse")), SiteClient::packPath, packFile, sample);
    offer(in.value(QLatin1StringView("retiredResponse")), SiteClient::retiredSignalsPath,
          retiredFile, sample);
    const auto model = sample.make();

    model->refreshPackFromSite();

    QJsonArray dates;
    for (const auto& day : model->selectionDays()) {
        dates.append(day.date);
    }
    return QJsonObject{
        {u"packSyncNote"_qs, orNull(model->packSyncNote())},
        {u"isSyncingPack"_qs, model->isSyncingPack()},
        {u"signals"_qs, ids(model->signals())},
        {u"retired"_qs, ids(model->retiredSignals())},
        {u"selectionDays"_qs, dates},
        {u"packAsOf"_qs, model->packAsOf()},
        {u"packFile"_qs, storedFile(sample, packFile, SiteClient::packPath)},
        {u"retiredFile"_qs, storedFile(sample, retiredFile, SiteClient::retiredSignalsPath)},
    };
}

} // namespace

void addRefreshFunctions(VectorFunctions& functions)
{
    functions.insert(u"refreshPackFromSite"_qs, refreshPackFromSite);
}
