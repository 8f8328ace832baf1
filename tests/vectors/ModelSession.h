// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FailingFileManager.h"
#include "SampleModel.h"

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <memory>

/// A model driven by the actions of a case and read after each.
class ModelSession
{
public:
    /// Over files in memory.
    /// @param start short signals "signals" and "retired", "selectionDays", "asOf", and where given
    /// "seedHistory", "workspace", "activeLane", "search" and "storage"
    explicit ModelSession(const QJsonObject& start);

    /// As the program starts over the files.
    /// @param files outlive this
    ModelSession(const InformationFileManager& files, bool hasStorage);

    InformationModel& model() { return *m_model; }

    /// Does what the action's "do" names. Gives what the action returned, undefined where it
    /// returns nothing.
    QJsonValue perform(const QJsonObject& action);

    /// What can be read of the model after an action.
    QJsonObject state();
    /// The workspace's file as it lies there; null without one.
    QJsonValue storedWorkspace();

private:
    void start(const InformationContent& content);
    /// The site answers with the replies of the action while the refresh runs.
    void refresh(const QJsonObject& action);
    void addSources(const QJsonObject& action);
    QString numberedUuid(const QUuid& id);
    QUuid uuidOfNumber(const QString& numbered) const;
    QJsonObject withNumberedUuids(QJsonObject fileForm);

    SampleModel m_sample;
    FailingFileManager m_files;
    /// What the injected storage failure is called in the case.
    QString m_failureReason;
    /// Those stored from the start, which the case names as they are.
    QList<QUuid> m_storedUuids;
    QList<QUuid> m_freshUuids;
    std::unique_ptr<InformationModel> m_model;
};
