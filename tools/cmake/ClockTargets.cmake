# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)

# Short names keep a debug build quick to compile; line tables are enough for a backtrace.
set(CMAKE_CXX_FLAGS_DEBUG "-O0 -g1")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # What precompiled headers need of the cache.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

# The flags that every target of ours is compiled with.
add_library(clock-flags INTERFACE)
target_compile_options(clock-flags INTERFACE
    -pthread -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Werror)
target_compile_definitions(clock-flags INTERFACE QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING)
# Includes name the folder: #include "platform/toolkit/label.h".
target_include_directories(clock-flags INTERFACE ${PROJECT_SOURCE_DIR})

if(CLOCK_SANITIZE)
    target_compile_options(clock-flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer)
    target_link_options(clock-flags INTERFACE -fsanitize=address,undefined)
endif()

# Debug builds link three times as fast with gold.
find_program(GOLD_PROGRAM ld.gold)
if(CMAKE_BUILD_TYPE STREQUAL "Debug" AND GOLD_PROGRAM)
    add_link_options(-fuse-ld=gold)
endif()

# Counts which lines run; tools/coverage.py reads the counts.
option(CLOCK_COVERAGE "Count the lines that run" OFF)
if(CLOCK_COVERAGE)
    target_compile_options(clock-flags INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(clock-flags INTERFACE --coverage)
endif()

# Debug builds read the headers of Qt and of the standard library from one precompiled file, which halves their time.
# The release build does without, so that a missing #include is seen there.
option(CLOCK_PRECOMPILE "Precompile the headers of Qt and of the standard library" OFF)
if(CLOCK_PRECOMPILE)
    add_library(precompiled OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
    # The include folders alone: a macro such as QT_GUI_LIB would shut out the targets that do not define it.
    foreach(module IN ITEMS Core Gui Widgets DBus)
        target_include_directories(precompiled SYSTEM PRIVATE ${Qt6${module}_INCLUDE_DIRS})
    endforeach()
    target_compile_options(precompiled PRIVATE -fPIC)
    # As Qt's own targets define it for their users.
    target_compile_definitions(precompiled PRIVATE $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG>)
    if(CCACHE_PROGRAM)
        target_compile_options(clock-flags INTERFACE -fpch-preprocess)
    endif()
    target_link_libraries(precompiled PRIVATE clock-flags)
    target_precompile_headers(precompiled PRIVATE ${CMAKE_CURRENT_LIST_DIR}/precompiled.h)
    set_target_properties(precompiled PROPERTIES AUTOMOC OFF)
endif()
function(clock_precompiled name)
    if(CLOCK_PRECOMPILE)
        target_precompile_headers(${name} REUSE_FROM precompiled)
    endif()
endfunction()

# clock_library(NAME [WITHOUT_QT] SOURCES ... LINK ...): the one library of a folder. What it links is passed on to its
# users.
function(clock_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WITHOUT_QT" "" "SOURCES;LINK")
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE $<BUILD_INTERFACE:clock-flags>)
    if(NOT arg_WITHOUT_QT)
        clock_precompiled(${name})
    endif()
endfunction()

# Whatever is installed belongs to the package "clock", unless it says COMPONENT dev.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME clock)

# clock_program(NAME [WITHOUT_QT] SOURCES ... LINK ... [INSTALL FOLDER]): a program, put into the build folder's bin/, and
# installed into a folder such as ${CMAKE_INSTALL_BINDIR} if one is named. Its own sources know the version of the project
# as CLOCK_VERSION.
function(clock_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WITHOUT_QT" "INSTALL" "SOURCES;LINK")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINK} clock-flags)
    target_compile_definitions(${name} PRIVATE CLOCK_VERSION="${PROJECT_VERSION}")
    if(NOT arg_WITHOUT_QT)
        clock_precompiled(${name})
    endif()
    if(arg_INSTALL)
        install(TARGETS ${name} DESTINATION ${arg_INSTALL})
    endif()
endfunction()

# clock_compressed(VARIABLE FILE): the path of the file compressed, as packages hold their documents.
find_program(GZIP gzip REQUIRED)
function(clock_compressed variable file)
    get_filename_component(name ${file} NAME)
    get_filename_component(file ${file} ABSOLUTE)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND ${GZIP} --best --no-name --stdout ${file} > ${compressed}
        DEPENDS ${file}
        VERBATIM)
    add_custom_target(${name}-compressed ALL DEPENDS ${compressed})
    set(${variable} ${compressed} PARENT_SCOPE)
endfunction()

# clock_man(PAGE...): installs manual pages, named after their section: "alarmctl.1".
function(clock_man)
    foreach(page IN LISTS ARGN)
        clock_compressed(compressed ${page})
        string(REGEX MATCH "[0-9]$" section ${page})
        install(FILES ${compressed} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section})
    endforeach()
endfunction()

# clock_completion(PROGRAM): installs what bash completes for the program, PROGRAM.bash.
function(clock_completion program)
    install(FILES ${program}.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ${program})
endfunction()

# The languages that every catalogue of texts is there in.
set(CLOCK_LANGUAGES
    ar bn cs de el en es fa fi fr he hi hu id it ja ko nl pl pt_BR ro ru sv th tr uk vi zh_CN zh_TW)

# clock_catalogue(TARGET NAME LANGUAGE...): the texts of translations/NAME_LANGUAGE.ts, built into a target as
# ":/translations/NAME_LANGUAGE.qm". The target asks for them with Q_INIT_RESOURCE(NAME_texts).
function(clock_catalogue target name)
    list(TRANSFORM ARGN REPLACE "(.+)" "translations/${name}_\\1.ts" OUTPUT_VARIABLE sources)
    set_source_files_properties(${sources} PROPERTIES OUTPUT_LOCATION ${CMAKE_CURRENT_BINARY_DIR}/translations)
    qt_add_lrelease(${target} TS_FILES ${sources} QM_FILES_OUTPUT_VARIABLE catalogues OPTIONS -idbased -silent)
    qt_add_resources(${target} ${name}_texts PREFIX / BASE ${CMAKE_CURRENT_BINARY_DIR} FILES ${catalogues})
endfunction()

# All tests that run under the sanitizers as well.
add_custom_target(core-tests)

# clock_test_moc(NAME SOURCE...): what each tst_*.cpp includes at its end. AUTOMOC would find nothing else, and compile an
# empty file besides.
function(clock_test_moc name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name}.dir)
    list(FILTER ARGN INCLUDE REGEX "^tst_")
    foreach(source IN LISTS ARGN)
        string(REGEX REPLACE "cpp$" "moc" output ${folder}/${source})
        qt_generate_moc(${source} ${output} TARGET ${name})
        target_sources(${name} PRIVATE ${output})
    endforeach()
    target_include_directories(${name} PRIVATE ${folder})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()

# clock_test(NAME SOURCES ... LINK ... [LABELS ...] [TIMEOUT SECONDS]): one Qt test program and its CTest entry.
# Tests run offscreen, see the staged data and a home of their own; the label "core" puts a test into the sanitizer run.
function(clock_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LINK;LABELS")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE Qt6::Test test-places ${arg_LINK} clock-flags)
    clock_precompiled(${name})
    if(NOT arg_SOURCES MATCHES "\\.h(;|$)")
        clock_test_moc(${name} ${arg_SOURCES})
    endif()
    add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/support/in-own-home $<TARGET_FILE:${name}>)
    if("core" IN_LIST arg_LABELS)
        add_dependencies(core-tests ${name})
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} LABELS "${arg_LABELS}"
        ENVIRONMENT "XDG_DATA_DIRS=${CLOCK_SHARE_DIR}:/usr/share")
endfunction()
