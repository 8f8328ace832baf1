// SPDX-License-Identifier: Apache-2.0

#include "ScreenReader.h"

#include <QQuickWindow>
#include <QTest>

namespace ScreenReader {

QAccessible::Role role(QQuickItem* item)
{
    const auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible ? accessible->role() : QAccessible::NoRole;
}

QString name(QQuickItem* item)
{
    const auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

QQuickItem* find(QQuickItem* root, const QString& name, QAccessible::Role role)
{
    return findIf(root, [&](QQuickItem* item) {
        return ScreenReader::role(item) == role && ScreenReader::name(item) == name;
    });
}

QQuickItem* awaited(QQuickItem* root, const QString& name, QAccessible::Role role)
{
    QQuickItem* found = nullptr;
    return QTest::qWaitFor([&] { return (found = find(root, name, role)) != nullptr; }) ? found
                                                                                        : nullptr;
}

bool isWithin(const QQuickItem* root, const QQuickItem* item)
{
    while (item && item != root) {
        item = item->parentItem();
    }
    return root && item == root;
}

QQuickItem* paneAround(QQuickItem* item)
{
    while (item && !item->inherits("QQuickFlickable")) {
        item = item->parentItem();
    }
    return item;
}

QRectF place(const QQuickItem* item)
{
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

QString description(QQuickItem* item)
{
    return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Description);
}

void press(QQuickItem* item)
{
    QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

void click(const QQuickItem* item)
{
    QTest::mouseClick(item->window(), Qt::LeftButton, {}, place(item).center().toPoint());
}

void start()
{
    QAccessible::setActive(false);
    QAccessible::setActive(true);
}

} // namespace ScreenReader
