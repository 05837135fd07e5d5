# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Files that a library carries inside itself, for Qt's resource system.

find_program(VKILNJET_LRELEASE NAMES lrelease lrelease-qt6
    HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" NO_DEFAULT_PATH
    DOC "Qt's program that makes catalogues of translation sources (Debian: qt6-l10n-tools)")
find_program(VKILNJET_LRELEASE NAMES lrelease-qt6 lrelease REQUIRED)

# vkilnjet_release_translations(VARIABLE FOLDER)
#
# Sets VARIABLE to the catalogues (.qm) that the build makes of the translation sources in FOLDER.
# A catalogue vkilnjet_LANGUAGE, which has no texts, holds its language's tag and nothing else.
function(vkilnjet_release_translations variable folder)
    set(release "${VKILNJET_LRELEASE}" -silent)
    set(made "${CMAKE_CURRENT_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${made}")
    file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.ts")
    set(catalogues)
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME_WE)
        set(catalogue "${made}/${name}.qm")
        if(name MATCHES "^vkilnjet_")
            add_custom_command(OUTPUT "${catalogue}"
                COMMAND ${release} "${source}" -qm "${catalogue}.whole"
                COMMAND keep_language "${catalogue}.whole" "${catalogue}"
                DEPENDS "${source}" keep_language
                COMMENT "Release ${name}.ts" VERBATIM)
        else()
            add_custom_command(OUTPUT "${catalogue}"
                COMMAND ${release} "${source}" -qm "${catalogue}"
                DEPENDS "${source}"
                COMMENT "Release ${name}.ts" VERBATIM)
        endif()
        list(APPEND catalogues "${catalogue}")
    endforeach()
    set(${variable} ${catalogues} PARENT_SCOPE)
endfunction()

# vkilnjet_embed(TARGET NAME
#     FOLDER FOLDER        where the files lie; their paths below it are kept
#     PREFIX PREFIX        the resource folder that they appear in
#     FILES FILE...
#     [COMPRESSED REGEX])  the files, by path below FOLDER, that are stored zlib-compressed
#
# Adds the collection kNAME of embedded files to the target, which registers it itself (see
# src/module/EmbeddedFiles.h).
function(vkilnjet_embed target name)
    cmake_parse_arguments(arg "" "FOLDER;PREFIX;COMPRESSED" "FILES" ${ARGN})
    set(entries "")
    foreach(file IN LISTS arg_FILES)
        file(RELATIVE_PATH path "${arg_FOLDER}" "${file}")
        set(storage "compression-algorithm=\"none\"")
        if(arg_COMPRESSED AND path MATCHES "${arg_COMPRESSED}")
            set(storage "compression-algorithm=\"zlib\" threshold=\"0\"")
        endif()
        string(APPEND entries "    <file alias=\"${path}\" ${storage}>${file}</file>\n")
    endforeach()
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    file(CONFIGURE OUTPUT "${list}" @ONLY CONTENT
        "<RCC version=\"1.0\">\n  <qresource prefix=\"@arg_PREFIX@\">\n@entries@  </qresource>\n</RCC>\n")

    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
    set(script "${PROJECT_SOURCE_DIR}/cmake/EmbedFiles.cmake")
    add_custom_command(OUTPUT "${source}"
        COMMAND "${CMAKE_COMMAND}" -DRCC=$<TARGET_FILE:Qt6::rcc> -DNAME=${name} "-DLIST=${list}"
            "-DSOURCE=${source}" -P "${script}"
        DEPENDS "${list}" "${script}" ${arg_FILES}
        COMMENT "Embed ${name}" VERBATIM)
    set_source_files_properties("${source}" PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE "${source}")
endfunction()
