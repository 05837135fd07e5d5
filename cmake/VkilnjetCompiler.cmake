# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# The compiler settings that every target of the project shares, as the interface target
# `vkilnjet_compiler`.

add_library(vkilnjet_compiler INTERFACE)

target_compile_features(vkilnjet_compiler INTERFACE cxx_std_20)
target_compile_definitions(vkilnjet_compiler INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH
    QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(vkilnjet_compiler INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wcast-align -Wunused
        -Wconversion -Wno-sign-conversion -Wdouble-promotion -Wformat=2)
    if(VKILNJET_WERROR)
        target_compile_options(vkilnjet_compiler INTERFACE -Werror)
    endif()
    if(VKILNJET_SANITIZE)
        target_compile_options(vkilnjet_compiler INTERFACE
            "-fsanitize=${VKILNJET_SANITIZE}" -fno-omit-frame-pointer -fno-sanitize-recover=all)
        # Sanitizers keep inline variables that GCC makes unique, and a library that has one is never
        # unloaded: the test of unloading would test nothing.
        target_compile_options(vkilnjet_compiler INTERFACE
            $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
        target_link_options(vkilnjet_compiler INTERFACE "-fsanitize=${VKILNJET_SANITIZE}")
    endif()
    if(VKILNJET_BUILD_FUZZERS)
        # What the fuzzers steer by: which branches an input took. Tracing comparisons besides would
        # halve the speed, and the mutators know the words that matter.
        target_compile_options(vkilnjet_compiler INTERFACE
            -fsanitize-coverage=inline-8bit-counters,pc-table)
    endif()
endif()
if(NOT VKILNJET_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang" AND NOT APPLE AND NOT WIN32)
    target_link_options(vkilnjet_compiler INTERFACE -Wl,--no-undefined)
endif()

# clang-tidy takes the settings of the nearest folder above a file: those of generated files are these.
if(CMAKE_CXX_CLANG_TIDY)
    file(WRITE "${PROJECT_BINARY_DIR}/.clang-tidy" "Checks: '-*,misc-definitions-in-headers'\n")
endif()
