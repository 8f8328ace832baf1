#pragma once

#include "DataFolder.h"
#include "FaultSettings.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <csignal>
#include <optional>

/// A run of the saving program under the fault library.
class SavingProcess
{
public:
    /// Starts it, and waits until it has or is gone.
    /// @param folder where its calls are counted
    /// @param site with what the site publishes
    /// @param plan as FaultSettings::plan has it
    /// @param wrapper a command that the program's own is appended to
    SavingProcess(const DataFolder& folder, const QString& site, const QString& plan,
                  QStringList wrapper = {})
        : m_trace(folder.runtime() + u"/trace"_qs)
    {
        QFile::remove(m_trace);
        auto environment = folder.environment();
        environment.insert(u"LD_PRELOAD"_qs, QStringLiteral(FAULT_LIBRARY));
        environment.insert(QLatin1String(FaultSettings::folder), folder.path());
        environment.insert(QLatin1String(FaultSettings::plan), plan);
        environment.insert(QLatin1String(FaultSettings::trace), m_trace);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        wrapper.append({QStringLiteral(SAVING_PROGRAM), site});
        const QString command = wrapper.takeFirst();
        m_process.start(command, wrapper);
        m_belief = nextBelief();
    }

    ~SavingProcess()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// Has the program do something; does nothing where it is gone.
    void act(const QString& action)
    {
        if (isAlive()) {
            m_process.write(action.toUtf8() + '\n');
            m_belief = nextBelief();
        }
    }

    /// Whether the program gave an answer to what it was last told.
    bool isAlive() const { return m_belief.has_value(); }
    /// What the program says of itself.
    QString belief(const QString& name) const { return m_belief->value(name).toString(); }
    QJsonValue beliefs(const QString& name) const { return m_belief->value(name); }

    qint64 id() const { return m_process.processId(); }

    /// Whether it ends by itself and well, now that nothing more is to be done.
    bool ends()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == EXIT_SUCCESS;
    }

    /// Whether a SIGKILL ended it.
    bool wasKilled()
    {
        m_process.waitForFinished();
        return m_process.exitStatus() == QProcess::CrashExit && m_process.exitCode() == SIGKILL;
    }

    /// The names of the calls counted until now, in order; " !" follows the faulty ones.
    QStringList calls() const
    {
        return QString::fromLatin1(contentOf(m_trace)).split(u'\n', Qt::SkipEmptyParts);
    }

private:
    std::optional<QJsonObject> nextBelief()
    {
        constexpr int patienceMilliseconds = 30'000;
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(patienceMilliseconds)) {
                return std::nullopt;
            }
        }
        return QJsonDocument::fromJson(m_process.readLine()).object();
    }

    QString m_trace;
    QProcess m_process;
    std::optional<QJsonObject> m_belief;
};
