# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The shared objects export what their headers declare for it and nothing else: no class of the
# implementation, no instance of a template, no inline function of Qt or of the standard library that
# the compiler left behind.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

# declared(VARIABLE LIBRARY FOLDER): the names that the library's headers mark as exported.
function(declared variable library folder)
    string(TOUPPER "${library}_EXPORT" export)
    set(names)
    file(GLOB headers "${PREFIX}/${INCLUDEDIR}/${folder}/*.h")
    foreach(header IN LISTS headers)
        file(READ "${header}" text)
        string(REGEX MATCHALL "class ${export} [A-Za-z0-9_]+" classes "${text}")
        list(TRANSFORM classes REPLACE "class ${export} " "")
        # The runtime classes of enumerations.
        string(REGEX MATCHALL "\\(${export}, [A-Za-z0-9_]+" enumerations "${text}")
        list(TRANSFORM enumerations REPLACE "\\(${export}, (.+)" "\\1_T")
        string(REGEX MATCHALL "\n${export} [^;(]+\\(" functions "${text}")
        list(TRANSFORM functions REPLACE "\n${export} .* ([A-Za-z0-9_]+)\\(" "\\1")
        list(APPEND names ${classes} ${enumerations} ${functions})
    endforeach()
    set(${variable} "${names}" PARENT_SCOPE)
endfunction()

# exports(LIBRARY FOLDER): fails for every symbol of a name that is not declared.
function(exports library folder)
    declared(names ${library} ${folder})
    list(JOIN names "|" any)
    run("${CMAKE_NM}" -DC --defined-only "${PREFIX}/${LIBDIR}/lib${library}.so")
    string(REGEX REPLACE ";" "," output "${output}")
    string(REGEX REPLACE "\n" ";" lines "${output}")
    set(own 0)
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^[0-9a-f]* . " "" symbol "${line}")
        string(REGEX REPLACE
            "^(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )" ""
            symbol "${symbol}")
        # A class in classes of ours counts as these do; namespaces begin with capitals as well.
        if(symbol MATCHES "^Norvane::([A-Za-z]+::)*(${any})(::|\\(|$)")
            math(EXPR own "${own} + 1")
        elseif(NOT symbol STREQUAL "")
            message(SEND_ERROR "lib${library}.so exports ${line}")
        endif()
    endforeach()
    if(own EQUAL 0)
        message(SEND_ERROR "lib${library}.so exports none of its own symbols")
    endif()
    list(LENGTH names count)
    message("lib${library}.so exports ${own} symbols of ${count} names")
endfunction()

exports(vkilnjet kilnjet)
foreach(library IN ITEMS vcore vcommon vimaging)
    exports(${library} ${library})
endforeach()
