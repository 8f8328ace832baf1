// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "InformationIntakeFailure.h"
#include "InformationSignal.h"
#include "NormalizedInformationIntake.h"

#include <QList>
#include <QString>

#include <expected>

/// What the reader hands in: a public https address or a sentence.
namespace InformationIntake {

/// In grapheme clusters, of the canonical form.
inline constexpr qsizetype maximumInputLength = 500;
inline constexpr qsizetype maximumCustomSources = 100;

std::expected<NormalizedInformationIntake, InformationIntakeFailure>
normalize(const QString& input);

/// Whether a custom source has the intake's identity.
bool contains(const NormalizedInformationIntake& intake,
              const QList<CustomInformationSource>& customSources);

/// The first signal whose follow target or original is the intake's address; null without one, and
/// for a sentence.
const InformationSignal* match(const NormalizedInformationIntake& intake,
                               const QList<InformationSignal>& signals);

} // namespace InformationIntake
