// SPDX-License-Identifier: Apache-2.0

#include "Footprint.h"

#include "FileTree.h"
#include "LiveObjects.h"

#include <QTest>

#include <malloc.h>

Footprint Footprint::taken()
{
    const auto heap = ::mallinfo2();
    return {.memory = static_cast<qint64>(heap.uordblks + heap.hblkhd),
            .objects = LiveObjects::count(),
            .counts = {{u"timers"_qs, LiveObjects::timers()},
                       {u"open files"_qs, namesIn(u"/proc/self/fd"_qs).size()},
                       {u"threads"_qs, namesIn(u"/proc/self/task"_qs).size()}}};
}

Footprint Footprint::takenAtRest()
{
    constexpr int longest = 20;
    constexpr int pause = 300;
    Footprint before = taken();
    for (int look = 0; look < longest; ++look) {
        QTest::qWait(pause);
        const Footprint now = taken();
        if (now.objects == before.objects && now.counts == before.counts) {
            return now;
        }
        before = now;
    }
    return before;
}
