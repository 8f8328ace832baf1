// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Why a hand-in is refused.
enum class InformationIntakeFailure { Empty, TooLong, UnsupportedURL };
