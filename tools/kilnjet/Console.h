// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Failure.h"
#include "Finding.h"
#include "Paint.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <cstdio>

namespace Norvane::Kilnjet::Tool {

class ProgressLine;

/// Where a command's words go: data to standard output, messages to standard error, as text for
/// people or as JSON.
class Console
{
public:
    enum class Format
    {
        Text,
        Json
    };

    explicit Console(Format format);
    Q_DISABLE_COPY_MOVE(Console)

    bool isJson() const { return m_format == Format::Json; }
    /// On when people read the data on a terminal, unless the environment variable NO_COLOR is set.
    Colour colour() const;

    /// The terminal on which progress can be shown; null when messages go elsewhere, are JSON, or
    /// after beQuiet().
    std::FILE *screen() const;
    void beQuiet() { m_isQuiet = true; }
    /// What is drawn there at present; null for nothing. Whatever is written goes before it.
    ProgressLine *progressLine() const { return m_progress; }
    void setProgressLine(ProgressLine *line) { m_progress = line; }

    /// Writes data. The caller has made text that came from elsewhere printable().
    void write(const QString &text);
    void write(const QJsonObject &object);
    void write(const QJsonArray &array);
    void write(const QByteArray &bytes);

    /// A message that does not end the command.
    void warn(const QString &where, const QString &text, const QString &hint = QString());
    void warn(const Finding &finding);
    /// The message with which the command ends.
    void fail(const Failure &failure);

    /// Makes sure that the data has been written; false when some of it could not be. A reader that
    /// went away is not worth a message, everything else is.
    [[nodiscard]] bool finish();

private:
    void flush();
    void writeMessage(const QString &text);
    void writeMessage(const QJsonObject &object);

    void makeRoom();

    Format m_format;
    bool m_isQuiet = false;
    ProgressLine *m_progress = nullptr;
    QByteArray m_pending;
    int m_error = 0; ///< The system's number for the first write that failed.
};

} // namespace Norvane::Kilnjet::Tool
