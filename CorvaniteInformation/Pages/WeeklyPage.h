// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RowListModel.h"
#include "WeeklyPlace.h"
#include "WorkbenchPage.h"

#include <QProperty>

/// The weekly surface.
class WeeklyPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool empty READ empty NOTIFY emptyChanged FINAL)
    /// Rows of `weeklyPlace`: each week, newest first, and after it its days.
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    bool empty() const { return m_empty; }
    RowListModel<WeeklyPlace>* rows() { return &m_rows; }

Q_SIGNALS:
    void emptyChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;
    bool tellsTime() const override { return true; }

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(WeeklyPage, bool, m_empty, true, &WeeklyPage::emptyChanged)
    RowListModel<WeeklyPlace> m_rows;
};
