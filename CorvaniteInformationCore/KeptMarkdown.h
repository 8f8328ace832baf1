// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "ExportedThread.h"

#include <QByteArray>
#include <QList>

/// Markdown (CommonMark). Text from outside is text there too: nothing of it becomes a
/// heading, a list, a link or HTML. A title leads to its original where that may be opened.
QByteArray keptMarkdown(const QList<ExportedThread>& threads,
                        const QList<CustomInformationSource>& handedIn);
