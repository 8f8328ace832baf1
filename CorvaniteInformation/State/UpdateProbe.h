// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationUpdateNotice.h"
#include "SiteClient.h"

#include <QCoroTask>

#include <optional>

/// Looks for a newer build of the program.
namespace UpdateProbe {

/// The site's notice of a build that is newer than the running version; nothing where there is none
/// or the site does not answer as it should.
/// @param site outlives the task
QCoro::Task<std::optional<InformationUpdateNotice>> run(SiteClient& site, QString runningVersion);

} // namespace UpdateProbe
