// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"

#include <QString>
#include <QUuid>

#include <chrono>

/// Something the reader handed in.
struct CustomInformationSource
{
    QUuid id;
    /// The normalised hand-in.
    QString input;
    std::chrono::sys_seconds createdAt;

    friend bool operator==(const CustomInformationSource&,
                           const CustomInformationSource&) = default;
};

inline size_t qHash(const CustomInformationSource& source, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, source.id, source.input,
                           source.createdAt.time_since_epoch().count());
}
