#pragma once

#include "InformationModel.h"
#include "MemoryFileManager.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <memory>

/// A model over files in memory, driven by the actions of a case and read after each.
class ModelSession
{
public:
    /// @param start short signals "signals" and "retired", "selectionDays", "asOf", and where given
    /// "seedHistory", "workspace", "activeLane", "search" and "storage"
    explicit ModelSession(const QJsonObject& start);

    InformationModel& model() { return *m_model; }

    /// Does what the action's "do" names. Gives what the action returned, undefined where it
    /// returns nothing.
    QJsonValue perform(const QJsonObject& action);

    /// What can be read of the model after an action.
    QJsonObject state();

private:
    QString numberedUuid(const QUuid& id);
    QUuid uuidOfNumber(const QString& numbered) const;
    QJsonObject workspaceWithNumberedUuids();

    MemoryFileManager m_files;
    double m_now = 0;
    /// What the injected storage failure is called in the case.
    QString m_failureReason;
    QList<QUuid> m_uuids;
    std::unique_ptr<InformationModel> m_model;
};
