// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDurableDevice.h>

#include <QtCore/QBuffer>

#include <array>

namespace Support {

/// A device in memory that counts what is asked of it, and fails when it is told to.
class FaultyDevice : public QIODevice, public Norvane::Database::IVDurableDevice
{
public:
    enum Call
    {
        Open,
        Read,
        Write,
        Sync
    };

    explicit FaultyDevice(const QByteArray &bytes = {}) { m_buffer.setData(bytes); }

    QByteArray bytes() const { return m_buffer.data(); }
    /// How often the call has been made, failures included.
    int calls(Call call) const { return m_calls[call]; }
    /// Lets the n-th call from now on fail, 1 being the next; only that one.
    void failAt(Call call, int n) { m_failAt[call] = m_calls[call] + n; }
    /// Lets every call fail from now on, or none.
    void failAlways(Call call, bool fails = true) { m_failsAlways[call] = fails; }

    bool open(OpenMode mode) override
    {
        if (fails(Open) || !m_buffer.open(mode | Unbuffered))
            return false;
        return QIODevice::open(mode | Unbuffered);
    }
    void close() override
    {
        m_buffer.close();
        QIODevice::close();
    }
    bool seek(qint64 position) override
    {
        return QIODevice::seek(position) && m_buffer.seek(position);
    }
    qint64 size() const override { return m_buffer.size(); }
    [[nodiscard]] bool sync() override { return !fails(Sync); }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        return fails(Read) ? -1 : m_buffer.read(data, maxSize);
    }
    /// What fails has been written half, as on a full disk.
    qint64 writeData(const char *data, qint64 size) override
    {
        if (!fails(Write))
            return m_buffer.write(data, size);
        m_buffer.write(data, size / 2);
        return -1;
    }

private:
    bool fails(Call call) { return ++m_calls[call] == m_failAt[call] || m_failsAlways[call]; }

    QBuffer m_buffer;
    std::array<int, 4> m_calls{};
    std::array<int, 4> m_failAt{};
    std::array<bool, 4> m_failsAlways{};
};

} // namespace Support
