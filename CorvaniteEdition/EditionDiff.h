// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionFolder.h"

#include <QStringList>

/// What a reader who has one edition sees change with another.
namespace EditionDiff {

/// Lines of Chinese; each edition needs a pack that the core decodes.
QStringList lines(const EditionFolder& before, const EditionFolder& after);

} // namespace EditionDiff
