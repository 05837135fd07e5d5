# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The shared objects export their public interface and nothing else: no instance of a template, no
# inline function of Qt or of the standard library that the compiler left behind.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# strangers(LIBRARY REGEX): fails for every exported symbol that does not match.
function(strangers library regex)
    run("${CMAKE_NM}" -DC --defined-only "${PREFIX}/${LIBDIR}/lib${library}.so")
    string(REGEX REPLACE ";" "," output "${output}")
    string(REGEX REPLACE "\n" ";" lines "${output}")
    set(own 0)
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^[0-9a-f]* . " "" symbol "${line}")
        string(REGEX REPLACE
            "^(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )" ""
            symbol "${symbol}")
        if(symbol MATCHES "${regex}")
            math(EXPR own "${own} + 1")
        elseif(NOT symbol STREQUAL "")
            message(SEND_ERROR "lib${library}.so exports ${line}")
        endif()
    endforeach()
    if(own EQUAL 0)
        message(SEND_ERROR "lib${library}.so exports none of its own symbols")
    endif()
    message("lib${library}.so exports ${own} symbols")
endfunction()

set(classes VPrintersDb VPrinterDriver VPrintUnitDriver VElaborationDriver VMagnificationLimits
    VKilnjetInfo)
list(JOIN classes "|" classes)
strangers(vkilnjet "^Norvane::Kilnjet::(${classes})(::|$)")
foreach(library IN ITEMS vcore vcommon vimaging)
    strangers(${library} "^Norvane::([A-Z]|parallelFor\\()")
endforeach()
