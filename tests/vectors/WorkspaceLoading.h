// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>

#include <optional>

/// What loading a stored workspace gives: {"ok": workspace} in its current version, or {"error"}
/// with the unsupported version's number and text.
/// @param document nothing when there is no file
/// @param catalog the signals whose ids older versions may hold
QJsonObject loadedWorkspace(const std::optional<QByteArray>& document,
                            const QList<InformationSignal>& catalog);
