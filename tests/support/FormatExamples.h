// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <utility>

/// A document of docs/formats/examples; null where there is none of that name.
QByteArray formatExample(const QString& name);

QByteArray examplePack();

/// The example in one line, with values put in the places of others, or with undefined taken away.
QByteArray examplePackWith(std::initializer_list<std::pair<QString, QJsonValue>> edits);
QByteArray examplePackWith(const QString& path, const QJsonValue& value);
