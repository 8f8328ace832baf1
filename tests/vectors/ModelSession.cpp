// SPDX-License-Identifier: Apache-2.0

#include "ModelSession.h"

#include "InformationProjection.h"
#include "InformationSeed.h"
#include "VectorFixtures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>

#include <stdexcept>

namespace {

QString surfaceName(InformationModel::Surface surface)
{
    const QString name = QString::fromLatin1(
        QMetaEnum::fromType<InformationModel::Surface>().valueToKey(static_cast<int>(surface)));
    return name.toLower();
}

} // namespace

ModelSession::ModelSession(const QJsonObject& start) : m_files(m_sample.files)
{
    using namespace VectorFixtures;
    if (start.contains(QLatin1StringView("workspace"))) {
        InformationWorkspaceRepository::live(m_files)
            .value()
            .save(workspace(start.value(QLatin1StringView("workspace")).toObject()), m_files)
            .value();
    }
    m_sample.now = 0;
    m_sample.seedHistory = selectionDays(start.value(QLatin1StringView("seedHistory")));
    m_sample.hasRepository = start.value(QLatin1StringView("storage")).toBool(true);
    this->start(InformationContent(shortSignals(start.value(QLatin1StringView("signals"))),
                                   shortSignals(start.value(QLatin1StringView("retired"))),
                                   selectionDays(start.value(QLatin1StringView("selectionDays"))),
                                   start.value(QLatin1StringView("asOf")).toString()));
    m_model->setActiveLane(
        fromRawValue<InformationLane>(start.value(QLatin1StringView("activeLane")).toString()));
    m_model->setSearch(start.value(QLatin1StringView("search")).toString());
}

ModelSession::ModelSession(const InformationFileManager& files, bool hasStorage) : m_files(files)
{
    m_sample.now = 0;
    m_sample.seedHistory = InformationSeed::selectionHistory();
    m_sample.hasRepository = hasStorage;
    start(InformationContent::atStart(m_files));
    for (const auto& source : m_model->workspace().customSources) {
        m_storedUuids.append(source.id);
    }
}

void ModelSession::start(const InformationContent& content)
{
    m_model = m_sample.make(content, *m_sample.site, m_files);
}

QJsonValue ModelSession::perform(const QJsonObject& action)
{
    if (action.contains(QLatin1StringView("now"))) {
        m_sample.now =
            InformationProjection::parseISODate(action.value(QLatin1StringView("now")).toString())
                .value();
    }
    const QString name = action.value(QLatin1StringView("do")).toString();
    const QString signal = action.value(QLatin1StringView("signal")).toString();
    if (name == u"toggleKeep") {
        m_model->toggleKeep(signal);
    } else if (name == u"removeKept") {
        m_model->removeKept(signal);
    } else if (name == u"reduceSimilar") {
        m_model->reduceSimilar(signal);
    } else if (name == u"markSeen") {
        m_model->markSeen(signal);
    } else if (name == u"updateNote") {
        m_model->updateNote(signal, action.value(QLatin1StringView("note")).toString());
    } else if (name == u"addSource") {
        return m_model->addSource(action.value(QLatin1StringView("input")).toString());
    } else if (name == u"addSources") {
        addSources(action);
    } else if (name == u"removeSource") {
        m_model->removeSource(uuidOfNumber(action.value(QLatin1StringView("id")).toString()));
    } else if (name == u"resetPreferences") {
        m_model->resetPreferences();
    } else if (name == u"undoLastAction") {
        m_model->undoLastAction();
    } else if (name == u"openArchiveDay") {
        m_model->openArchiveDay(action.value(QLatin1StringView("date")).toString());
    } else if (name == u"setSearch") {
        m_model->setSearch(action.value(QLatin1StringView("text")).toString());
    } else if (name == u"setLane") {
        m_model->setActiveLane(
            fromRawValue<InformationLane>(action.value(QLatin1StringView("lane")).toString()));
    } else if (name == u"closeReceipt") {
        m_model->dismissReceipt();
    } else if (name == u"refresh") {
        refresh(action);
    } else if (name == u"restart") {
        start(InformationContent::atStart(m_files));
    } else if (name == u"storageFails") {
        m_failureReason = action.value(QLatin1StringView("reason")).toString();
        m_files.writeFailure = VectorFixtures::injectedFailure;
    } else if (name == u"storageWorks") {
        m_files.writeFailure.reset();
    } else {
        throw std::invalid_argument(qPrintable(u"no action is called "_qs + name));
    }
    return QJsonValue::Undefined;
}

