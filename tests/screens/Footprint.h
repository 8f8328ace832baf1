// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QMap>
#include <QString>

/// What this process holds of the machine.
struct Footprint
{
    /// The bytes that are allocated and not freed. Not known under the sanitizers, which allocate
    /// by themselves.
    qint64 memory;
    qsizetype objects;
    /// Running timers, open files and threads, by name.
    QMap<QString, qsizetype> counts;

    static Footprint taken();
    /// The same, once objects and counts stay as they are.
    static Footprint takenAtRest();
};
