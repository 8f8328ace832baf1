// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QJsonValue>

/// Whether two JSON values are the same: whole numbers exactly, other numbers within the absolute
/// tolerance, UUIDs without letter case.
bool isSameJson(const QJsonValue& left, const QJsonValue& right, double tolerance);
