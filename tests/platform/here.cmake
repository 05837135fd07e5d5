# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Runs CHECK in FOLDER, which is empty then. Its output is no terminal, as the program expects.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(COMMAND "${CHECK}" "${FOLDER}" RESULT_VARIABLE result OUTPUT_VARIABLE output)
message("${output}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${CHECK} ended with ${result}")
endif()
