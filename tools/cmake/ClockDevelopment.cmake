# SPDX-FileCopyrightText: 2026 The Clock authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# What the development package holds.
include(CMakePackageConfigHelpers)

set(CLOCK_HEADER_DIR ${CMAKE_INSTALL_INCLUDEDIR}/clock)
set(CLOCK_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Clock)
set(CLOCK_PC_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH CLOCK_PREFIX_FROM_PC /${CLOCK_PC_DIR} /)
string(REGEX REPLACE "/$" "" CLOCK_PREFIX_FROM_PC ${CLOCK_PREFIX_FROM_PC})

# clock_headers(FILE...): headers for other programs, installed as they are included: <platform/toolkit/label.h>.
function(clock_headers)
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
    install(FILES ${ARGN} DESTINATION ${CLOCK_HEADER_DIR}/${folder} COMPONENT dev)
endfunction()

# clock_public(NAME DESCRIPTION TEXT REQUIRES MODULE... [PRIVATE_HEADERS FILE...]): a library for other programs, as the
# CMake target Clock::NAME and the pkg-config module clock-NAME. Its headers are all that do not end in _p.h, and those
# named, which the others include.
function(clock_public name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION" "REQUIRES;PRIVATE_HEADERS")
    set_target_properties(${name} PROPERTIES OUTPUT_NAME clock-${name})
    target_compile_features(${name} INTERFACE cxx_std_20)
    target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:${CLOCK_HEADER_DIR}>)
    install(TARGETS ${name} EXPORT Clock ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)

    get_target_property(headers ${name} SOURCES)
    list(FILTER headers INCLUDE REGEX "^[^/]+\\.h$")
    list(FILTER headers EXCLUDE REGEX "_p\\.h$")
    clock_headers(${headers} ${arg_PRIVATE_HEADERS})

    list(JOIN arg_REQUIRES ", " requires)
    configure_file(${PROJECT_SOURCE_DIR}/tools/packaging/clock.pc.in clock-${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/clock-${name}.pc DESTINATION ${CLOCK_PC_DIR} COMPONENT dev)
endfunction()

# clock_interfaces(XML...): descriptions of interfaces on the bus.
function(clock_interfaces)
    install(FILES ${ARGN} DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/interfaces COMPONENT dev)
endfunction()

# clock_cmake_package(): what find_package(Clock) reads; after the last clock_public().
function(clock_cmake_package)
    install(EXPORT Clock NAMESPACE Clock:: FILE ClockTargets.cmake DESTINATION ${CLOCK_CMAKE_DIR} COMPONENT dev)
    configure_file(${PROJECT_SOURCE_DIR}/tools/packaging/ClockConfig.cmake.in ClockConfig.cmake COPYONLY)
    # No promise of compatibility before the first 1.0.
    write_basic_package_version_file(ClockConfigVersion.cmake COMPATIBILITY SameMinorVersion)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ClockConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/ClockConfigVersion.cmake
        DESTINATION ${CLOCK_CMAKE_DIR} COMPONENT dev)
endfunction()
