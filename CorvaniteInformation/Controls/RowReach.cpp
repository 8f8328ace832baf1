// SPDX-License-Identifier: Apache-2.0

#include "RowReach.h"

#include <QCoreApplication>
#include <QKeyEvent>

RowReach::RowReach(QObject* parent) : QObject(parent)
{
    m_far.setBinding([this] { return m_readAloud || m_tabbed; });
    QCoreApplication::instance()->installEventFilter(this);
}

bool RowReach::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
            QCoreApplication::instance()->removeEventFilter(this);
            m_tabbed = true;
        }
    }
    return false;
}
