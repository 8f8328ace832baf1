# SPDX-License-Identifier: Apache-2.0
# What nearly every file includes, parsed once for all targets that say so:
# add_precompiled_headers(<name> [LIBRARIES <library>...] HEADERS <header>...) makes them, and
# target_precompile_headers(<target> REUSE_FROM <name>) takes them. Of the libraries the headers are
# found, but their definitions stay out: the compiler takes in what was parsed only where nothing
# that was defined then is missing.
function(add_precompiled_headers name)
    cmake_parse_arguments(PARSE_ARGV 1 parsed "" "" "LIBRARIES;HEADERS")
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE Qt6::Core project_warnings)
    foreach(library IN LISTS parsed_LIBRARIES)
        target_include_directories(${name} SYSTEM PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    target_precompile_headers(${name} PRIVATE ${parsed_HEADERS})
endfunction()

set(plain_headers
    <QDateTime> <QHash> <QList> <QSet> <QString> <QUrl>
    <algorithm> <array> <chrono> <expected> <functional> <optional> <ranges> <utility>)
set(object_headers ${plain_headers}
    <QObject> <QPointer> <QtQml/qqmlmoduleregistration.h> <QtQml/qqmlprivate.h>
    <QtQml/qqmlregistration.h> <QtQml/qjsengine.h> <QtQml/qjsprimitivevalue.h> <QtQml/qjsvalue.h>
    <QtQml/qqmlcomponent.h> <QtQml/qqmlcontext.h> <QtQml/qqmlengine.h>)

# Of values and pure functions, which know no object.
add_precompiled_headers(plain_headers HEADERS ${plain_headers})
# Of the application, and of the code that Qt writes for it.
add_precompiled_headers(object_headers LIBRARIES Qt6::Qml HEADERS ${object_headers})
