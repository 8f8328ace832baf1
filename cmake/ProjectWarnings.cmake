# SPDX-License-Identifier: Apache-2.0
# The flags of every target of our own: warnings are errors, Qt's keyword macros are off.
add_library(project_warnings INTERFACE)
target_compile_definitions(project_warnings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_STRICT_ITERATORS)
target_compile_options(project_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wold-style-cast -Wimplicit-fallthrough)

if(CORVANITE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(CORVANITE_FUZZ)
    # The system's stable sort calls what its own header deprecates, and clang tells of it.
    add_compile_options(-fsanitize=fuzzer-no-link -Wno-deprecated-declarations)
endif()
