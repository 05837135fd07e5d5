// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Console.h"
#include "ProgressLine.h"

#include <optional>

namespace Norvane::Kilnjet::Tool {

/// A step of a command that may take its time; people at a terminal see how far it is.
class Progress
{
public:
    /// `label` says what is being done: "loading Printers.tdb". A step inside a step shows nothing.
    Progress(Console &console, const QString &label)
        : m_console(console)
    {
        if (console.screen() == nullptr || console.progressLine() != nullptr)
            return;
        m_line.emplace(console.screen(), label);
        console.setProgressLine(&*m_line);
    }
    Q_DISABLE_COPY_MOVE(Progress)
    ~Progress()
    {
        if (m_line)
            m_console.setProgressLine(nullptr);
    }

    void begin(qint64 total)
    {
        if (m_line)
            m_line->begin(total);
    }
    void advance()
    {
        if (m_line)
            m_line->advance();
    }

private:
    Console &m_console;
    std::optional<ProgressLine> m_line;
};

} // namespace Norvane::Kilnjet::Tool
