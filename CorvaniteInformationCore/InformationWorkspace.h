// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CodePointOrder.h"
#include "CustomInformationSource.h"
#include "InformationLane.h"
#include "InformationSignal.h"
#include "SavedInformation.h"

#include <QList>
#include <QString>

#include <chrono>
#include <map>

/// Everything the reader has done to the information on this machine.
struct InformationWorkspace
{
    static constexpr qint64 currentVersion = 3;
    static constexpr qsizetype maximumSeenTargets = 300;

    struct IdOrder
    {
        using is_transparent = void;
        bool operator()(QStringView left, QStringView right) const
        {
            return codePointLess(left, right);
        }
    };
    using SavedMap = std::map<QString, SavedInformation, IdOrder>;

    qint64 version = currentVersion;
    /// By signal id.
    SavedMap saved;
    /// Follow-target ids in the order they were followed, each once.
    QList<QString> following;
    /// Hidden signal versions (see `InformationProjection::versionKey`), each once.
    QList<QString> hidden;
    QList<InformationLane> reducedLanes;
    /// In the order added.
    QList<CustomInformationSource> customSources;
    /// Follow-target ids already seen, oldest first, each once, at most `maximumSeenTargets`.
    QList<QString> seenTargets;

    /// Drops repeated list entries, keeping the first, and all but the last `maximumSeenTargets`
    /// seen targets. `saved` and `customSources` stay as they are.
    void normalize();

    /// Whether `normalize` would change nothing.
    bool isNormalized() const;

    /// Whether the signal is saved and its target followed.
    bool keeps(const InformationSignal& signal) const;

    /// Keeping saves the signal unless it is saved already and follows its target. Un-keeping
    /// removes both, also where other kept signals share the target.
    void setKept(bool keep, const InformationSignal& signal, std::chrono::sys_seconds at);

    /// Hides this version of the signal and turns its lane down.
    void reduceSimilar(const InformationSignal& signal);

    bool hasSeen(const InformationSignal& signal) const;
    void markSeen(const InformationSignal& signal);

    friend bool operator==(const InformationWorkspace&, const InformationWorkspace&) = default;
};
