// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <map>
#include <vector>

namespace Support {

/// What has happened to the content of a file, and what a power cut may leave of it.
///
/// What was synced is there. Of everything since, each sector of 512 bytes is as it was at one time
/// or another, whatever the order of the writes, and so is the size. What the disk never got is
/// NUL.
class FileHistory
{
public:
    explicit FileHistory(const QByteArray &durable = {})
        : m_durable(durable)
        , m_content(durable)
    { }

    /// What a reader finds now.
    const QByteArray &content() const { return m_content; }
    /// How many events there were.
    qsizetype size() const { return qsizetype(m_events.size()); }

    void write(qint64 at, const QByteArray &bytes)
    {
        m_events.push_back({Event::Write, at, bytes});
        m_events.back().applyTo(m_content);
    }
    void resize(qint64 size)
    {
        m_events.push_back({Event::Resize, size, {}});
        m_events.back().applyTo(m_content);
    }
    void sync() { m_events.push_back({Event::Sync, 0, {}}); }

    /// One of the many contents that a power cut after the first `count` events may leave.
    QByteArray afterCut(qsizetype count, QRandomGenerator &random) const
    {
        Replay replay(m_durable);
        for (qsizetype i = 0; i < count; ++i)
            replay.add(m_events[std::size_t(i)]);
        return replay.afterCut(random);
    }

private:
    static constexpr qsizetype kSector = 512;

    struct Event
    {
        enum Kind
        {
            Write,
            Resize,
            Sync
        };

        Kind kind;
        qint64 at; ///< Where the bytes go; of a Resize the new size.
        QByteArray bytes;

        void applyTo(QByteArray &content) const
        {
            const qsizetype size = kind == Resize ? at : std::max(content.size(), end());
            const qsizetype grown = size - content.size();
            grown > 0 ? void(content.append(grown, '\0')) : content.resize(size);
            content.replace(at, bytes.size(), bytes);
        }
        qsizetype end() const { return at + bytes.size(); }
    };

    /// The versions of every sector since the last sync, and those of the size.
    class Replay
    {
    public:
        explicit Replay(const QByteArray &durable)
            : m_content(durable)
            , m_durable(durable)
            , m_sizes{durable.size()}
        { }

        void add(const Event &event)
        {
            if (event.kind == Event::Sync) {
                *this = Replay(m_content);
                return;
            }
            const qsizetype sizeBefore = m_content.size();
            event.applyTo(m_content);
            const qsizetype begin = std::min(qsizetype(event.at), sizeBefore);
            const qsizetype end =
                std::max(event.end(), event.kind == Event::Resize ? sizeBefore : 0);
            for (qsizetype sector = begin / kSector; sector * kSector < end; ++sector) {
                auto &versions = m_sectors[sector];
                if (versions.empty())
                    versions.push_back(m_durable.mid(sector * kSector, kSector));
                versions.push_back(m_content.mid(sector * kSector, kSector));
            }
            m_sizes.push_back(m_content.size());
        }

        QByteArray afterCut(QRandomGenerator &random) const
        {
            static constexpr int kShares[] = {0, 10, 50, 90, 100};
            const int share = kShares[random.bounded(int(std::size(kShares)))];
            const auto anyOf = [&](const auto &list) {
                return list[random.bounded(quint32(list.size()))];
            };
            const bool hasAnySize = share > 0 && random.bounded(3) == 0;
            const qsizetype size = hasAnySize ? anyOf(m_sizes)
                : share > 0                   ? m_sizes.back()
                                              : m_sizes.front();
            QByteArray found = m_durable.leftJustified(size, '\0', true);
            for (const auto &[sector, versions] : m_sectors) {
                const bool isNew = random.bounded(100) < share;
                const QByteArray version = share == 50 ? anyOf(versions)
                    : isNew                            ? versions.back()
                                                       : versions.front();
                const qsizetype at = sector * kSector;
                const qsizetype length = std::min(size - at, kSector);
                if (length > 0)
                    found.replace(at, length, version.leftJustified(length, '\0', true));
            }
            return found;
        }

    private:
        QByteArray m_content;
        QByteArray m_durable;
        std::vector<qsizetype> m_sizes;
        std::map<qsizetype, std::vector<QByteArray>> m_sectors;
    };

    QByteArray m_durable;
    QByteArray m_content;
    std::vector<Event> m_events;
};

} // namespace Support
