// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace Norvane {

/// A part of a buffer that keeps the buffer alive: copies cost a reference, no byte moves.
///
/// Small parts keep large buffers in memory, so a part that is to stay for long is better copied
/// out with toByteArray().
/// Threads: one at a time for one object; copies may live on different threads.
class VBytes
{
public:
    /// No bytes.
    VBytes() = default;
    /// The whole of `buffer`, which must own its bytes (unlike QByteArray::fromRawData()).
    VBytes(const QByteArray &buffer)
        : m_buffer(buffer)
        , m_view(m_buffer)
    { }
    /// `part`, which lies within `buffer`; as above.
    VBytes(const QByteArray &buffer, QByteArrayView part)
        : m_buffer(buffer)
        , m_view(part)
    { }

    /// The bytes; valid as long as this object or a copy of it.
    QByteArrayView view() const { return m_view; }
    /// How many bytes there are.
    qsizetype size() const { return m_view.size(); }
    /// True when there are none.
    bool isEmpty() const { return m_view.isEmpty(); }

    /// `part`, which lies within view(), sharing the same buffer.
    VBytes part(QByteArrayView part) const { return {m_buffer, part}; }
    /// A copy of the bytes alone; the buffer itself when this is the whole of it.
    QByteArray toByteArray() const
    {
        return m_view.size() == m_buffer.size() ? m_buffer : m_view.toByteArray();
    }

private:
    QByteArray m_buffer;
    QByteArrayView m_view;
};

} // namespace Norvane
