// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SampleModel.h"

#include <QStringList>

/// What a pack may bring that no editor means well with.
namespace HostileContent {

constexpr int many = 10000;

/// Markup, characters that turn the reading direction, control characters, and what else is not
/// plainly a text.
QStringList texts();

/// What opens something else than a page of the web, or hides which one.
QStringList dangerousAddresses();

QStringList schemes();

/// A card that says the text wherever it says something.
InformationSignal saying(const QString& id, const QString& text);

/// A card that gives the address wherever it gives one; that of its alternate only where the
/// original is hard to reach.
InformationSignal leadingTo(const QString& id, const QString& address, bool blocked);

/// Signals that lead anywhere, from the first on.
QList<InformationSignal> addressSignals();

/// 10000 events, and 10000 further sources.
InformationSignal endless();

/// A word without end, wherever something is said. The only card of its lane.
InformationSignal wordy();

/// The whole pack.
void fill(SampleModel& sample);

} // namespace HostileContent
