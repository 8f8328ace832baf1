#pragma once

#include "RowListModel.h"
#include "WeeklyRow.h"
#include "WorkbenchPage.h"

/// The weekly surface.
class WeeklyPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)
    /// Rows of `weeklyRow`: each week, newest first, and after it its days.
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    bool empty() const { return m_empty; }
    RowListModel<WeeklyRow>* rows() { return &m_rows; }

Q_SIGNALS:
    void emptyChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    bool m_empty = true;
    RowListModel<WeeklyRow> m_rows;
};
