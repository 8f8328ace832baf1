// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"

#include <QProcessEnvironment>

/// Fulfils the request, beside a running program or without one: the data directory is read, and
/// nothing in it is written, unless the reader names a file there.
/// @return what is to be told: for the standard output the whole document
CommandLine::Answer exportKept(const CommandLine::Export& request,
                               const QProcessEnvironment& environment);
