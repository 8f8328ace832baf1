// SPDX-License-Identifier: Apache-2.0

#include "Program.h"

int main(int argc, char* argv[])
{
    return runProgram(argc, argv, QStringLiteral(CORVANITE_SITE_ORIGIN),
                      QStringLiteral(CORVANITE_VERSION));
}
