// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/FileCalls.h"
#include "support/FileHistory.h"

#include <QtCore/QString>

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Support {

/// What has happened to a real file, and to another that may take its place, while this object
/// lives and FileCalls has its judge ask it; and what a power cut may leave under the file's name.
///
/// Content is as FileHistory has it. A name that was given or taken is so for sure once the folder
/// was synced; before, the disk has the changes of names up to any of them.
class FolderHistory
{
public:
    /// `path` and `fresh` are names of files in one folder. What is there now is on the disk.
    FolderHistory(const QString &path, const QString &fresh)
        : m_path(path.toStdString())
        , m_fresh(fresh.toStdString())
    {
        look();
        for (auto &[inode, history] : m_histories)
            history = FileHistory(history.content());
        m_names = {m_names.back()};
        note();
    }

    /// To be told of every call before it is made.
    void see(const FileCall &call)
    {
        const std::lock_guard lock(m_mutex); // Calls come from any thread.
        look();
        note();
        if (call.kind != FileCall::Sync)
            return;
        std::array<char, 4096> target{};
        const std::string link = "/proc/self/fd/" + std::to_string(call.handle);
        const ssize_t size = ::readlink(link.c_str(), target.data(), target.size());
        const std::string synced(target.data(), std::size_t(std::max(size, ssize_t(0))));
        if (synced == m_path || synced == m_fresh) {
            if (const std::shared_ptr<std::FILE> file = opened(synced))
                m_histories[inodeOf(*file)].sync();
        } else if (m_path.starts_with(synced + '/')) {
            m_durableName = m_names.size() - 1;
        }
        note();
    }
    /// How many moments there were until now, at each of which the power may go.
    int moments()
    {
        const std::lock_guard lock(m_mutex);
        look();
        note();
        return int(m_moments.size());
    }

    /// One of the many contents that the file may have when the power goes at the moment; nothing
    /// when there is no such file.
    std::optional<QByteArray> afterCut(int moment, QRandomGenerator &random) const
    {
        const Moment &cut = m_moments[std::size_t(moment)];
        const std::size_t name =
            cut.durableName + random.bounded(quint32(cut.names - cut.durableName));
        if (m_names[name] == 0)
            return std::nullopt;
        return m_histories.at(m_names[name]).afterCut(cut.sizes.at(m_names[name]), random);
    }

private:
    struct Moment
    {
        std::map<quint64, qsizetype> sizes; ///< How much had happened to each file.
        std::size_t durableName; ///< Which of the names' states is on the disk, ...
        std::size_t names; ///< ... and how many there were.
    };

    /// Opens a file such that FileCalls does not see it. It stays open as long as this object, for
    /// the system not to give its number to another one.
    std::shared_ptr<std::FILE> opened(const std::string &path)
    {
        std::FILE *const file = std::fopen(path.c_str(), "re");
        if (file == nullptr)
            return nullptr;
        m_files.emplace_back(file, &std::fclose);
        return m_files.back();
    }

    static quint64 inodeOf(std::FILE &file)
    {
        struct statx data = {};
        // The function of that name may be one of those that tell FileCalls.
        ::syscall(SYS_statx, ::fileno(&file), "", AT_EMPTY_PATH, STATX_INO, &data);
        return data.stx_ino;
    }

    /// Takes note of what the last call has changed.
    void look()
    {
        quint64 named = 0;
        for (const std::string &path : {m_fresh, m_path}) {
            const std::shared_ptr<std::FILE> file = opened(path);
            named = file ? inodeOf(*file) : 0;
            if (!file)
                continue;
            QByteArray content;
            std::array<char, 65536> block{};
            while (const std::size_t got = std::fread(block.data(), 1, block.size(), file.get()))
                content.append(block.data(), qsizetype(got));
            noteContent(m_histories[named], content);
        }
        if (m_names.empty() || m_names.back() != named)
            m_names.push_back(named);
    }

    static void noteContent(FileHistory &history, const QByteArray &content)
    {
        if (content.size() < history.content().size())
            history.resize(content.size());
        const QByteArray &before = history.content();
        const auto [same, changed] =
            std::mismatch(before.begin(), before.end(), content.begin(), content.end());
        if (changed != content.end())
            history.write(changed - content.begin(), QByteArray(changed, content.end() - changed));
    }

    void note()
    {
        Moment moment{{}, m_durableName, m_names.size()};
        for (const auto &[inode, history] : m_histories)
            moment.sizes[inode] = history.size();
        m_moments.push_back(moment);
    }

    std::mutex m_mutex;
    const std::string m_path;
    const std::string m_fresh;
    std::vector<std::shared_ptr<std::FILE>> m_files;
    std::map<quint64, FileHistory> m_histories;
    std::vector<quint64> m_names; ///< Which file had the name in turn; 0 for none.
    std::size_t m_durableName = 0;
    std::vector<Moment> m_moments;
};

} // namespace Support
