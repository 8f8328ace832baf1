// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Why there is no repository, or why it does not take a file that decodes.
struct InformationRepositoryError
{
    enum class Kind { UnsupportedVersion, ApplicationSupportUnavailable };

    Kind kind;
    /// The version found, with `UnsupportedVersion`.
    qint64 version = 0;

    QString localizedDescription() const;

    friend bool operator==(const InformationRepositoryError&,
                           const InformationRepositoryError&) = default;
};
