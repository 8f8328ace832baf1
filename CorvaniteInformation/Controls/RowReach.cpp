// SPDX-License-Identifier: Apache-2.0

#include "RowReach.h"

#include <QCoreApplication>
#include <QKeyEvent>

RowReach::RowReach(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool RowReach::eventFilter(QObject* receiver, QEvent* event)
{
    // The window hands it on to one item after the other.
    if (event->type() == QEvent::KeyPress && receiver->isWindowType()) {
        const auto* const press = static_cast<QKeyEvent*>(event);
        const bool back =
            press->key() == Qt::Key_Backtab || press->modifiers().testFlag(Qt::ShiftModifier);
        if (press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab) {
            Q_EMIT tabPressed(!back);
        }
    }
    return false;
}
