#pragma once

#include "FakeSiteClient.h"
#include "ProgramParts.h"

/// A start of the program without its window, on 2 September 2026, with a site of its own.
struct ProgramStart
{
    /// @param environment names the data directory and where the program's socket is made
    explicit ProgramStart(const QProcessEnvironment& environment)
        : parts({.environment = environment,
                 .now = [] { return 1788314400.0; },
                 .site = site,
                 .version = u"1.0.0"_qs})
    {
    }

    /// Only for a start that is not a later one.
    InformationModel& model() { return *parts.model(); }

    FakeSiteClient site;
    ProgramParts parts;
};
