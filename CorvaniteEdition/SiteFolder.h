// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionFiles.h"
#include "EditionFolder.h"

/// The static folder that a web server shows.
namespace SiteFolder {

inline constexpr QLatin1StringView sumsName{"SHA256SUMS"};

/// Where the edition before is kept: beside the folder, so that it is not published.
QString previousOf(const QString& folder);

/// Lays the edition's documents out with their sums, what a pack refers to before the pack. What
/// lay there before goes beside it first, unless it is the same.
std::optional<Finding> layOut(const EditionFolder& edition, const QString& folder);

} // namespace SiteFolder
