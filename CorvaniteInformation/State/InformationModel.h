// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ContentRefresh.h"
#include "DerivedReads.h"
#include "InformationContent.h"
#include "InformationFileManager.h"
#include "InformationSignal.h"
#include "InformationUpdateNotice.h"
#include "InformationWorkspace.h"
#include "KeptThreads.h"
#include "SelectionDay.h"
#include "SiteClient.h"
#include "WeeklyDigest.h"
#include "WorkspaceJournal.h"

#include <QObject>
#include <QObjectBindableProperty>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

/// The one observable state of the application: the content shown, the reader's workspace, and
/// what several screens read. Every change of the workspace is one transaction: applied at once,
/// saved, and taken back with a message when saving fails.
///
/// Lives on the main thread. Change signals follow the assignment.
class InformationModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program's entry makes the one model.")

    Q_PROPERTY(Surface surface READ surface WRITE setSurface NOTIFY surfaceChanged FINAL)
    Q_PROPERTY(QString openThreadId READ openThreadId NOTIFY openThreadChanged FINAL)
    Q_PROPERTY(bool hasOpenThread READ hasOpenThread NOTIFY openThreadChanged FINAL)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged FINAL)
    Q_PROPERTY(QString receipt READ receiptText NOTIFY receiptChanged FINAL)
    Q_PROPERTY(bool hasReceipt READ hasReceipt NOTIFY receiptChanged FINAL)
    Q_PROPERTY(QString errorMessage READ errorText NOTIFY errorMessageChanged FINAL)
    Q_PROPERTY(bool hasErrorMessage READ hasErrorMessage NOTIFY errorMessageChanged FINAL)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged FINAL)
    Q_PROPERTY(
        QString intakeErrorMessage READ intakeErrorText NOTIFY intakeErrorMessageChanged FINAL)
    Q_PROPERTY(bool isSyncingPack READ isSyncingPack NOTIFY isSyncingPackChanged FINAL)

