# SPDX-License-Identifier: Apache-2.0
# One room of the house: the folder that calls this as one static library. With QML types it is the
# QML module of the folder's path too. What it links is all that it may know.
#
#   add_room(<target> [SOURCES <file>...] [QML_FILES <file>...] [QML_SINGLETONS <file>...]
#            [QML_BASES <module>...] [LINKS <library>...] [PRIVATE_LINKS <library>...])
#
# QML_BASES are the modules of the types that those in SOURCES derive from or name; they make the
# folder a QML module even without QML files.
function(add_room target)
    cmake_parse_arguments(PARSE_ARGV 1 room "" ""
        "SOURCES;QML_FILES;QML_SINGLETONS;QML_BASES;LINKS;PRIVATE_LINKS")
    if(room_QML_BASES OR room_QML_FILES)
        add_qml_room(${target})
    else()
        add_library(${target} STATIC ${room_SOURCES})
    endif()
    target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${target} PUBLIC ${room_LINKS} PRIVATE ${room_PRIVATE_LINKS} project_warnings)
    target_precompile_headers(${target} REUSE_FROM object_headers)
    set_property(GLOBAL APPEND PROPERTY CORVANITE_ROOMS ${target})
endfunction()

macro(add_qml_room target)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}
        OUTPUT_VARIABLE room_path)
    string(REPLACE "/" "." room_uri ${room_path})
    set_source_files_properties(${room_QML_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    qt_add_qml_module(${target}
        URI ${room_uri}
        VERSION 1.0
        STATIC
        NO_PLUGIN
        RESOURCE_PREFIX /qt/qml
        IMPORT_PATH ${QT_QML_OUTPUT_DIRECTORY}
        DEPENDENCIES ${room_QML_BASES}
        ${qml_compilation}
        SOURCES ${room_SOURCES}
        QML_FILES ${room_QML_FILES} ${room_QML_SINGLETONS}
    )
    # The compiler of QML reads the types of every room that this one links.
    foreach(link IN LISTS room_LINKS)
        if(TARGET ${link}_qmltyperegistration)
            add_dependencies(${target} ${link}_qmltyperegistration)
        endif()
    endforeach()
    if(room_QML_FILES)
        build_qml_code_together(${target})
    endif()
    if(room_QML_FILES AND NOT qml_compilation)
        leave_qml_files_out(${target})
    endif()
    ease_code_that_qt_writes(${target})
    set_property(GLOBAL APPEND PROPERTY CORVANITE_QML_ROOMS ${target})
endmacro()

# The types of rooms, for a program that shows them: add_qml_modules(<target> <room>...). The function that registers the types of a
# room is called by nobody, so it is named here for the linker to take it in. Qt does the same with
# a plugin for each module, each of which it would look at again and again while the window is made.
function(add_qml_modules target)
    set(declarations "")
    set(names "")
    foreach(room IN LISTS ARGN)
        get_target_property(uri ${room} QT_QML_MODULE_URI)
        string(REPLACE "." "_" name "qml_register_types_${uri}")
        string(APPEND declarations "extern void ${name}();\n")
        string(APPEND names "    ${name},\n")
    endforeach()
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT
        "${declarations}\nextern void (*const volatile ${target}[])();\nvoid (*const volatile ${target}[])() = {\n${names}};\n")
    add_library(${target} OBJECT ${source})
    target_link_libraries(${target} PUBLIC ${ARGN})
endfunction()

# Where QML files are compiled into the program, Qt puts the files themselves beside their code, as
# resources that nobody reads and that each look at any resource goes through. They are the second
# of a room's resources; its first says what types it has.
function(leave_qml_files_out target)
    foreach(property INTERFACE_SOURCES INTERFACE_LINK_LIBRARIES)
        get_target_property(entries ${target} ${property})
        list(FILTER entries EXCLUDE REGEX ${target}_resources_2)
        set_target_properties(${target} PROPERTIES ${property} "${entries}")
    endforeach()
endfunction()

# The code that Qt writes for each QML file includes the same large headers, so many such files are
# compiled as one. It shadows its own parameters; options of a file's own would keep it out of a
# group, so the code itself says so.
function(build_qml_code_together target)
    set(files_a_group 12)
    get_target_property(code ${target} SOURCES)
    list(FILTER code INCLUDE REGEX "/qmlcache/.*_qml\\.cpp$")
    set_property(GLOBAL APPEND PROPERTY CORVANITE_QML_CODE ${code})
    set(count 0)
    foreach(file IN LISTS code)
        math(EXPR group "${count} / ${files_a_group}")
        math(EXPR count "${count} + 1")
        set_source_files_properties(${file} PROPERTIES UNITY_GROUP qml_${group})
    endforeach()
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD ON
        UNITY_BUILD_MODE GROUP
        UNITY_BUILD_CODE_BEFORE_INCLUDE "#pragma GCC diagnostic ignored \"-Wshadow\"")
    # It is run once a change and takes the compiler a quarter longer with more.
    target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

# Of what Qt writes, the registration of types runs once and takes the compiler long; the parts that
# hold the resources have nothing that moc would read.
function(ease_code_that_qt_writes target)
    string(TOLOWER ${target} name)
    set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${name}_qmltyperegistrations.cpp
        PROPERTIES COMPILE_OPTIONS $<$<CONFIG:Release>:-O1>)
    foreach(part IN ITEMS ${target}_qmlcache ${target}_resources_1 ${target}_resources_2)
        if(TARGET ${part})
            set_target_properties(${part} PROPERTIES AUTOMOC OFF)
        endif()
    endforeach()
    if(TARGET ${target}_qmlcache)
        target_precompile_headers(${target}_qmlcache REUSE_FROM object_headers)
    endif()
endfunction()

# Every QML file goes through our own caller of Qt's compiler, which says why.
get_target_property(qmlcachegen Qt6::qmlcachegen LOCATION)
configure_file(${CMAKE_CURRENT_LIST_DIR}/qmlcachegen.in ${CMAKE_BINARY_DIR}/qmlcachegen @ONLY)
get_target_property(configurations Qt6::qmlcachegen IMPORTED_CONFIGURATIONS)
foreach(configuration IN LISTS configurations)
    set_target_properties(Qt6::qmlcachegen PROPERTIES
        IMPORTED_LOCATION_${configuration} ${CMAKE_BINARY_DIR}/qmlcachegen)
endforeach()
