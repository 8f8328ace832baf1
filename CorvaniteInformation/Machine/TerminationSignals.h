// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileDescriptor.h"

#include <QObject>
#include <QSocketNotifier>

/// The signals by which a session, a terminal or a person asks the process to end (SIGTERM, SIGHUP,
/// SIGINT), as events of the loop. For each kind once: whoever asks again means at once, and need
/// not wait for the loop. One a process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void endRequested();

private:
    FileDescriptor m_asked;
    QSocketNotifier m_notifier;
};
