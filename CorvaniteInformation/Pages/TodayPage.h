// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "LabelledTextRow.h"
#include "LaneChipRow.h"
#include "RowListModel.h"
#include "TodayEntry.h"
#include "WorkbenchPage.h"

#include <QList>
#include <QProperty>
#include <QSet>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// The today surface.
class TodayPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    /// The remaining cards are shown too.
    Q_PROPERTY(bool showingRemaining READ showingRemaining WRITE setShowingRemaining NOTIFY
                   showingRemainingChanged FINAL)

    Q_PROPERTY(QString eyebrow READ eyebrow CONSTANT FINAL)
    Q_PROPERTY(QString title READ title NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString lead READ lead NOTIFY textsChanged FINAL)
    /// Whether the reader has adjusted the selection; `preferenceStatus` says how.
    Q_PROPERTY(bool adjusted READ adjusted NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString preferenceStatus READ preferenceStatus NOTIFY textsChanged FINAL)
    /// Nothing is left of today's selection.
    Q_PROPERTY(bool empty READ empty NOTIFY textsChanged FINAL)
    /// Something is left, but nothing in the chosen lane.
    Q_PROPERTY(bool laneEmpty READ laneEmpty NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString remainingTitle READ remainingTitle NOTIFY textsChanged FINAL)
    Q_PROPERTY(int focusedCount READ focusedCount NOTIFY textsChanged FINAL)
    Q_PROPERTY(int remainingCount READ remainingCount NOTIFY textsChanged FINAL)
    Q_PROPERTY(int railCount READ railCount NOTIFY textsChanged FINAL)
    Q_PROPERTY(QList<LabelledTextRow> receiptRows READ receiptRows NOTIFY textsChanged FINAL)
    Q_PROPERTY(QString updatedText READ updatedText CONSTANT FINAL)

    /// Rows of `laneChipRow`.
    Q_PROPERTY(QAbstractItemModel* lanes READ lanes CONSTANT FINAL)
    /// Rows of `todayEntry`: the column from top to bottom.
    Q_PROPERTY(QAbstractItemModel* entries READ entries CONSTANT FINAL)
    /// Rows of `todayEntry`: the list of everything.
    Q_PROPERTY(QAbstractItemModel* railEntries READ railEntries CONSTANT FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    bool showingRemaining() const { return m_showingRemaining; }
    void setShowingRemaining(bool showing);

    static QString eyebrow();
    const QString& title() const { return m_texts.value().title; }
    const QString& lead() const { return m_texts.value().lead; }
    bool adjusted() const { return !m_texts.value().preferenceStatus.isEmpty(); }
    const QString& preferenceStatus() const { return m_texts.value().preferenceStatus; }
    bool empty() const { return m_texts.value().empty; }
    bool laneEmpty() const { return m_texts.value().laneEmpty; }
    const QString& remainingTitle() const { return m_texts.value().remainingTitle; }
    int focusedCount() const { return m_texts.value().focusedCount; }
    int remainingCount() const { return m_texts.value().remainingCount; }
    int railCount() const { return m_texts.value().railCount; }
    const QList<LabelledTextRow>& receiptRows() const { return m_texts.value().receiptRows; }
    static QString updatedText();

    RowListModel<LaneChipRow>* lanes() { return &m_lanes; }
    RowListModel<TodayEntry>* entries() { return &m_entries; }
    RowListModel<TodayEntry>* railEntries() { return &m_railEntries; }

    /// @param lane the lane's token; empty for all lanes
    Q_INVOKABLE void selectLane(const QString& lane);
    /// Unfolds or folds what changed with the signal.
    Q_INVOKABLE void toggleChange(const QString& signalId);

Q_SIGNALS:
    void showingRemainingChanged();
    void textsChanged();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;
    bool tellsTime() const override { return true; }

private:
    struct Texts
    {
        QString title;
        QString lead;
        QString preferenceStatus;
        QString remainingTitle;
        QList<LabelledTextRow> receiptRows;
        int focusedCount = 0;
        int remainingCount = 0;
        int railCount = 0;
        bool empty = false;
        bool laneEmpty = false;

        friend bool operator==(const Texts&, const Texts&) = default;
    };

    bool m_showingRemaining = false;
    /// The ids of the signals whose change is unfolded.
    QSet<QString> m_openChanges;
    Q_OBJECT_BINDABLE_PROPERTY(TodayPage, TodayPage::Texts, m_texts, &TodayPage::textsChanged)
    RowListModel<LaneChipRow> m_lanes;
    RowListModel<TodayEntry> m_entries;
    RowListModel<TodayEntry> m_railEntries;
};
