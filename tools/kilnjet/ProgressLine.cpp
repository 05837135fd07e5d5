// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ProgressLine.h"

#include "Text.h"

#include <platform/terminal.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr std::chrono::milliseconds kFrame{100};
constexpr int kBarWidth = 20;
constexpr int kUsualColumns = 80;

/// `text` cut to `columns`.
QString cut(QString text, int columns)
{
    while (!text.isEmpty() && displayWidth(text) > columns)
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

} // namespace

ProgressLine::ProgressLine(std::FILE *screen, const QString &label, std::chrono::milliseconds delay)
    : m_screen(screen)
    , m_label(printable(label))
    , m_delay(delay)
    , m_thread([this] { run(); })
{ }

ProgressLine::~ProgressLine()
{
    {
        const std::lock_guard guard(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_all();
    m_thread.join();
    _clear();
}

void ProgressLine::begin(qint64 total)
{
    m_done = 0;
    m_total = total;
}

void ProgressLine::clear()
{
    const std::lock_guard guard(m_mutex);
    _clear();
}

void ProgressLine::run()
{
    std::unique_lock guard(m_mutex);
    std::chrono::milliseconds pause = m_delay;
    while (!m_changed.wait_for(guard, pause, [this] { return m_isOver; })) {
        _draw();
        pause = kFrame;
    }
}

/// "loading Printers.tdb [#####               ]  25 %", or how long it takes when the end is not
/// known.
QString ProgressLine::text() const
{
    const qint64 total = m_total;
    if (total <= 0) {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
            std::chrono::steady_clock::now() - m_start);
        return u" ... %1 s"_s.arg(seconds.count());
    }
    const qint64 done = std::min<qint64>(m_done, total);
    const int bars = int(done * kBarWidth / total);
    return u" [%1%2] %3 %"_s.arg(QString(bars, u'#'), QString(kBarWidth - bars, u' '))
        .arg(done * 100 / total, 3);
}

void ProgressLine::_draw()
{
    const QString state = text();
    // The last column stays free: some terminals break the line behind it.
    const int known = Platform::terminalColumns(m_screen);
    const int columns = (known > 0 ? known : kUsualColumns) - 1;
    const QString line =
        cut(cut(m_label, std::max(columns - displayWidth(state), 0)) + state, columns);
    const int width = displayWidth(line);
    // Without escape sequences, which not every terminal knows.
    const QByteArray bytes = '\r' + line.toUtf8() + QByteArray(std::max(m_width - width, 0), ' ');
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), m_screen);
    std::fflush(m_screen);
    m_width = std::max(width, 1);
}

void ProgressLine::_clear()
{
    if (m_width == 0)
        return;
    const QByteArray bytes = '\r' + QByteArray(m_width, ' ') + '\r';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), m_screen);
    std::fflush(m_screen);
    m_width = 0;
}

} // namespace Norvane::Kilnjet::Tool
