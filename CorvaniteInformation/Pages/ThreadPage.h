// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RowListModel.h"
#include "ThreadRow.h"
#include "WorkbenchPage.h"

#include <QProperty>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A signal's whole thread, and the reader's note on it. A signal that a refresh
/// takes away stays as it was while the thread is open.
class ThreadPage : public WorkbenchPage
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        QString signalId READ signalId WRITE setSignalId NOTIFY signalIdChanged REQUIRED FINAL)

    Q_PROPERTY(QString title READ title NOTIFY threadChanged FINAL)
    /// What a screen reader says as the thread opens: its main points and the first of its
    /// timeline.
    Q_PROPERTY(QString description READ description NOTIFY threadChanged FINAL)
    Q_PROPERTY(bool hasDigest READ hasDigest NOTIFY threadChanged FINAL)
    Q_PROPERTY(QString digest READ digest NOTIFY threadChanged FINAL)
    /// Empty when the original has no address to open.
    Q_PROPERTY(QString originalAddress READ originalAddress NOTIFY threadChanged FINAL)
    Q_PROPERTY(bool hasSources READ hasSources NOTIFY threadChanged FINAL)
    /// Rows of `threadRow`.
    Q_PROPERTY(QAbstractItemModel* rows READ rows CONSTANT FINAL)

    Q_PROPERTY(bool kept READ kept NOTIFY keptChanged FINAL)
    Q_PROPERTY(QString saveReason READ saveReason NOTIFY keptChanged FINAL)

public:
    using WorkbenchPage::WorkbenchPage;

    const QString& signalId() const { return m_signalId; }
    void setSignalId(const QString& signalId);

    const QString& title() const { return m_thread.value().title; }
    const QString& description() const { return m_thread.value().description; }
    bool hasDigest() const { return m_thread.value().digest.has_value(); }
    QString digest() const { return m_thread.value().digest.value_or(QString()); }
    const QString& originalAddress() const { return m_thread.value().originalAddress; }
    bool hasSources() const { return m_thread.value().hasSources; }
    RowListModel<ThreadRow>* rows() { return &m_rows; }
    bool kept() const { return m_saved.has_value(); }
    QString saveReason() const { return m_saved ? m_saved->reason : QString(); }

    /// Records that the reader has seen the signal.
    Q_INVOKABLE void markSeen();
    Q_INVOKABLE QString storedNote() const { return m_saved ? m_saved->note : QString(); }
    /// Stores what the editor holds. No `noteReplaced` from then on, also when it could not be
    /// stored: what the reader typed stays in the editor.
    Q_INVOKABLE void writeNote(const QString& note);

Q_SIGNALS:
    void signalIdChanged();
    void threadChanged();
    void keptChanged();
    /// The stored note has changed otherwise than by `writeNote`. Not told of a note that the
    /// reader is writing: it stays as it is in the editor.
    void noteReplaced();

protected:
    void follow(const InformationModel& workbench) override;
    void show(const InformationModel& workbench) override;

private:
    struct Thread
    {
        QString title;
        QString description;
        std::optional<QString> digest;
        QString originalAddress;
        bool hasSources = false;

        static Thread from(const InformationSignal& signal,
                           const QList<TimelineNodeRow>& timelineBegin);
        friend bool operator==(const Thread&, const Thread&) = default;
    };

    struct Saved
    {
        QString reason;
        QString note;

        friend bool operator==(const Saved&, const Saved&) = default;
    };

    void showSaved(std::optional<Saved> saved);

    QString m_signalId;
    Q_OBJECT_BINDABLE_PROPERTY(ThreadPage, ThreadPage::Thread, m_thread, &ThreadPage::threadChanged)
    RowListModel<ThreadRow> m_rows;
    /// Of a kept signal.
    std::optional<Saved> m_saved;
    /// The reader has written in the note.
    bool m_hasWritten = false;
};
