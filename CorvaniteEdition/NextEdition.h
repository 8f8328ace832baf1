// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionFolder.h"

#include <QByteArray>

/// The edition that follows another one.
struct NextEdition
{
    QByteArray pack;
    QByteArray retired;
    /// How many signals of the published pack the new one no longer has.
    qsizetype leftCount;

    /// The new pack's signals as they are; its days after the days that were published; whatever
    /// was published and is not in it retired. Its as-of is its own where that is later than the
    /// published one, else now.
    /// @param now milliseconds since 1970-01-01T00:00:00Z
    static std::expected<NextEdition, Finding> after(const EditionFolder& published,
                                                     const EditionFolder& next, qint64 now);

    friend bool operator==(const NextEdition&, const NextEdition&) = default;
};
