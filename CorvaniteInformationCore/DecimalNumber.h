// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

#include <optional>

/// The value of one or more ASCII digits; nothing for any other text (a sign, white space, digits
/// of other scripts) and for a value beyond 64 bits.
std::optional<qint64> decimalNumber(QStringView text);