public:
    enum class Surface { Today, Kept, Weekly, Archive, Sources };
    Q_ENUM(Surface)

    /// What the model works with; all of it outlives the model.
    struct Collaborators
    {
        const InformationFileManager& fileManager;
        /// Seconds since 1970-01-01T00:00:00Z.
        std::function<double()> now;
        /// The compiled-in selection history.
        QList<SelectionDay> seedHistory;
        /// The only site that an update may come from.
        SiteClient& site;
        /// Of the program; empty where it is not known.
        QString runningVersion;
    };

    /// Where the journal could not read what is stored, that is reported and never overwritten;
    /// once it can be read, it is shown and the next action is saved.
    InformationModel(Collaborators collaborators, InformationContent content,
                     WorkspaceJournal journal);

    // State

    Surface surface() const { return m_surface; }
    const std::optional<QString>& selectedArchiveDay() const { return m_selectedArchiveDay; }
    /// The signal whose thread is open over the surface.
    const std::optional<QString>& openThread() const { return m_openThread; }
    const QList<InformationSignal>& signals() const { return m_content.signals(); }
    const QList<InformationSignal>& retiredSignals() const { return m_content.retiredSignals(); }
    const QList<SelectionDay>& selectionDays() const { return m_content.selectionDays(); }
    const QString& packAsOf() const { return m_content.packAsOf(); }
    const InformationWorkspace& workspace() const { return m_journal.workspace(); }
    const QString& search() const { return m_search; }
    /// Nothing means all lanes.
    std::optional<InformationLane> activeLane() const { return m_activeLane; }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    const std::optional<QString>& receipt() const { return m_receipt; }
    bool canUndo() const { return m_journal.canUndo(); }
    const std::optional<QString>& intakeErrorMessage() const { return m_intakeErrorMessage; }
    bool isSyncingPack() const { return m_isSyncingPack; }
    /// How the last refresh ended; nothing while one runs.
    std::optional<QString> packSyncNote() const;
    /// A newer build that the site offers and the reader has not waved away.
    const std::optional<InformationUpdateNotice>& availableUpdate() const
    {
        return m_availableUpdate;
    }

    QString openThreadId() const { return openThread().value_or(QString()); }
    bool hasOpenThread() const { return openThread().has_value(); }
    QString receiptText() const { return receipt().value_or(QString()); }
    bool hasReceipt() const { return receipt().has_value(); }
    QString errorText() const { return errorMessage().value_or(QString()); }
    bool hasErrorMessage() const { return errorMessage().has_value(); }
    QString intakeErrorText() const { return intakeErrorMessage().value_or(QString()); }
    bool packSyncFailed() const;

    // Derived reads, cached until the content or the workspace changes

    const QList<InformationSignal>& visibleSignals() const;
    /// Live and retired signals by id.
    const QHash<QString, InformationSignal>& signalIndex() const;
    std::optional<InformationSignal> signalById(const QString& id) const;
    /// Newest first.
    const QList<SelectionDay>& archiveDays() const;
    const QList<WeeklyDigest::Week>& weeklyWeeks() const;
    bool isKept(const InformationSignal& signal) const;
    /// The kept list, whatever is searched.
    const QList<InformationSignal>& allKeptSignals() const;

    // Derived reads, computed anew on each call

    qsizetype laneAllCount() const { return visibleSignals().size(); }
    qsizetype laneCount(InformationLane lane) const;
    QList<InformationSignal> laneFilteredSignals() const;
    /// The lead cards of today.
    QList<InformationSignal> focusedSignals() const;
    QList<InformationSignal> remainingSignals() const;
    qsizetype keptItemCount() const;
    /// The signal id and entry that stand for the signal's thread; of several the last kept.
    std::optional<KeptThreads::SavedEntry> savedEntry(const InformationSignal& signal) const;
    /// The kept lists, filtered by `search`.
    QList<InformationSignal> keptSignals() const;
    QList<CustomInformationSource> keptCustomSources() const;
    double now() const { return m_collaborators.now(); }
    QString siteHost() const { return m_collaborators.site.host(); }
    /// The address of a page of the product site.
    /// @param path below the site's base URL
    Q_INVOKABLE QString sitePage(const QString& path) const;

    // Actions

    void setSurface(Surface surface) { assign(m_surface, surface); }
    void setSearch(const QString& search) { assign(m_search, search); }
    void setActiveLane(std::optional<InformationLane> lane) { assign(m_activeLane, lane); }

    void toggleKeep(const InformationSignal& signal);
    void removeKept(const InformationSignal& signal);
    void reduceSimilar(const InformationSignal& signal);
    void markSeen(const InformationSignal& signal);
    /// The same for the live or retired signal with the id; an unknown id does nothing.
    Q_INVOKABLE void toggleKeep(const QString& id) { act(&InformationModel::toggleKeep, id); }
    Q_INVOKABLE void removeKept(const QString& id) { act(&InformationModel::removeKept, id); }
    Q_INVOKABLE void reduceSimilar(const QString& id) { act(&InformationModel::reduceSimilar, id); }
    Q_INVOKABLE void markSeen(const QString& id) { act(&InformationModel::markSeen, id); }

    /// Whether the hand-in was taken; if not, `intakeErrorMessage` or `errorMessage` says why.
    Q_INVOKABLE bool addSource(const QString& input);
    Q_INVOKABLE void removeSource(const QUuid& id);
    Q_INVOKABLE void resetPreferences();
    Q_INVOKABLE void updateNote(const QString& signalId, const QString& note);
    Q_INVOKABLE void undoLastAction();
    /// Shows the day in the archive when the selection history has it.
    Q_INVOKABLE void openArchiveDay(const QString& date);
    Q_INVOKABLE void closeArchiveDay() { assign(m_selectedArchiveDay, std::nullopt); }
    /// Opens the thread of a live or retired signal; an unknown id does nothing.
    Q_INVOKABLE void openThread(const QString& signalId);
    Q_INVOKABLE void closeThread() { assign(m_openThread, std::nullopt); }

    /// Shows what something else has stored since the workspace was last read or saved; empties the
    /// undo slot then. What does not read changes nothing.
    void catchUpWithStorage();

    /// Fetches the site's pack and shows it where it is newer than the content. Ends by saying in
    /// `packSyncNote` how it went. Does nothing while a refresh runs.
    Q_INVOKABLE void refreshPackFromSite();
    /// Looks once in the model's life for a newer build of the program; a failure is silent.
    Q_INVOKABLE void probeAppUpdateOnce();

    Q_INVOKABLE void dismissReceipt() { assign(m_receipt, std::nullopt); }
    Q_INVOKABLE void dismissError() { assign(m_errorMessage, std::nullopt); }
    Q_INVOKABLE void dismissIntakeError() { assign(m_intakeErrorMessage, std::nullopt); }
    Q_INVOKABLE void dismissUpdate() { assign(m_availableUpdate, std::nullopt); }

