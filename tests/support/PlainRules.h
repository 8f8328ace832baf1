// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationWorkspace.h"

/// What the reader's actions do to a workspace, written a second time and as plainly as possible,
/// to hold the model against.
namespace PlainRules {

using Entry = InformationWorkspace::SavedMap::const_iterator;

/// The entry that stands for the target's thread: of the live signals' the last kept, of several
/// the one that sorts first.
Entry threadEntry(const InformationWorkspace& workspace, const QList<InformationSignal>& live,
                  const QString& target);

bool isKept(const InformationWorkspace& workspace, const QList<InformationSignal>& live,
            const QString& target);

void follow(InformationWorkspace& workspace, const QString& target);

void keep(InformationWorkspace& workspace, const QList<InformationSignal>& live,
          const InformationSignal& signal, std::chrono::sys_seconds now);

void remove(InformationWorkspace& workspace, const QList<InformationSignal>& live,
            const QString& target);

void note(InformationWorkspace& workspace, const QList<InformationSignal>& live,
          const InformationSignal& signal, const QString& text, std::chrono::sys_seconds now);

void reduce(InformationWorkspace& workspace, const InformationSignal& signal);

void see(InformationWorkspace& workspace, const QString& target);

} // namespace PlainRules
