# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The examples are a project of their own, too: a copy of them, away from our sources, is configured
# with the moved libraries. Two are built and run, without optimising, which would take longer than
# it saves; that the others include nothing else than public headers is a house rule.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

file(COPY "${SOURCE}/examples" DESTINATION "${WORK}")
run("${CMAKE_COMMAND}" -S "${WORK}/examples" -B "${WORK}/examples-build" -G "${CMAKE_GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}" "-DCMAKE_CXX_FLAGS=-O0"
    "-DCMAKE_PREFIX_PATH=${PREFIX}")
run("${CMAKE_COMMAND}" --build "${WORK}/examples-build"
    --target example-01-keep-a-driver example-07-show-texts)
run("${CMAKE_CTEST_COMMAND}" --test-dir "${WORK}/examples-build" --output-on-failure -R "0[17]-")
message("${output}")
