// SPDX-License-Identifier: Apache-2.0

#include "JsonComparison.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QUuid>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

bool isSameNumber(const QJsonValue& left, const QJsonValue& right, double tolerance)
{
    const QVariant leftNumber = left.toVariant();
    const QVariant rightNumber = right.toVariant();
    if (leftNumber.typeId() == QMetaType::LongLong && rightNumber.typeId() == QMetaType::LongLong) {
        return leftNumber.toLongLong() == rightNumber.toLongLong();
    }
    return std::abs(left.toDouble() - right.toDouble()) <= tolerance;
}

bool isSameText(const QString& left, const QString& right)
{
    return left == right ||
           (left.compare(right, Qt::CaseInsensitive) == 0 && !QUuid::fromString(left).isNull());
}

} // namespace

bool isSameJson(const QJsonValue& left, const QJsonValue& right, double tolerance)
{
    if (left.type() != right.type()) {
        return false;
    }
    switch (left.type()) {
    case QJsonValue::Double:
        return isSameNumber(left, right, tolerance);
    case QJsonValue::String:
        return isSameText(left.toString(), right.toString());
    case QJsonValue::Array:
        return std::ranges::equal(left.toArray(), right.toArray(),
                                  [tolerance](const QJsonValue& one, const QJsonValue& other) {
                                      return isSameJson(one, other, tolerance);
                                  });
    case QJsonValue::Object: {
        const QJsonObject leftObject = left.toObject();
        const QJsonObject rightObject = right.toObject();
        const QStringList keys = leftObject.keys();
        return keys == rightObject.keys() && std::ranges::all_of(keys, [&](const QString& key) {
                   return isSameJson(leftObject.value(key), rightObject.value(key), tolerance);
               });
    }
    default:
        return left == right;
    }
}
