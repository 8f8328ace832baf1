// SPDX-License-Identifier: Apache-2.0

#include "LiveObjects.h"

#include <QAbstractEventDispatcher>
#include <QSet>

#include <QtCore/private/qhooks_p.h>

#include <mutex>

namespace {

// Never destroyed: objects of Qt's own go after everything else.
struct Watched
{
    std::mutex mutex;
    QSet<QObject*> objects;
};

Watched& watched()
{
    static auto& all = *new Watched;
    return all;
}

void enter(QObject* object)
{
    const std::scoped_lock lock(watched().mutex);
    watched().objects.insert(object);
}

void leave(QObject* object)
{
    const std::scoped_lock lock(watched().mutex);
    watched().objects.remove(object);
}

} // namespace

void LiveObjects::watch()
{
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&enter);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&leave);
}

qsizetype LiveObjects::count()
{
    const std::scoped_lock lock(watched().mutex);
    return watched().objects.size();
}

qsizetype LiveObjects::timers()
{
    const auto* const dispatcher = QAbstractEventDispatcher::instance();
    const std::scoped_lock lock(watched().mutex);
    qsizetype timers = 0;
    for (auto* const object : watched().objects) {
        timers += dispatcher->registeredTimers(object).size();
    }
    return timers;
}
