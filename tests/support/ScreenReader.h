#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

/// Meets a window's items as a screen reader does: by name and role, and only those that show.
namespace ScreenReader {

inline QAccessible::Role role(QQuickItem* item)
{
    const auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible ? accessible->role() : QAccessible::NoRole;
}

inline QString name(QQuickItem* item)
{
    const auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

/// The first visible item at or below `root` for which the condition holds; null when there is
/// none.
template <typename Condition>
QQuickItem* findIf(QQuickItem* root, const Condition& condition)
{
    if (!root->isVisible()) {
        return nullptr;
    }
    if (condition(root)) {
        return root;
    }
    const auto children = root->childItems();
    for (auto* const child : children) {
        if (auto* const found = findIf(child, condition)) {
            return found;
        }
    }
    return nullptr;
}

/// The first visible item at or below `root` of that name and role; null when there is none.
inline QQuickItem* find(QQuickItem* root, const QString& name, QAccessible::Role role)
{
    return findIf(root, [&](QQuickItem* item) {
        return ScreenReader::role(item) == role && ScreenReader::name(item) == name;
    });
}

/// The same, once it is there.
inline QQuickItem* awaited(QQuickItem* root, const QString& name, QAccessible::Role role)
{
    QQuickItem* found = nullptr;
    return QTest::qWaitFor([&] { return (found = find(root, name, role)) != nullptr; }) ? found
                                                                                        : nullptr;
}

/// Whether the item stands below `root`.
inline bool isWithin(const QQuickItem* root, const QQuickItem* item)
{
    while (item && item != root) {
        item = item->parentItem();
    }
    return root && item == root;
}

/// What the item scrolls with, or is; null when it stands still.
inline QQuickItem* paneAround(QQuickItem* item)
{
    while (item && !item->inherits("QQuickFlickable")) {
        item = item->parentItem();
    }
    return item;
}

/// Where the item is in the window.
inline QRectF place(const QQuickItem* item)
{
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

inline QString description(QQuickItem* item)
{
    return QAccessible::queryAccessibleInterface(item)->text(QAccessible::Description);
}

/// Does what a screen reader's user does to activate the item.
inline void press(QQuickItem* item)
{
    QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

/// The way of a pointer: a click on the item's middle, with what follows at once.
inline void click(const QQuickItem* item)
{
    QTest::mouseClick(item->window(), Qt::LeftButton, {}, place(item).center().toPoint());
}

/// As when a screen reader starts: controls then say their roles anew.
inline void start()
{
    QAccessible::setActive(false);
    QAccessible::setActive(true);
}

} // namespace ScreenReader
