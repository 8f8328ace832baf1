// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

#include <memory>

/// The subjects of one test executable, each a test class that runs by its name.
namespace Subject {

using Make = std::unique_ptr<QObject> (*)();

bool add(const char* name, Make make);

/// Runs the subject that the first argument names; the others are Qt Test's.
int run(int argc, char* argv[]);

} // namespace Subject

/// Makes the class a subject of the executable that its file is compiled into.
#define TEST_SUBJECT(Class)                                                                        \
    namespace {                                                                                    \
    const bool is##Class##Subject = Subject::add(                                                  \
        #Class, []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); });           \
    }
