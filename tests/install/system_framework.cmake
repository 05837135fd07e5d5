# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The library builds against framework libraries that are installed already.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/system"
    -G "${CMAKE_GENERATOR}" "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
    "-DCMAKE_PREFIX_PATH=${PREFIX}" -DVKILNJET_FRAMEWORK=system -DCMAKE_CXX_FLAGS=-O0
    -DVKILNJET_BUILD_TOOLS=OFF -DVKILNJET_BUILD_TESTS=OFF -DVKILNJET_BUILD_EXAMPLES=OFF)
run("${CMAKE_COMMAND}" --build "${WORK}/system" --target vkilnjet)
file(GLOB own "${WORK}/system/framework/v*")
if(own)
    message(SEND_ERROR "a framework of its own was built, too: ${own}")
endif()
