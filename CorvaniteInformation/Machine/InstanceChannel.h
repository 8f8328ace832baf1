#pragma once

#include <QLocalServer>
#include <QObject>
#include <QProcessEnvironment>

/// How a second start of the program reaches the running one: a local socket whose name stands for
/// the data directory. A connection is the whole message.
class InstanceChannel : public QObject
{
    Q_OBJECT

public:
    /// The socket of a data directory, in `$XDG_RUNTIME_DIR`, or in the directory itself where the
    /// environment names none.
    static QString socketPath(const QString& dataDirectory, const QProcessEnvironment& environment);

    /// Asks the running program to come up, and waits until it has taken the request. It may still
    /// be starting, so the call tries for a short while before it gives up and answers false.
    static bool requestActivation(const QString& socketPath);

    explicit InstanceChannel(QObject* parent = nullptr);

    /// Takes requests from now on, in the place of whatever a killed program left there. Only the
    /// holder of the data directory's lock may call it.
    bool listen(const QString& socketPath);

Q_SIGNALS:
    void activationRequested();

private:
    void takeRequests();

    QLocalServer m_server;
};
