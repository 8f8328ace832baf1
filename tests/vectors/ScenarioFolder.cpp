// SPDX-License-Identifier: Apache-2.0

#include "ScenarioFolder.h"

#include "DerivedState.h"
#include "LocalFileManager.h"
#include "ModelSession.h"
#include "VectorFixtures.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <stdexcept>

namespace {

void storeFiles(const QJsonObject& script, const InformationFileManager& files)
{
    const auto bytes = [&script](QLatin1StringView key) {
        const QJsonValue document = script.value(key);
        return document.isNull() || document.isUndefined()
                   ? std::nullopt
                   : std::optional(VectorFixtures::scriptDocument(document));
    };
    const QString directory = InformationPackSync::liveDirectory(files).value();
    if (const auto pack = bytes(QLatin1StringView("pack"))) {
        InformationPackSync::saveSnapshot(*pack, directory, files).value();
    }
    if (const auto retired = bytes(QLatin1StringView("retired"))) {
        InformationPackSync::saveRetiredSignals(*retired, directory, files).value();
    }
    if (const auto workspace = bytes(QLatin1StringView("workspace"))) {
        files.createDirectory(directory).value();
        files.replaceFile(InformationWorkspaceRepository::live(files).value().filePath, *workspace)
            .value();
    }
}

// The members that the script looks at.
QJsonObject stateOf(ModelSession& session, const QStringList& members)
{
    const InformationModel& model = session.model();
    QJsonObject state = derivedState(model);
    const QJsonObject afterAction = session.state();
    for (auto member = afterAction.begin(); member != afterAction.end(); ++member) {
        state.insert(member.key(), member.value());
    }

    QJsonObject laneCounts;
    for (const auto& lane : vocabulary<InformationLane>) {
        if (const auto count = model.laneCount(lane.value); count > 0) {
            laneCounts.insert(lane.token, count);
        }
    }
    state.insert(u"laneCounts"_qs, laneCounts);
    if (model.workspace().hidden.isEmpty() && model.workspace().reducedLanes.isEmpty()) {
        state.insert(u"preferenceStatusText"_qs, QJsonValue::Null);
    }
    state.insert(u"packSyncNote"_qs, VectorFixtures::orNull(model.packSyncNote()));
    state.insert(u"packAsOf"_qs, model.packAsOf());
    state.insert(u"file"_qs, session.storedWorkspace());

    QJsonObject lookedAt;
    for (const QString& member : members) {
        if (state.contains(member)) {
            lookedAt.insert(member, state.value(member));
        }
    }
    return lookedAt;
}

void play(const QJsonObject& script, const QString& name, VectorTally& tally)
{
    const QTemporaryDir folder;
    const LocalFileManager files(folder.path());
    storeFiles(script, files);
    ModelSession session(files, script.value(QLatin1StringView("storage")).toBool(true));

    const QJsonObject start = script.value(QLatin1StringView("start")).toObject();
    tally.compare(name + u" start"_qs, name, start, stateOf(session, start.keys()));

    const QJsonArray actions = script.value(QLatin1StringView("actions")).toArray();
    const QJsonArray expected = script.value(QLatin1StringView("expect")).toArray();
    for (qsizetype i = 0; i < actions.size(); ++i) {
        const QJsonObject wanted = expected.at(i).toObject();
        const QJsonValue returned = session.perform(actions.at(i).toObject());
        QJsonObject came = stateOf(session, wanted.keys());
        if (!returned.isUndefined()) {
            came.insert(u"returned"_qs, returned);
        }
        tally.compare(u"%1 action %2"_qs.arg(name).arg(i + 1), actions.at(i), wanted, came);
    }
}

} // namespace

VectorTally checkScenarioFolder(const QDir& folder)
{
    VectorTally tally(folder.path());
    for (const QString& name : folder.entryList({u"*.json"_qs}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            tally.fail(name, name, u"a script"_qs, file.errorString());
            continue;
        }
        try {
            play(QJsonDocument::fromJson(file.readAll()).object(), name, tally);
        } catch (const std::exception& unplayable) {
            tally.fail(name, name, u"a script that can be played"_qs,
                       QString::fromUtf8(unplayable.what()));
        }
    }
    return tally;
}
