// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

/// A copy of this process that does one thing and ends: far cheaper than a start of a program.
class ForkedProcess
{
public:
    /// Writes to the one that waits, as long as the process lives.
    using Tell = std::function<void(const QByteArray& words)>;

    explicit ForkedProcess(const std::function<void(const Tell&)>& act)
    {
        int ends[2];
        if (::pipe(ends) != 0 || (m_id = ::fork()) < 0) {
            qFatal("no process could be made");
        }
        if (m_id == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            act([to = ends[1]](const QByteArray& words) {
                if (::write(to, words.data(), static_cast<size_t>(words.size())) < 0) {
                    ::_exit(EXIT_FAILURE);
                }
            });
            ::_exit(EXIT_SUCCESS);
        }
        ::close(ends[1]);
        m_from = ends[0];
    }

    ~ForkedProcess()
    {
        wait();
        ::close(m_from);
    }
    ForkedProcess(const ForkedProcess&) = delete;
    ForkedProcess& operator=(const ForkedProcess&) = delete;

    /// All that it tells until its end.
    QByteArray told()
    {
        QByteArray words;
        char part[4096];
        for (ssize_t count = 0; (count = ::read(m_from, part, sizeof(part))) > 0;) {
            words.append(part, static_cast<qsizetype>(count));
        }
        return words;
    }

    /// Whether it ended by itself and well.
    bool ends() { return WIFEXITED(wait()) && WEXITSTATUS(wait()) == EXIT_SUCCESS; }
    /// Whether a SIGKILL ended it.
    bool wasKilled() { return WIFSIGNALED(wait()) && WTERMSIG(wait()) == SIGKILL; }

private:
    int wait()
    {
        if (m_id > 0) {
            ::waitpid(m_id, &m_status, 0);
            m_id = 0;
        }
        return m_status;
    }

    pid_t m_id = 0;
    int m_from = -1;
    int m_status = 0;
};
