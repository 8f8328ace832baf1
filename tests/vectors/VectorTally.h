// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QJsonValue>
#include <QString>

/// Counts the cases of one file and prints those that fail.
class VectorTally
{
public:
    explicit VectorTally(QString fileName);

    /// @param where what tells the case from the file's others, such as its line number
    void pass();
    void fail(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
              const QString& came);
    void fail(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
              const QJsonValue& came);
    /// Passes when both are the same.
    void compare(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
                 const QJsonValue& came);

    /// Prints "N passed, M failed".
    void printCounts() const;

    int passed() const { return m_passed; }
    int failed() const { return m_failed; }

private:
    QString m_fileName;
    int m_passed = 0;
    int m_failed = 0;
};
