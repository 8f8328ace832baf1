// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DataFolder.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <csignal>
#include <optional>

/// A run of the saving program.
class SavingProcess
{
public:
    /// Starts it, and waits until it has or is gone.
    /// @param wrapper a command that the program's own is appended to
    explicit SavingProcess(const DataFolder& folder, QStringList wrapper = {})
    {
        m_process.setProcessEnvironment(folder.environment());
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        wrapper.append(QStringLiteral(SAVING_PROGRAM));
        const QString command = wrapper.takeFirst();
        m_process.start(command, wrapper);
        m_seen = nextAnswer();
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
            m_seen = nextAnswer();
        }
    }

    /// Whether the program gave an answer to what it was last told.
    bool isAlive() const { return m_seen.has_value(); }
    /// What a reader sees in it, as ReaderActions names it.
    QString seen(const QString& name) const { return m_seen->value(name).toString(); }

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

private:
    std::optional<QJsonObject> nextAnswer()
    {
        constexpr int patienceMilliseconds = 30'000;
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(patienceMilliseconds)) {
                return std::nullopt;
            }
        }
        return QJsonDocument::fromJson(m_process.readLine()).object();
    }

    QProcess m_process;
    std::optional<QJsonObject> m_seen;
};
