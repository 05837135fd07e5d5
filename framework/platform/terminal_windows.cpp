// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "platform/windowsapi.h"

#include "platform/terminal.h"

#include <cstdlib>
#include <fcntl.h>
#include <initializer_list>
#include <io.h>

#ifndef ENABLE_VIRTUAL_TERMINAL_PROCESSING
#define ENABLE_VIRTUAL_TERMINAL_PROCESSING 0x0004
#endif

namespace Norvane::Platform {

namespace {

// The terminal belongs to all who use it after us, and keeps what we set.
UINT foundCodePage = 0;

void restoreCodePage()
{
    ::SetConsoleOutputCP(foundCodePage);
}

/// Gives a console back the mode that it had when we first saw it.
class FoundMode
{
public:
    FoundMode() = default;
    FoundMode(const FoundMode &) = delete;
    FoundMode &operator=(const FoundMode &) = delete;
    ~FoundMode()
    {
        if (m_console != INVALID_HANDLE_VALUE)
            ::SetConsoleMode(m_console, m_mode);
    }

    void keep(HANDLE console, DWORD mode)
    {
        if (m_console != INVALID_HANDLE_VALUE)
            return;
        m_console = console;
        m_mode = mode;
    }

private:
    HANDLE m_console = INVALID_HANDLE_VALUE;
    DWORD m_mode = 0;
};

HANDLE handleOf(std::FILE *stream)
{
    const int descriptor = ::_fileno(stream); // Negative for a stream that leads nowhere.
    return descriptor < 0 ? INVALID_HANDLE_VALUE
                          : reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
}

} // namespace

void prepareStandardStreams()
{
    foundCodePage = ::GetConsoleOutputCP();
    if (foundCodePage != 0 && foundCodePage != CP_UTF8 && ::SetConsoleOutputCP(CP_UTF8) != 0)
        std::atexit(restoreCodePage);
    for (std::FILE *const stream : {stdout, stderr}) {
        if (::_fileno(stream) >= 0)
            ::_setmode(::_fileno(stream), _O_BINARY);
    }
}

bool isTerminal(std::FILE *stream)
{
    const HANDLE console = handleOf(stream);
    DWORD mode = 0;
    if (::GetConsoleMode(console, &mode) == 0)
        return false;
    if ((mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0)
        return true;
    // Standard output and standard error may lead to one console: what was found first is restored.
    static FoundMode found;
    found.keep(console, mode);
    return ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

int terminalColumns(std::FILE *stream)
{
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (::GetConsoleScreenBufferInfo(handleOf(stream), &info) == 0)
        return 0;
    // The window's width: the buffer behind it may be wider.
    return info.srWindow.Right - info.srWindow.Left + 1;
}

} // namespace Norvane::Platform
