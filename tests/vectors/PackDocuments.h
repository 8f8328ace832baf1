// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "VectorTally.h"

#include <QDir>

/// Checks each document of the folder, NAME.json, against its NAME.expect.json: its length, what
/// decoding it as a pack and as a stored retired list gives, and whether it would replace the
/// compiled-in edition.
VectorTally checkPackDocuments(const QDir& folder);
