// SPDX-License-Identifier: Apache-2.0

#include "Subject.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return Subject::run(argc, argv);
}
