# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# run(COMMAND...): stops the test with the command's output when it fails. `output` holds what it
# printed.
function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nended with ${result}\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()
