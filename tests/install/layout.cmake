# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Every library says which version of its interface it has, and no installed text names the folder
# of the build, of the sources, or of the first prefix.
include("${CMAKE_CURRENT_LIST_DIR}/run.cmake")

foreach(library IN ITEMS vcore vcommon vimaging vkilnjet)
    run("${CMAKE_READELF}" -d "${PREFIX}/${LIBDIR}/lib${library}.so")
    if(NOT output MATCHES "soname: \\[lib${library}\\.so\\.2\\]")
        message(SEND_ERROR "lib${library}.so is not called lib${library}.so.2:\n${output}")
    endif()
endforeach()

file(GLOB_RECURSE texts "${PREFIX}/*.cmake" "${PREFIX}/*.h" "${PREFIX}/*.pc")
foreach(text IN LISTS texts)
    file(READ "${text}" content)
    foreach(folder IN ITEMS "${BUILD}" "${SOURCE}" "${WORK}")
        string(FIND "${content}" "${folder}" place)
        if(NOT place EQUAL -1)
            message(SEND_ERROR "${text} names ${folder}")
        endif()
    endforeach()
endforeach()

# Private headers stay at home.
file(GLOB_RECURSE private "${PREFIX}/*_p.h")
if(private)
    message(SEND_ERROR "installed, though private: ${private}")
endif()

# The tool finds the libraries beside it, and shells and man what belongs to it.
if(HAS_TOOL)
    run("${PREFIX}/${BINDIR}/kilnjet" --help)
    foreach(file IN ITEMS man/man1/kilnjet.1 man/man1/kilnjet-import.1 man/man5/kilnjet-format.5
            bash-completion/completions/kilnjet zsh/site-functions/_kilnjet
            fish/vendor_completions.d/kilnjet.fish)
        if(NOT EXISTS "${PREFIX}/share/${file}")
            message(SEND_ERROR "share/${file} was not installed")
        endif()
    endforeach()
endif()
