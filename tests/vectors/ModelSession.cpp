#include "ModelSession.h"

#include "InformationProjection.h"
#include "VectorFixtures.h"

#include <QJsonArray>
#include <QMetaEnum>

#include <stdexcept>

namespace {

constexpr FileError injectedFailure{FileError::Reason::InputOutput};

QString surfaceName(InformationModel::Surface surface)
{
    const QString name = QString::fromLatin1(
        QMetaEnum::fromType<InformationModel::Surface>().valueToKey(static_cast<int>(surface)));
    return name.toLower();
}

} // namespace

ModelSession::ModelSession(const QJsonObject& start)
{
    using namespace VectorFixtures;
    const bool hasStorage = start.value(QLatin1StringView("storage")).toBool(true);
    const auto repository = InformationWorkspaceRepository::live(m_files).value();
    if (start.contains(QLatin1StringView("workspace"))) {
        repository.save(workspace(start.value(QLatin1StringView("workspace")).toObject()), m_files)
            .value();
    }
    m_model = std::make_unique<InformationModel>(
        InformationModel::Collaborators{
            .fileManager = m_files,
            .now = [this] { return m_now; },
            .seedHistory = selectionDays(start.value(QLatin1StringView("seedHistory"))),
        },
        InformationContent(shortSignals(start.value(QLatin1StringView("signals"))),
                           shortSignals(start.value(QLatin1StringView("retired"))),
                           selectionDays(start.value(QLatin1StringView("selectionDays"))),
                           start.value(QLatin1StringView("asOf")).toString()),
        hasStorage ? std::optional(repository) : std::nullopt);
    m_model->setActiveLane(
        fromRawValue<InformationLane>(start.value(QLatin1StringView("activeLane")).toString()));
    m_model->setSearch(start.value(QLatin1StringView("search")).toString());
}

QJsonValue ModelSession::perform(const QJsonObject& action)
{
    if (action.contains(QLatin1StringView("now"))) {
        m_now =
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
    } else if (name == u"storageFails") {
        m_failureReason = action.value(QLatin1StringView("reason")).toString();
        m_files.writeFailure = injectedFailure;
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
        errorMessage->replace(injectedFailure.localizedDescription(), m_failureReason);
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
        {u"workspace"_qs, workspaceWithNumberedUuids()},
    };
}

// Fresh UUIDs are numbered in order of first appearance.
QString ModelSession::numberedUuid(const QUuid& id)
{
    if (!m_uuids.contains(id)) {
        m_uuids.append(id);
    }
    return u"00000000-0000-4000-8000-%1"_qs.arg(m_uuids.indexOf(id) + 1, 12, 10, QChar(u'0'));
}

QUuid ModelSession::uuidOfNumber(const QString& numbered) const
{
    const auto index = numbered.section(u'-', -1).toLongLong() - 1;
    return index >= 0 && index < m_uuids.size() ? m_uuids.at(index) : QUuid(numbered);
}

QJsonObject ModelSession::workspaceWithNumberedUuids()
{
    auto workspace = m_model->workspace();
    for (auto& source : workspace.customSources) {
        source.id = QUuid(numberedUuid(source.id));
    }
    return VectorFixtures::toJson(workspace);
}
