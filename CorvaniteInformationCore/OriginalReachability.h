// SPDX-License-Identifier: Apache-2.0

#pragma once

/// How steadily the site of an original can be reached from mainland China, best first.
enum class OriginalReachability { Open, Spotty, Blocked };
