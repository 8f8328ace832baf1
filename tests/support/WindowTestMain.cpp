// SPDX-License-Identifier: Apache-2.0

#include "Subject.h"

#include <QGuiApplication>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    return Subject::run(argc, argv);
}