QJsonObject ModelSession::state()
{
    using namespace VectorFixtures;
    const auto& workspace = m_model->workspace();
    QJsonArray kept;
    QJsonArray seen;
    for (const auto& signal : m_model->signals()) {
        if (m_model->isKept(signal)) {
            kept.append(signal.id);
        }
        if (workspace.hasSeen(signal)) {
            seen.append(signal.id);
        }
    }
    QJsonArray customInputs;
    for (const auto& source : m_model->keptCustomSources()) {
        customInputs.append(source.input);
    }
    auto errorMessage = m_model->errorMessage();
    if (errorMessage) {
        errorMessage->replace(VectorFixtures::injectedFailure.localizedDescription(),
                              m_failureReason);
    }
    return {
        {u"surface"_qs, surfaceName(m_model->surface())},
        {u"selectedArchiveDay"_qs, orNull(m_model->selectedArchiveDay())},
        {u"receipt"_qs, orNull(m_model->receipt())},
        {u"errorMessage"_qs, orNull(errorMessage)},
        {u"canUndo"_qs, m_model->canUndo()},
        {u"intakeErrorMessage"_qs, orNull(m_model->intakeErrorMessage())},
        {u"visible"_qs, ids(m_model->visibleSignals())},
        {u"focused"_qs, ids(m_model->focusedSignals())},
        {u"remaining"_qs, ids(m_model->remainingSignals())},
        {u"kept"_qs, ids(InformationProjection::kept(m_model->signals(), workspace))},
        {u"keptItemCount"_qs, m_model->keptItemCount()},
        {u"keptSignals"_qs, ids(m_model->keptSignals())},
        {u"keptCustomInputs"_qs, customInputs},
        {u"isKept"_qs, kept},
        {u"seen"_qs, seen},
        {u"workspace"_qs, withNumberedUuids(toJson(workspace))},
    };
}

void ModelSession::addSources(const QJsonObject& action)
{
    const QString input = action.value(QLatin1StringView("input")).toString();
    const auto last = action.value(QLatin1StringView("to")).toInteger();
    for (auto number = action.value(QLatin1StringView("from")).toInteger(); number <= last;
         ++number) {
        m_model->addSource(QString(input).replace(u'#', QString::number(number)));
    }
}

void ModelSession::refresh(const QJsonObject& action)
{
    const auto answer = [&action](QLatin1StringView document) {
        const QJsonValue reply = action.value(document);
        return VectorFixtures::siteAnswer(
            reply,
            VectorFixtures::scriptDocument(reply.toObject().value(QLatin1StringView("doc"))));
    };
    m_sample.site->answers = {
        {SiteClient::packPath, answer(QLatin1StringView("pack"))},
        {SiteClient::retiredSignalsPath, answer(QLatin1StringView("retired"))},
    };
    m_model->refreshPackFromSite();
}

QJsonValue ModelSession::storedWorkspace()
{
    if (!m_sample.hasRepository) {
        return QJsonValue::Null;
    }
    const auto path = InformationWorkspaceRepository::live(m_files).value().filePath;
    const auto bytes = m_files.readFile(path).value();
    return bytes ? withNumberedUuids(QJsonDocument::fromJson(*bytes).object())
                 : QJsonValue(QJsonValue::Null);
}

// Fresh UUIDs are numbered in order of first appearance.
QString ModelSession::numberedUuid(const QUuid& id)
{
    if (m_storedUuids.contains(id)) {
        return id.toString(QUuid::WithoutBraces).toUpper();
    }
    if (!m_freshUuids.contains(id)) {
        m_freshUuids.append(id);
    }
    return u"00000000-0000-4000-8000-%1"_qs.arg(m_freshUuids.indexOf(id) + 1, 12, 10, QChar(u'0'));
}

QUuid ModelSession::uuidOfNumber(const QString& numbered) const
{
    const auto index = numbered.section(u'-', -1).toLongLong() - 1;
    return index >= 0 && index < m_freshUuids.size() ? m_freshUuids.at(index) : QUuid(numbered);
}

QJsonObject ModelSession::withNumberedUuids(QJsonObject fileForm)
{
    QJsonArray sources;
    for (const auto& value : fileForm.value(QLatin1StringView("customSources")).toArray()) {
        auto source = value.toObject();
        const QUuid id(source.value(QLatin1StringView("id")).toString());
        source.insert(QLatin1StringView("id"), numberedUuid(id));
        sources.append(source);
    }
    fileForm.insert(QLatin1StringView("customSources"), sources);
    return fileForm;
}
