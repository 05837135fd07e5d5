# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# A host without CMake asks pkg-config, also about the moved libraries.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

find_program(pkg_config NAMES pkg-config pkgconf REQUIRED)
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}")

# flags(VARIABLE ARGUMENT...): what pkg-config says, as a list.
function(flags variable)
    run("${pkg_config}" ${ARGN})
    separate_arguments(list UNIX_COMMAND "${output}")
    set(${variable} "${list}" PARENT_SCOPE)
endfunction()

# needs(LIBRARY LIBRARY...): it asks for these, and their own flags follow from that.
function(needs library)
    run("${pkg_config}" --print-requires ${library})
    string(REGEX MATCHALL "[A-Za-z0-9]+" words "${output}")
    foreach(need IN LISTS ARGN)
        list(FIND words ${need} place)
        if(place EQUAL -1)
            message(SEND_ERROR "${library}.pc does not require ${need}:\n${output}")
        endif()
    endforeach()
    run("${pkg_config}" --modversion ${library})
    string(STRIP "${output}" version)
    if(NOT version VERSION_EQUAL VERSION)
        message(SEND_ERROR "${library}.pc is of version ${version}, not ${VERSION}")
    endif()
endfunction()

needs(vcore Qt6Core)
needs(vcommon Qt6Core vcore)
needs(vimaging Qt6Core Qt6Gui vcore)
needs(vkilnjet Qt6Core Qt6Gui vcommon vimaging)

flags(compile --cflags vkilnjet)
flags(link --libs vkilnjet)
set(program "${WORK}/pkg_config_consumer")
run("${CMAKE_CXX_COMPILER}" -std=c++20 -Wall -Wextra -Werror ${compile}
    "${CMAKE_CURRENT_LIST_DIR}/consumer/main.cpp" -o "${program}"
    ${link} "-Wl,-rpath,${PREFIX}/${LIBDIR}")
run("${program}" "${WORK}/pkg_config.tdb")
message("${output}")
