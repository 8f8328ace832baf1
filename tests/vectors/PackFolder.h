// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "VectorTally.h"

#include <QDir>
#include <QList>

/// Checks a folder of whole documents, one tally for each kind of document in it.
QList<VectorTally> checkPackFolder(const QDir& folder);
