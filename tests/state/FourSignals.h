// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"

/// Signals "a" to "d", of which "b" is of another lane than the others, the retired one "old", and
/// two days; kept at 1788220800.75 seconds.
SampleModel fourSignals();
