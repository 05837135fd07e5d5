// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/FileHistory.h"

#include <vcommon/IVDurableDevice.h>

#include <QtCore/QIODevice>

namespace Support {

/// A device in memory that remembers what was written when and what was synced.
class CutDevice : public QIODevice, public Norvane::Database::IVDurableDevice
{
public:
    explicit CutDevice(const QByteArray &durable = {})
        : m_history(durable)
    { }

    const FileHistory &history() const { return m_history; }
    /// Lets the next sync fail.
    void failNextSync() { m_failsNextSync = true; }

    bool open(OpenMode mode) override
    {
        m_at = 0;
        return QIODevice::open(mode | Unbuffered);
    }
    bool seek(qint64 position) override
    {
        m_at = position;
        return QIODevice::seek(position);
    }
    qint64 size() const override { return m_history.content().size(); }
    [[nodiscard]] bool sync() override
    {
        if (std::exchange(m_failsNextSync, false))
            return false;
        m_history.sync();
        return true;
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 got = std::clamp(size() - m_at, qint64(0), maxSize);
        std::copy_n(m_history.content().cbegin() + std::min(m_at, size()), got, data);
        m_at += got;
        return got;
    }
    qint64 writeData(const char *data, qint64 size) override
    {
        m_history.write(m_at, QByteArray(data, size));
        m_at += size;
        return size;
    }

private:
    FileHistory m_history;
    qint64 m_at = 0;
    bool m_failsNextSync = false;
};

} // namespace Support
