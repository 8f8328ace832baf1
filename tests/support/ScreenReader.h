#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

/// Meets a window's items as a screen reader does: by name and role, and only those that show.
namespace ScreenReader {

inline bool matches(QQuickItem* item, const QString& name, QAccessible::Role role)
{
    auto* const accessible = QAccessible::queryAccessibleInterface(item);
    return accessible && accessible->role() == role && accessible->text(QAccessible::Name) == name;
}

/// The first visible item at or below `root` of that name and role; null when there is none.
inline QQuickItem* find(QQuickItem* root, const QString& name, QAccessible::Role role)
{
    if (!root->isVisible()) {
        return nullptr;
    }
    if (matches(root, name, role)) {
        return root;
    }
    const auto children = root->childItems();
    for (auto* const child : children) {
        if (auto* const found = find(child, name, role)) {
            return found;
        }
    }
    return nullptr;
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

/// As when a screen reader starts: controls then say their roles anew.
inline void start()
{
    QAccessible::setActive(false);
    QAccessible::setActive(true);
}

} // namespace ScreenReader
