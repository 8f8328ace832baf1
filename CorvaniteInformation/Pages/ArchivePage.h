// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ArchiveDayRow.h"
#include "ArchiveDayTexts.h"
#include "ArchiveFocusRow.h"
#include "RowListModel.h"
#include "WorkbenchPage.h"

#include <QProperty>
#include <QString>

/// The archive surface: the index of days, and the page of the selected one.
class ArchivePage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged FINAL)
    /// Rows of `archiveDayRow`, newest day first.
    Q_PROPERTY(QAbstractItemModel* days READ days CONSTANT FINAL)

    /// A day is selected and the history has it; else the index is to be shown.
    Q_PROPERTY(bool showsDay READ showsDay NOTIFY dayChanged FINAL)
    Q_PROPERTY(ArchiveDayTexts day READ day NOTIFY dayChanged FINAL)
    /// Of the first row of the selected day in `days`; -1 while the index is to be shown.
    Q_PROPERTY(int dayPosition READ dayPosition NOTIFY dayChanged FINAL)
    /// Rows of `archiveFocusRow`.
    Q_PROPERTY(QAbstractItemModel* focusRows READ focusRows CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    QString summary() const { return m_summary; }
    RowListModel<ArchiveDayRow>* days() { return &m_days; }
    bool showsDay() const { return m_dayPosition >= 0; }
    const ArchiveDayTexts& day() const { return m_day; }
    int dayPosition() const { return m_dayPosition; }
    RowListModel<ArchiveFocusRow>* focusRows() { return &m_focusRows; }

Q_SIGNALS:
    void summaryChanged();
    void dayChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    void showIndex(const InformationModel& workbench);
    void showDay(const InformationModel& workbench);

    Q_OBJECT_BINDABLE_PROPERTY(ArchivePage, QString, m_summary, &ArchivePage::summaryChanged)
    RowListModel<ArchiveDayRow> m_days;
    ArchiveDayTexts m_day;
    int m_dayPosition = -1;
    RowListModel<ArchiveFocusRow> m_focusRows;
};
