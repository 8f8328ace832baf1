// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>

#include <optional>

/// What decoding a pack gives: {"ok": snapshot} or {"error"} with what the error carries.
QJsonObject parsedPack(const QByteArray& document);

/// The stored retired list, null when there is none.
/// @param document nothing when there is no file
QJsonValue loadedRetiredSignals(const std::optional<QByteArray>& document);
