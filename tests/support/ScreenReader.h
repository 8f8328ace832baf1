// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>
#include <QQuickItem>

/// Meets a window's items as a screen reader does: by name and role, and only those that show.
namespace ScreenReader {

QAccessible::Role role(QQuickItem* item);

QString name(QQuickItem* item);

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
QQuickItem* find(QQuickItem* root, const QString& name, QAccessible::Role role);

/// The same, once it is there.
QQuickItem* awaited(QQuickItem* root, const QString& name, QAccessible::Role role);

/// Whether the item stands below `root`.
bool isWithin(const QQuickItem* root, const QQuickItem* item);

/// What the item scrolls with, or is; null when it stands still.
QQuickItem* paneAround(QQuickItem* item);

/// Where the item is in the window.
QRectF place(const QQuickItem* item);

QString description(QQuickItem* item);

/// Does what a screen reader's user does to activate the item.
void press(QQuickItem* item);

/// Clicks with the pointer on the item's middle.
void click(const QQuickItem* item);

/// As when a screen reader starts: controls then say their roles anew.
void start();

} // namespace ScreenReader
