# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

# Builds the check of Windows' half (Debian: g++-mingw-w64-x86-64-win32).
file(GLOB sources "${SOURCE}/framework/platform/*_windows.cpp")
if(NOT sources)
    message(FATAL_ERROR "there is no half for Windows")
endif()
execute_process(
    COMMAND x86_64-w64-mingw32-g++ -std=c++20 -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        -Wcast-align -Wconversion -Wno-sign-conversion -Wdouble-promotion -Wformat=2 -Werror
        -static -I "${SOURCE}/framework" "${SOURCE}/tests/platform/check.cpp" ${sources}
        -o "${PROGRAM}"
    COMMAND_ERROR_IS_FATAL ANY)
