// SPDX-License-Identifier: Apache-2.0

// The program over a site of the test's own: LOOPBACK_SITE_ORIGIN names it.

#include "Program.h"

int main(int argc, char* argv[])
{
    return runProgram(argc, argv, qEnvironmentVariable("LOOPBACK_SITE_ORIGIN"), u"1.2.3"_qs);
}
