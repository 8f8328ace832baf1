// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationModel.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// What stands between the model and one surface: finished texts and rows, worked out once per
/// change of the model.
class WorkbenchPage : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

    Q_PROPERTY(InformationModel* workbench READ workbench WRITE setWorkbench NOTIFY workbenchChanged
                   REQUIRED FINAL)
    /// Whether anyone sees the page. While nobody does, nothing is worked out; what was missed is
    /// made up for when it shows again, and so is the time that has passed.
    Q_PROPERTY(bool shown READ shown WRITE setShown NOTIFY shownChanged FINAL)

public:
    using QObject::QObject;

    InformationModel* workbench() const { return m_workbench; }
    void setWorkbench(InformationModel* workbench);

    bool shown() const { return m_shown; }
    void setShown(bool shown);

    /// Works everything out anew: the model has changed, or time has passed.
    Q_INVOKABLE void refresh();

Q_SIGNALS:
    void workbenchChanged();
    void shownChanged();

protected:
    /// Connects `refresh` to the changes that the page shows.
    virtual void follow(const InformationModel& workbench) = 0;
    virtual void show(const InformationModel& workbench) = 0;
    /// Whether the same model is shown in other words at another time.
    virtual bool tellsTime() const { return false; }

private:
    QPointer<InformationModel> m_workbench;
    bool m_shown = true;
    bool m_stale = false;
};
