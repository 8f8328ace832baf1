// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <functional>

/// What a case's `fn` names: from the case's `in` to what it must equal `out`.
using VectorFunction = std::function<QJsonValue(const QJsonObject& in)>;
using VectorFunctions = QHash<QString, VectorFunction>;

// Each adds the functions of one subject, from the file of its name.
void addDigestFunctions(VectorFunctions& functions);
void addIntakeFunctions(VectorFunctions& functions);
void addLabelFunctions(VectorFunctions& functions);
void addModelFunctions(VectorFunctions& functions);
void addPackFunctions(VectorFunctions& functions);
void addProjectionFunctions(VectorFunctions& functions);
void addRefreshFunctions(VectorFunctions& functions);
void addStrataFunctions(VectorFunctions& functions);
void addUpdateFunctions(VectorFunctions& functions);
void addWorkspaceFunctions(VectorFunctions& functions);
