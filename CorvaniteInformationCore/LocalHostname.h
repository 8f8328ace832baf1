// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Whether a host names this machine or something near it, or nothing on the public internet: a
/// local name, or an address of a private, reserved, documentation or multicast range, in every
/// spelling of addresses that a resolver understands.
/// @param host as in a URI, in lower case, without percent escapes and trailing dots
bool isUnsafeLocalHostname(const QString& host);
