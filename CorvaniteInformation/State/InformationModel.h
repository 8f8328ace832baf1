#pragma once

#include "InformationContent.h"
#include "InformationFileManager.h"
#include "InformationIntakeFailure.h"
#include "InformationSignal.h"
#include "InformationUpdateNotice.h"
#include "InformationWorkspace.h"
#include "InformationWorkspaceRepository.h"
#include "NormalizedInformationIntake.h"
#include "SelectionDay.h"
#include "SiteClient.h"
#include "WeeklyDigest.h"

#include <QHash>
#include <QObject>
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
    Q_PROPERTY(QString packSyncNote READ packSyncNoteText NOTIFY packSyncNoteChanged FINAL)
    Q_PROPERTY(bool packSyncFailed READ packSyncFailed NOTIFY packSyncNoteChanged FINAL)
    Q_PROPERTY(QString syncHelp READ syncHelp CONSTANT FINAL)
    Q_PROPERTY(bool hasAvailableUpdate READ hasAvailableUpdate NOTIFY availableUpdateChanged FINAL)
    Q_PROPERTY(
        QString availableUpdateText READ availableUpdateText NOTIFY availableUpdateChanged FINAL)
    Q_PROPERTY(
        QString availableUpdateHelp READ availableUpdateHelp NOTIFY availableUpdateChanged FINAL)
    Q_PROPERTY(QString availableUpdateAddress READ availableUpdateAddress NOTIFY
                   availableUpdateChanged FINAL)

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
        SiteClient& site;
        /// Of the program; empty where it is not known.
        QString runningVersion;
    };

    /// Loads the workspace. A stored one that cannot be read is reported and never overwritten:
    /// the model then goes on without the repository.
    InformationModel(Collaborators collaborators, InformationContent content,
                     std::optional<InformationWorkspaceRepository> repository,
                     QObject* parent = nullptr);

    // State

    Surface surface() const { return m_surface; }
    const std::optional<QString>& selectedArchiveDay() const { return m_selectedArchiveDay; }
    /// The signal whose thread is open over the surface.
    const std::optional<QString>& openThread() const { return m_openThread; }
    const QList<InformationSignal>& signals() const { return m_content.signals(); }
    const QList<InformationSignal>& retiredSignals() const { return m_content.retiredSignals(); }
    const QList<SelectionDay>& selectionDays() const { return m_content.selectionDays(); }
    const QString& packAsOf() const { return m_content.packAsOf(); }
    const InformationWorkspace& workspace() const { return m_workspace; }
    const QString& search() const { return m_search; }
    /// Nothing means all lanes.
    std::optional<InformationLane> activeLane() const { return m_activeLane; }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    const std::optional<QString>& receipt() const { return m_receipt; }
    bool canUndo() const { return m_undoWorkspace.has_value(); }
    const std::optional<QString>& intakeErrorMessage() const { return m_intakeErrorMessage; }
    bool isSyncingPack() const { return m_isSyncingPack; }
    /// How the last refresh ended; nothing while one runs.
    const std::optional<QString>& packSyncNote() const { return m_packSyncNote; }
    /// A newer build that the site offers and the reader has not waved away.
    const std::optional<InformationUpdateNotice>& availableUpdate() const
    {
        return m_availableUpdate;
    }

    bool hasOpenThread() const { return m_openThread.has_value(); }
    QString openThreadId() const { return m_openThread.value_or(QString()); }
    bool hasReceipt() const { return m_receipt.has_value(); }
    QString receiptText() const { return m_receipt.value_or(QString()); }
    bool hasErrorMessage() const { return m_errorMessage.has_value(); }
    QString errorText() const { return m_errorMessage.value_or(QString()); }
    QString intakeErrorText() const { return m_intakeErrorMessage.value_or(QString()); }
    QString packSyncNoteText() const { return m_packSyncNote.value_or(QString()); }
    bool packSyncFailed() const;
    QString syncHelp() const;
    bool hasAvailableUpdate() const { return m_availableUpdate.has_value(); }
    QString availableUpdateText() const;
    QString availableUpdateHelp() const;
    QString availableUpdateAddress() const;

    // Derived reads, cached until the content or the workspace changes

    const QList<InformationSignal>& visibleSignals() const;
    /// Live and retired signals by id.
    const QHash<QString, InformationSignal>& signalIndex() const;
    std::optional<InformationSignal> signalById(const QString& id) const;
    /// Newest first.
    const QList<SelectionDay>& archiveDays() const;
    const QList<WeeklyDigest::Week>& weeklyWeeks() const;

    // Derived reads, computed anew on each call

    qsizetype laneAllCount() const;
    qsizetype laneCount(InformationLane lane) const;
    QList<InformationSignal> laneFilteredSignals() const;
    /// The lead cards of today.
    QList<InformationSignal> focusedSignals() const;
    QList<InformationSignal> remainingSignals() const;
    qsizetype keptItemCount() const;
    bool isKept(const InformationSignal& signal) const;
    /// The signal id and entry that stand for the signal's thread; of several the last kept.
    std::optional<InformationWorkspace::SavedMap::value_type>
    savedEntry(const InformationSignal& signal) const;
    /// The kept lists, filtered by `search`.
    QList<InformationSignal> keptSignals() const;
    QList<CustomInformationSource> keptCustomSources() const;
    double now() const { return m_collaborators.now(); }
    /// The address of a page of the product site.
    /// @param path below the site's base URL
    Q_INVOKABLE QString sitePage(const QString& path) const;

    static QString intakeMessage(InformationIntakeFailure failure);
    static QString keepReceipt(InformationFollowUpdateMode updateMode);

    // Actions

    void setSurface(Surface surface);
    void setSearch(const QString& search);
    void setActiveLane(std::optional<InformationLane> lane);

    void toggleKeep(const InformationSignal& signal);
    void removeKept(const InformationSignal& signal);
    void reduceSimilar(const InformationSignal& signal);
    void markSeen(const InformationSignal& signal);
    /// The same for the live or retired signal with the id; an unknown id does nothing.
    Q_INVOKABLE void toggleKeep(const QString& signalId);
    Q_INVOKABLE void removeKept(const QString& signalId);
    Q_INVOKABLE void reduceSimilar(const QString& signalId);
    Q_INVOKABLE void markSeen(const QString& signalId);

    /// Whether the hand-in was taken; if not, `intakeErrorMessage` or `errorMessage` says why.
    Q_INVOKABLE bool addSource(const QString& input);
    Q_INVOKABLE void removeSource(const QUuid& id);
    Q_INVOKABLE void resetPreferences();
    Q_INVOKABLE void updateNote(const QString& signalId, const QString& note);
    Q_INVOKABLE void undoLastAction();
    /// Shows the day in the archive when the selection history has it.
    Q_INVOKABLE void openArchiveDay(const QString& date);
    Q_INVOKABLE void closeArchiveDay();
    /// Opens the thread of a live or retired signal; an unknown id does nothing.
    Q_INVOKABLE void openThread(const QString& signalId);
    Q_INVOKABLE void closeThread();

    /// Fetches the site's pack and, where it is newer than the content, shows and stores it with
    /// the retired list beside it. Ends by saying in `packSyncNote` how it went; a failure changes
    /// neither content nor files. Does nothing while a refresh runs.
    Q_INVOKABLE void refreshPackFromSite();
    /// Looks once in the model's life for a newer build of the program; a failure is silent.
    Q_INVOKABLE void probeAppUpdateOnce();

    Q_INVOKABLE void dismissReceipt();
    Q_INVOKABLE void dismissError();
    Q_INVOKABLE void dismissIntakeError();
    Q_INVOKABLE void dismissUpdate();

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
    using Mutation = std::function<void(InformationWorkspace&)>;

    /// Applies, announces, saves; on failure takes back, clears the receipt and says why.
    bool transact(const Mutation& mutation, const std::function<void()>& announce = [] {});
    bool transactUndoable(const QString& receipt, const Mutation& mutation);

    QCoro::Task<> refreshPack();
    /// Ends a refresh with its note and, where a newer pack came, the content.
    void endRefresh(const QString& note, std::optional<InformationContent> content = std::nullopt);
    QCoro::Task<> probeAppUpdate();

    void setWorkspace(InformationWorkspace workspace);
    void setReceipt(std::optional<QString> receipt);
    void setErrorMessage(std::optional<QString> message);
    void setIntakeErrorMessage(std::optional<QString> message);
    void setSelectedArchiveDay(std::optional<QString> date);
    void setOpenThread(std::optional<QString> signalId);
    void setPackSyncNote(std::optional<QString> note);
    void setSyncingPack(bool isSyncingPack);
    void setAvailableUpdate(std::optional<InformationUpdateNotice> notice);
    void setUndoWorkspace(std::optional<InformationWorkspace> workspace);
    void clearUndo() { setUndoWorkspace(std::nullopt); }
    void dropCaches();

    void assertMainThread() const;
    std::chrono::sys_seconds wholeSecondsNow() const;
    /// The ids of the live signals that share the signal's follow target.
    QList<QString> threadIds(const InformationSignal& signal) const;
    /// The live signal that the normalised address belongs to.
    const InformationSignal* signalMatching(const NormalizedInformationIntake& address) const;
    Mutation keepMutation(const InformationSignal& signal) const;
    Mutation removeKeptMutation(const InformationSignal& signal) const;

    const Collaborators m_collaborators;
    std::optional<InformationWorkspaceRepository> m_repository;

    InformationContent m_content;
    InformationWorkspace m_workspace;
    std::optional<InformationWorkspace> m_undoWorkspace;

    Surface m_surface = Surface::Today;
    std::optional<QString> m_selectedArchiveDay;
    std::optional<QString> m_openThread;
    QString m_search;
    std::optional<InformationLane> m_activeLane;
    std::optional<QString> m_errorMessage;
    std::optional<QString> m_receipt;
    std::optional<QString> m_intakeErrorMessage;
    bool m_isSyncingPack = false;
    std::optional<QString> m_packSyncNote;
    std::optional<InformationUpdateNotice> m_availableUpdate;
    bool m_updateProbeRan = false;

    mutable std::optional<QHash<QString, InformationSignal>> m_signalIndexCache;
    mutable std::optional<QList<InformationSignal>> m_visibleSignalsCache;
    mutable std::optional<QList<SelectionDay>> m_archiveDaysCache;
    mutable std::optional<QList<WeeklyDigest::Week>> m_weeklyWeeksCache;
};
