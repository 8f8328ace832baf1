// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// Runs the program to its end: one window over one model, no window when it runs already, or an
/// answer on the terminal.
/// @param siteOrigin the product site's base URL
/// @param version the program's, as the site's version document would name it
/// @return the exit code
int runProgram(int argc, char* argv[], const QString& siteOrigin, const QString& version);