Q_SIGNALS:
    void surfaceChanged();
    void selectedArchiveDayChanged();
    void openThreadChanged();
    /// `signals`, `retiredSignals`, `selectionDays` or `packAsOf`.
    void contentChanged();
    void workspaceChanged();
    void searchChanged();
    void activeLaneChanged();
    void errorMessageChanged();
    void receiptChanged();
    void canUndoChanged();
    void intakeErrorMessageChanged();
    void isSyncingPackChanged();
    void packSyncNoteChanged();
    void availableUpdateChanged();

private:
    using Text = std::optional<QString>;

    /// Applies, announces, saves; on failure takes back, clears the receipt and says why.
    bool
    transact(const WorkspaceJournal::Change& change, const std::function<void()>& announce = [] {});
    /// The same with a receipt. Leaves no undo but the one of its success.
    bool transactUndoable(const QString& receipt, const WorkspaceJournal::Change& change);
    /// Tells it anew where the same words stand there already.
    void giveReceipt(const QString& receipt);
    void announceWorkspace();
    /// Lets the journal's undo slot change and announces that.
    void changeUndo(const std::function<void()>& change);
    void clearUndo()
    {
        changeUndo([this] { m_journal.clearUndo(); });
    }
    bool keep(const InformationSignal& signal);
    bool keepMatch(const InformationSignal& signal);
    bool keepCustomSource(const QString& input);

    QCoro::Task<> refreshPack();
    QCoro::Task<> probeAppUpdate();

    template <typename Property, typename Value>
    void assign(Property& property, const Value& value)
    {
        assertMainThread();
        property = value;
    }
    void act(void (InformationModel::*action)(const InformationSignal&), const QString& id);
    void assertMainThread() const;
    std::chrono::sys_seconds wholeSecondsNow() const;

    const Collaborators m_collaborators;
    InformationContent m_content;
    KeptThreads m_threads;
    WorkspaceJournal m_journal;
    mutable DerivedReads m_reads;
    std::optional<ContentRefresh::Outcome> m_refreshOutcome;
    bool m_updateProbeRan = false;

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(InformationModel, Surface, m_surface, Surface::Today,
                                         &InformationModel::surfaceChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, Text, m_selectedArchiveDay,
                               &InformationModel::selectedArchiveDayChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, Text, m_openThread,
                               &InformationModel::openThreadChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, QString, m_search,
                               &InformationModel::searchChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, std::optional<InformationLane>, m_activeLane,
                               &InformationModel::activeLaneChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, Text, m_errorMessage,
                               &InformationModel::errorMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, Text, m_receipt, &InformationModel::receiptChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, Text, m_intakeErrorMessage,
                               &InformationModel::intakeErrorMessageChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(InformationModel, bool, m_isSyncingPack, false,
                                         &InformationModel::isSyncingPackChanged)
    Q_OBJECT_BINDABLE_PROPERTY(InformationModel, std::optional<InformationUpdateNotice>,
                               m_availableUpdate, &InformationModel::availableUpdateChanged)
};
