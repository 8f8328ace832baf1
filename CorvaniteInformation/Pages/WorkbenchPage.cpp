// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchPage.h"

void WorkbenchPage::setWorkbench(InformationModel* workbench)
{
    if (m_workbench == workbench) {
        return;
    }
    if (m_workbench) {
        m_workbench->disconnect(this);
    }
    m_workbench = workbench;
    if (workbench) {
        follow(*workbench);
    }
    Q_EMIT workbenchChanged();
    refresh();
}

void WorkbenchPage::setShown(bool shown)
{
    if (m_shown == shown) {
        return;
    }
    m_shown = shown;
    Q_EMIT shownChanged();
    if (m_shown && (m_stale || tellsTime())) {
        refresh();
    }
}

void WorkbenchPage::refresh()
{
    m_stale = !m_shown;
    if (m_workbench && m_shown) {
        show(*m_workbench);
    }
}
