// SPDX-License-Identifier: Apache-2.0

#include "EditedJson.h"

QJsonValue editedJson(const QJsonValue& json, const QStringList& path, const QJsonValue& value)
{
    if (path.isEmpty()) {
        return value;
    }
    if (json.isArray()) {
        QJsonArray array = json.toArray();
        const int index = path.first().toInt();
        array[index] = editedJson(array.at(index), path.sliced(1), value);
        return array;
    }
    QJsonObject object = json.toObject();
    object.insert(path.first(), editedJson(object.value(path.first()), path.sliced(1), value));
    return object;
}

QJsonObject editedJson(const QJsonObject& object, const QString& path, const QJsonValue& value)
{
    return editedJson(QJsonValue(object), path.split(QLatin1Char('/')), value).toObject();
}
