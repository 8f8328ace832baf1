// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <optional>

namespace BodyLength {

/// Whether a body ended before its announced length. Of one that was encoded on the way the length
/// says nothing.
/// @param announced nothing where the answer names no length
/// @param encoding the answer's Content-Encoding, empty where it has none
bool isCutShort(std::optional<qint64> announced, const QByteArray& encoding, qint64 received);

} // namespace BodyLength
