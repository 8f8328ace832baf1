// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileCalls.h"

#include <QList>
#include <QString>

#include <cerrno>
#include <cstring>

/// A fault at one of a run's calls.
struct PlannedFault
{
    /// From 1.
    qsizetype call;
    Verdict fault;

    QString description() const
    {
        switch (fault.kind) {
        case Verdict::Kind::Failed:
            return QString::fromLatin1(strerrorname_np(fault.error));
        case Verdict::Kind::MadeByHalf:
            return u"short"_qs;
        case Verdict::Kind::KilledBefore:
            return u"kill before"_qs;
        case Verdict::Kind::KilledAfter:
            return u"kill after"_qs;
        case Verdict::Kind::Made:
            break;
        }
        return u"none"_qs;
    }
};

/// The faults of one run, in the order of the calls.
using FaultPlan = QList<PlannedFault>;

namespace FaultPlans {

inline const Verdict shortWrite{Verdict::Kind::MadeByHalf};
inline const Verdict killBefore{Verdict::Kind::KilledBefore};
inline const Verdict killAfter{Verdict::Kind::KilledAfter};

inline Verdict failure(int error)
{
    return {Verdict::Kind::Failed, error};
}

inline bool endsInAKill(const FaultPlan& plan)
{
    return !plan.isEmpty() && plan.last().fault.kind >= Verdict::Kind::KilledBefore;
}

/// Every fault that can befall a call of the name.
inline QList<Verdict> faultsOf(const QString& call)
{
    QList<Verdict> faults{failure(EIO),   failure(ENOSPC), failure(EDQUOT),
                          failure(EINTR), killBefore,      killAfter};
    if (call.startsWith(u"write ")) {
        faults.append(shortWrite);
    }
    return faults;
}

/// The plans in which a second fault meets what the program does about the first at the call.
inline QList<FaultPlan> plansAfterAFailure(qsizetype call, const QString& made)
{
    // From the failure to the removal of the temporary file, which is closed before where it is
    // open.
    const qsizetype left = made.startsWith(u"write ") || made.startsWith(u"fsync ") ? 2 : 1;
    QList<FaultPlan> plans;
    for (const Verdict& second : {failure(EIO), killBefore, killAfter}) {
        plans.append({{call, failure(EIO)}, {call + left, second}});
    }
    return plans;
}

} // namespace FaultPlans
