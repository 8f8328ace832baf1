// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QString>

#include <chrono>

/// How a second start of the program reaches the running one: a local socket in the kernel's
/// abstract namespace, whose name stands for the data directory. One line is the whole message, one
/// byte the whole answer, and other users of the machine are not heard.
class InstanceChannel : public QObject
{
    Q_OBJECT

public:
    /// The same for every start with the directory, whatever else their environments name.
    static QString nameFor(const QString& dataDirectory);

    /// Asks the program that listens under the name to come up. Whether it has answered; one that
    /// is still starting answers once it has started.
    /// @param token by which the desktop lets the other program's window to the front, or empty
    static bool
    requestActivation(const QString& name, const QByteArray& token = {},
                      std::chrono::milliseconds answerPatience = std::chrono::seconds(20));

    explicit InstanceChannel(QObject* parent = nullptr);

    /// Takes requests from now on. False where another program listens under the name.
    bool listen(const QString& name);

Q_SIGNALS:
    /// @param token what the desktop gave to the program that asks, or empty
    void activationRequested(const QByteArray& token);

private:
    void takeRequests();
    void hear(QLocalSocket& request);

    QLocalServer m_server;
};
