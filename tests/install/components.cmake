# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The libraries of the framework are components of the package, and packages of their own.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# looks_for(ARGUMENTS RESULT OUTPUT): configures a project that calls find_package() with these.
function(looks_for arguments result_variable output_variable)
    set(project "${WORK}/components")
    file(REMOVE_RECURSE "${project}")
    file(WRITE "${project}/CMakeLists.txt" "
cmake_minimum_required(VERSION 3.25)
project(components LANGUAGES CXX)
find_package(${arguments})
foreach(target IN ITEMS vcore vcommon vimaging vkilnjet)
    if(TARGET Norvane::\${target})
        message(STATUS \"target=\${target}\")
    endif()
endforeach()
")
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -S "${project}" -B "${project}/build" -G "${CMAKE_GENERATOR}"
            "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${PREFIX}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    # CMake breaks its messages into lines.
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    set(${result_variable} "${result}" PARENT_SCOPE)
    set(${output_variable} "${output}" PARENT_SCOPE)
endfunction()

# finds(ARGUMENTS TARGET...): these targets and no others.
function(finds arguments)
    looks_for("${arguments}" result output)
    string(REGEX MATCHALL "target=[a-z]+" found "${output}")
    list(TRANSFORM found REPLACE "target=" "")
    if(NOT result EQUAL 0 OR NOT "${found}" STREQUAL "${ARGN}")
        message(SEND_ERROR "find_package(${arguments}) finds '${found}', not '${ARGN}':\n${output}")
    endif()
endfunction()

# fails(ARGUMENTS REGEX): with a message that matches.
function(fails arguments regex)
    looks_for("${arguments}" result output)
    if(result EQUAL 0 OR NOT output MATCHES "${regex}")
        message(SEND_ERROR "find_package(${arguments}) does not fail with '${regex}':\n${output}")
    endif()
endfunction()

finds("vkilnjet 2 CONFIG REQUIRED COMPONENTS vcommon vimaging" vcore vcommon vimaging vkilnjet)
finds("vkilnjet 2 CONFIG REQUIRED OPTIONAL_COMPONENTS vprinting" vcore vcommon vimaging vkilnjet)
finds("vkilnjet ${VERSION} CONFIG REQUIRED" vcore vcommon vimaging vkilnjet)
finds("vcommon 2 CONFIG REQUIRED" vcore vcommon)
finds("vkilnjet 2 CONFIG COMPONENTS vprinting")
fails("vkilnjet 2 CONFIG REQUIRED COMPONENTS vcore vprinting"
    "vkilnjet has no component \"vprinting\"; it has: vcore, vcommon, vimaging")
fails("vkilnjet 3 CONFIG REQUIRED" "version: ${VERSION}")
