// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace Support {

/// A program in a process of its own, whose standard output is read as it comes. It is killed when
/// this object goes, and whenever it takes longer than any sound run would.
class Child
{
public:
    /// `environment` adds to this process's own, each as NAME=VALUE.
    explicit Child(const QString &program, const QStringList &arguments,
                   const QStringList &environment = {})
    {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return;
        m_output = ends[0];
        QList<QByteArray> words{QFile::encodeName(program)};
        for (const QString &argument : arguments)
            words.append(QFile::encodeName(argument));
        QList<QByteArray> settings;
        for (char **setting = environ; *setting != nullptr; ++setting)
            settings.append(*setting);
        for (const QString &setting : environment)
            settings.prepend(setting.toUtf8()); // The first of a name is the one that is found.
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        if (::posix_spawn(&m_pid, words.first().constData(), &actions, nullptr,
                          pointers(words).data(), pointers(settings).data())
            != 0)
            m_pid = -1;
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
    }
    Q_DISABLE_COPY_MOVE(Child)
    ~Child()
    {
        kill();
        wait();
        ::close(m_output);
    }

    /// What it has printed so far.
    const QByteArray &output() const { return m_text; }

    /// Reads until there are `size` bytes of output; false when it ends before.
    bool readUntil(qsizetype size)
    {
        while (m_text.size() < size && readSome(kLimit)) { }
        return m_text.size() >= size;
    }
    /// Reads for that long, or until it ends.
    void readFor(std::chrono::microseconds time)
    {
        const auto end = std::chrono::steady_clock::now() + time;
        for (auto now = end - time; now < end; now = std::chrono::steady_clock::now()) {
            if (!readSome(end - now))
                return;
        }
    }
    void kill() const
    {
        if (m_pid > 0)
            ::kill(m_pid, SIGKILL);
    }
    /// Reads what is left and waits for the end: the exit code, or the number of the signal that
    /// ended it, negated.
    int wait()
    {
        while (readSome(kLimit)) { }
        int status = 0;
        // Its end of the pipe is closed, which only its end as a process does.
        if (m_pid > 0 && ::waitpid(m_pid, &status, 0) == m_pid)
            m_result = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        m_pid = -1;
        return m_result;
    }

private:
    static constexpr std::chrono::nanoseconds kLimit = std::chrono::seconds(120);

    /// Waits for output no longer than `time`; false when there will be no more.
    bool readSome(std::chrono::nanoseconds time)
    {
        using namespace std::chrono_literals;
        if (m_output < 0)
            return false;
        pollfd output = {m_output, POLLIN, 0};
        const timespec wait = {time / 1s, (time % 1s).count()};
        if (::ppoll(&output, 1, &wait, nullptr) == 0) {
            if (time >= kLimit)
                kill();
            return true;
        }
        const ssize_t got = ::read(m_output, m_buffer.data(), m_buffer.size());
        m_text.append(m_buffer.data(), std::max(got, ssize_t(0)));
        return got > 0;
    }

    static std::vector<char *> pointers(QList<QByteArray> &words)
    {
        std::vector<char *> found;
        for (QByteArray &word : words)
            found.push_back(word.data());
        found.push_back(nullptr);
        return found;
    }

    std::array<char, 4096> m_buffer{};
    QByteArray m_text;
    int m_output = -1;
    pid_t m_pid = -1;
    int m_result = -1;
};

} // namespace Support
