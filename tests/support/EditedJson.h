// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

/// The JSON with the value in the place that object keys and array indices lead to; undefined takes
/// an object's key away.
QJsonValue editedJson(const QJsonValue& json, const QStringList& path, const QJsonValue& value);

/// @param path keys and indices separated by "/"
QJsonObject editedJson(const QJsonObject& object, const QString& path, const QJsonValue& value);
