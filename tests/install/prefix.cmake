# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Installs the build into one folder and moves that folder, so that nothing in it may know where it
# was installed.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${WORK}/installed")
file(RENAME "${WORK}/installed" "${PREFIX}")
