// SPDX-License-Identifier: Apache-2.0

#include "VectorTally.h"

#include "JsonComparison.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include <cstdio>
#include <utility>

namespace {

constexpr qsizetype longestInput = 300;

void printLine(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

QString compact(const QJsonValue& value)
{
    const auto wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

} // namespace

VectorTally::VectorTally(QString fileName) : m_fileName(std::move(fileName)) {}

void VectorTally::pass()
{
    ++m_passed;
}

void VectorTally::fail(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
                       const QString& came)
{
    ++m_failed;
    printLine(u"%1:%2\n  input:  %3\n  wanted: %4\n  came:   %5"_qs.arg(
        m_fileName, where, compact(input).left(longestInput), compact(wanted), came));
}

void VectorTally::fail(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
                       const QJsonValue& came)
{
    fail(where, input, wanted, compact(came));
}

void VectorTally::compare(const QString& where, const QJsonValue& input, const QJsonValue& wanted,
                          const QJsonValue& came)
{
    if (isSameJson(wanted, came, 1e-6)) {
        pass();
    } else {
        fail(where, input, wanted, came);
    }
}

void VectorTally::printCounts() const
{
    printLine(u"%1: %2 passed, %3 failed"_qs.arg(m_fileName).arg(m_passed).arg(m_failed));
}
