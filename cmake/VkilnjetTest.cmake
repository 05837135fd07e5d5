# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# What every test runs with: no display, and a time limit that only a hang can reach.
set(VKILNJET_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
set(VKILNJET_TEST_TIMEOUT 300)

# vkilnjet_add_tests(AREA LIBRARIES TARGET... [DEFINITIONS NAME=VALUE...] [DEPENDS TARGET...])
#
# Every tst_*.cpp of the current folder becomes one program and one test, named AREA.FILE.
function(vkilnjet_add_tests area)
    cmake_parse_arguments(arg "" "" "LIBRARIES;DEFINITIONS;DEPENDS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS "tst_*.cpp")
    foreach(source IN LISTS sources)
        get_filename_component(file ${source} NAME_WE)
        string(REPLACE "tst_" "" topic ${file})
        set(target "tst_${area}_${topic}")
        add_executable(${target} ${source})
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
        target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
        target_link_libraries(${target} PRIVATE vkilnjet_compiler Qt6::Test ${arg_LIBRARIES})
        target_compile_definitions(${target} PRIVATE ${arg_DEFINITIONS})
        if(arg_DEPENDS)
            add_dependencies(${target} ${arg_DEPENDS})
        endif()
        add_test(NAME ${area}.${topic} COMMAND ${target})
        set_tests_properties(${area}.${topic} PROPERTIES
            ENVIRONMENT "${VKILNJET_TEST_ENVIRONMENT}" TIMEOUT ${VKILNJET_TEST_TIMEOUT})
    endforeach()
endfunction()

# vkilnjet_torture(TEST...)
#
# Makes these tests part of `./dev torture`, which sets KILNJET_TORTURE so that they do much more.
function(vkilnjet_torture)
    set_tests_properties(${ARGN} PROPERTIES LABELS torture TIMEOUT 1800)
endfunction()

# vkilnjet_watch_file_calls(TARGET...)
#
# Gives these programs the functions of tests/support/FileCalls.h.
function(vkilnjet_watch_file_calls)
    foreach(target IN LISTS ARGN)
        target_sources(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests/support/FileCalls.cpp")
        target_link_libraries(${target} PRIVATE ${CMAKE_DL_LIBS})
        set_target_properties(${target} PROPERTIES ENABLE_EXPORTS ON)
    endforeach()
endfunction()
