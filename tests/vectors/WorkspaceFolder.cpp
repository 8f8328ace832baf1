// SPDX-License-Identifier: Apache-2.0

#include "WorkspaceFolder.h"

#include "InformationSignalCoding.h"
#include "SampleModel.h"
#include "VectorFixtures.h"
#include "WorkspaceLoading.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

constexpr QLatin1StringView loadedKey("ok");
constexpr QLatin1StringView savedAgainKey("savedAgain");
constexpr QLatin1StringView startMessageKey("startMessage");

std::optional<QByteArray> content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

QJsonObject object(const QString& path)
{
    return QJsonDocument::fromJson(content(path).value_or(QByteArray())).object();
}

QList<InformationSignal> signalsOf(const QJsonValue& modelForms)
{
    QList<InformationSignal> signals;
    for (const auto& modelForm : modelForms.toArray()) {
        signals.append(
            InformationSignalCoding::decode<InformationSignal>(modelForm.toObject()).value());
    }
    return signals;
}

// What the file holds after the loaded workspace has been saved.
QJsonObject savedAgain(const InformationWorkspace& workspace)
{
    const MemoryFileManager fileManager;
    const auto repository = InformationWorkspaceRepository::live(fileManager).value();
    repository.save(workspace, fileManager).value();
    return QJsonDocument::fromJson(fileManager.files.value(repository.filePath)).object();
}

// What the program says at its start over the stored workspace.
QJsonValue startMessage(const QByteArray& document)
{
    SampleModel sample;
    const auto repository = InformationWorkspaceRepository::live(sample.files).value();
    sample.files.files.insert(repository.filePath, document);
    const auto model = sample.make();
    const auto& message = model->errorMessage();
    return message ? QJsonValue(*message) : QJsonValue::Null;
}

} // namespace

VectorTally checkWorkspaceFolder(const QDir& folder)
{
    const QString ending = u".expect.json"_qs;
    const QJsonObject catalog = object(folder.filePath(u"catalog.json"_qs));
    const QList<InformationSignal> signals =
        signalsOf(catalog.value(QLatin1StringView("retired"))) +
        signalsOf(catalog.value(QLatin1StringView("signals")));

    VectorTally tally(folder.path());
    for (const QString& expectation : folder.entryList({u'*' + ending}, QDir::Files, QDir::Name)) {
        const QJsonObject wanted = object(folder.filePath(expectation));
        const QString name = expectation.chopped(ending.size()) + u".json"_qs;
        const auto document = content(folder.filePath(name));

        QJsonObject came = loadedWorkspace(document, signals);
        if (wanted.contains(savedAgainKey)) {
            const auto loaded = VectorFixtures::workspace(came.value(loadedKey).toObject());
            came.insert(savedAgainKey, savedAgain(loaded));
        }
        if (document && wanted.contains(startMessageKey)) {
            came.insert(startMessageKey, startMessage(*document));
        }
        tally.compare(name, name, wanted, came);
    }
    return tally;
}
