// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// A hand-in in its one canonical form.
struct NormalizedInformationIntake
{
    enum class Kind { Url, Text };

    Kind kind;
    /// What is shown and stored.
    QString value;
    /// Equal for two hand-ins that are the same thing.
    QString identity;

    friend bool operator==(const NormalizedInformationIntake&,
                           const NormalizedInformationIntake&) = default;
};
