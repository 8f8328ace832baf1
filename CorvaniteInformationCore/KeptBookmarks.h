// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "ExportedThread.h"

#include <QByteArray>
#include <QList>

/// The HTML that browsers export and import as bookmarks. What has no address to open stands
/// between them as text.
QByteArray keptBookmarks(const QList<ExportedThread>& threads,
                         const QList<CustomInformationSource>& handedIn);
