// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "platform/terminal.h"

#include <csignal>
#include <cstdlib>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Norvane::Platform {

void prepareStandardStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
}

bool isTerminal(std::FILE *stream)
{
    const char *const kind = std::getenv("TERM");
    return ::isatty(::fileno(stream)) == 1 && (kind == nullptr || std::string_view(kind) != "dumb");
}

int terminalColumns(std::FILE *stream)
{
    winsize size = {};
    return ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

} // namespace Norvane::Platform
