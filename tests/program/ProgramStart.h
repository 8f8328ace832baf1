// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FakeSiteClient.h"
#include "ProgramParts.h"

/// A start of the program without its window, on 2 September 2026, with a site of its own. What was
/// stored has been read.
struct ProgramStart
{
    /// In seconds since 1970.
    static constexpr qint64 now = 1788314400;

    /// @param environment names the data directory and where the program's socket is made
    explicit ProgramStart(const QProcessEnvironment& environment)
        : parts({.environment = environment,
                 .now = [] { return static_cast<double>(now); },
                 .site = site,
                 .version = u"1.0.0"_qs})
    {
        parts.model();
    }

    /// Only for a start that is not a later one.
    InformationModel& model() { return *parts.model(); }

    FakeSiteClient site;
    ProgramParts parts;
};
