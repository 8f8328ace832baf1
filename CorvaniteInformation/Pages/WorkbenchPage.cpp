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

void WorkbenchPage::refresh()
{
    if (m_workbench) {
        show(*m_workbench);
    }
}
