#include "VectorFunctions.h"

#include "FakeSiteClient.h"
#include "InformationModel.h"
#include "MemoryFileManager.h"
#include "VectorFixtures.h"

#include <QJsonArray>

namespace {

constexpr FileError injectedFailure{FileError::Reason::InputOutput};

// Sets the site's answer and, where the reply says so, lets storing it fail.
void offer(const QJsonValue& reply, QLatin1StringView path, const QString& file,
           FakeSiteClient& site, MemoryFileManager& files)
{
    const QJsonObject object = reply.toObject();
    const auto body =
        VectorFixtures::document(object.value(QLatin1StringView("doc")).toObject()).value();
    site.answers.insert(path, VectorFixtures::siteAnswer(reply, body));
    if (object.value(QLatin1StringView("saveFails")).toBool()) {
        files.writeFailures.insert(file, injectedFailure);
    }
}

// Whether the file holds what the site sent.
QJsonValue storedFile(const MemoryFileManager& files, const QString& file,
                      const SiteClient::Answer& answer)
{
    if (!files.files.contains(file)) {
        return QJsonValue::Null;
    }
    return answer && files.files.value(file) == answer->body ? u"downloaded"_qs
                                                             : u"something else"_qs;
}

QJsonValue refreshPackFromSite(const QJsonObject& in)
{
    using namespace VectorFixtures;
    MemoryFileManager files;
    const QString directory = InformationPackSync::liveDirectory(files).value();
    const QString packFile = directory + u"/information-pack.json"_qs;
    const QString retiredFile = directory + u"/retired-signals.json"_qs;
    if (!in.value(QLatin1StringView("directory")).toBool()) {
        files.supportDirectory.reset();
    }
    FakeSiteClient site;
    offer(in.value(QLatin1StringView("packResponse")), SiteClient::packPath, packFile, site, files);
    offer(in.value(QLatin1StringView("retiredResponse")), SiteClient::retiredSignalsPath,
          retiredFile, site, files);

    InformationModel model(
        {.fileManager = files,
         .now = [] { return 0.0; },
         .seedHistory = {},
         .site = site,
         .runningVersion = {}},
        InformationContent(shortSignals(in.value(QLatin1StringView("signals"))),
                           shortSignals(in.value(QLatin1StringView("retired"))),
                           selectionDays(in.value(QLatin1StringView("selectionDays"))),
                           in.value(QLatin1StringView("asOf")).toString()),
        std::nullopt);
    model.refreshPackFromSite();

    QJsonArray dates;
    for (const auto& day : model.selectionDays()) {
        dates.append(day.date);
    }
    return QJsonObject{
        {u"packSyncNote"_qs, orNull(model.packSyncNote())},
        {u"isSyncingPack"_qs, model.isSyncingPack()},
        {u"signals"_qs, ids(model.signals())},
        {u"retired"_qs, ids(model.retiredSignals())},
        {u"selectionDays"_qs, dates},
        {u"packAsOf"_qs, model.packAsOf()},
        {u"packFile"_qs, storedFile(files, packFile, site.answers.value(SiteClient::packPath))},
        {u"retiredFile"_qs,
         storedFile(files, retiredFile, site.answers.value(SiteClient::retiredSignalsPath))},
    };
}

} // namespace

void addRefreshFunctions(VectorFunctions& functions)
{
    functions.insert(u"refreshPackFromSite"_qs, refreshPackFromSite);
}
