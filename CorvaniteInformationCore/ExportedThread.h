// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "InformationWorkspace.h"
#include "SavedInformation.h"

#include <QList>
#include <QString>

#include <optional>

/// One thread that the reader keeps, with everything that is known of it.
struct ExportedThread
{
    struct Keeping
    {
        QString signalId;
        SavedInformation saved;

        friend bool operator==(const Keeping&, const Keeping&) = default;
    };

    /// A line of what is told of the thread: what it is, and its text, which may be several lines.
    struct Detail
    {
        QString label;
        QString text;

        friend bool operator==(const Detail&, const Detail&) = default;
    };

    /// What the reader keeps, last kept first, then what is followed alone. Entries of signals that
    /// no edition at hand has stand each for itself.
    /// @param signals all that are known, retired ones included, unique by id
    static QList<ExportedThread> listOf(const InformationWorkspace& workspace,
                                        const QList<InformationSignal>& signals);

    /// The newest signal of the thread, where one is known.
    std::optional<InformationSignal> signal;
    /// Last kept first; none where the thread is followed alone.
    QList<Keeping> keepings;
    /// Of the follow target; empty where no signal is known.
    QString targetId;
    bool isFollowed = false;

    /// The newest signal's, else the id under which the thread is kept or followed.
    QString title() const;

    /// Why and when it was kept with which note, then what the content says of it, then how it came
    /// to be, in the order of the thread's own sheet. Days are those of UTC+8.
    QList<Detail> details() const;

    friend bool operator==(const ExportedThread&, const ExportedThread&) = default;
};
