// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Tool.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

// A terminal without a person before it.

namespace Support {

class Terminal
{
public:
    Terminal()
        : m_reader(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        ::grantpt(m_reader);
        ::unlockpt(m_reader);
        m_screen = ::fdopen(::open(::ptsname(m_reader), O_RDWR | O_NOCTTY | O_CLOEXEC), "w");
        termios settings = {};
        ::tcgetattr(fileno(m_screen), &settings);
        settings.c_oflag &= ~tcflag_t(OPOST); // What is seen is what was written.
        ::tcsetattr(fileno(m_screen), TCSANOW, &settings);
    }
    Q_DISABLE_COPY_MOVE(Terminal)
    ~Terminal()
    {
        std::fclose(m_screen);
        ::close(m_reader);
    }

    std::FILE *screen() const { return m_screen; }
    void setColumns(unsigned short columns) const
    {
        const winsize size{24, columns, 0, 0};
        ::ioctl(m_reader, TIOCSWINSZ, &size);
    }

    /// Reads until the terminal has shown the text behind what was found before. False when nothing
    /// more came for a minute.
    bool shows(const QByteArray &text)
    {
        for (;;) {
            const qsizetype at = m_seen.indexOf(text, m_found);
            if (at >= 0) {
                m_found = at + text.size();
                return true;
            }
            pollfd input{m_reader, POLLIN, 0};
            char bytes[4096];
            if (::poll(&input, 1, 60'000) <= 0)
                return false;
            const ssize_t size = ::read(m_reader, bytes, sizeof bytes);
            if (size <= 0)
                return false;
            m_seen.append(bytes, size);
        }
    }
    /// All that has been shown.
    QByteArray seen() const { return m_seen; }

    /// Starts the tool in the folder, its messages going to this terminal.
    void start(QProcess &tool, const ToolFolder &folder, const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TERM"_s, u"vt100"_s);
        tool.setProcessEnvironment(environment);
        tool.setWorkingDirectory(folder.path(u"."_s));
        const int screen = fileno(m_screen);
        tool.setChildProcessModifier([screen] {
            ::dup2(screen, STDERR_FILENO);
            std::signal(SIGINT, SIG_DFL); // Background jobs of a shell are born without it.
        });
        tool.start(QStringLiteral(KILNJET_TOOL), arguments);
    }

private:
    int m_reader;
    std::FILE *m_screen = nullptr;
    QByteArray m_seen;
    qsizetype m_found = 0;
};

} // namespace Support
