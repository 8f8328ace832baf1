#pragma once

#include "RowListModel.h"
#include "WeekRow.h"
#include "WorkbenchPage.h"

/// The weekly surface.
class WeeklyPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)
    /// Rows of `weekRow`, newest first.
    Q_PROPERTY(QAbstractItemModel* weeks READ weeks CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    bool empty() const { return m_empty; }
    RowListModel<WeekRow>* weeks() { return &m_weeks; }

Q_SIGNALS:
    void emptyChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    bool m_empty = true;
    RowListModel<WeekRow> m_weeks;
};
