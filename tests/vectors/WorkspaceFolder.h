// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "VectorTally.h"

#include <QDir>

/// Checks stored workspaces: for each NAME.expect.json what loading NAME.json gives over the
/// signals of catalog.json, and where it says so what is saved then and what the program says at
/// its start.
VectorTally checkWorkspaceFolder(const QDir& folder);
