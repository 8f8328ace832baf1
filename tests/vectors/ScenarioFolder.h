// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "VectorTally.h"

#include <QDir>

/// Plays the folder's scripts, each from its stored files on, and looks at the model after every
/// action.
VectorTally checkScenarioFolder(const QDir& folder);
