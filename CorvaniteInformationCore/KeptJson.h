// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "ExportedThread.h"

#include <QByteArray>
#include <QList>

/// JSON, with every text and time as it is stored.
QByteArray keptJson(const QList<ExportedThread>& threads,
                    const QList<CustomInformationSource>& handedIn);
