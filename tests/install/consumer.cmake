# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# A project of someone else finds the moved libraries, builds against them and runs.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

run("${CMAKE_COMMAND}" -S "${CMAKE_CURRENT_LIST_DIR}/consumer" -B "${WORK}/consumer"
    -G "${CMAKE_GENERATOR}" "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}"
    "-DCMAKE_PREFIX_PATH=${PREFIX}")
run("${CMAKE_COMMAND}" --build "${WORK}/consumer")
run("${WORK}/consumer/consumer" "${WORK}/consumer/Printers.tdb")
message("${output}")
