// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QQuickItem>
#include <QStringList>

#include <utility>

/// Hears what a screen reader reads out by itself, wherever the focus is: the notifications that
/// appear at or below an item, of those that are there when it begins to listen. Only a real screen
/// would make Qt tell them.
class ScreenListener
{
public:
    explicit ScreenListener(QQuickItem* root);

    /// What has been read out since this was asked last.
    QStringList announced() { return std::exchange(m_announced, {}); }

private:
    void listenTo(QQuickItem* item);

    QObject m_context;
    QStringList m_announced;
};
