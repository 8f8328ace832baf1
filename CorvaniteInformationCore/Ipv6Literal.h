// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// The address, first byte first, that a URI's host in brackets stands for, with or without a zone:
/// "[fe80::1]", "[fe80::1%25eth0]". Nothing for any other text.
/// https://www.rfc-editor.org/rfc/rfc3986#section-3.2.2 https://www.rfc-editor.org/rfc/rfc6874
std::optional<std::array<quint8, 16>> ipv6LiteralAddress(QStringView host);
