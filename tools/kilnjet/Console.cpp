// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Console.h"

#include "ProgressLine.h"
#include "Text.h"

#include <platform/terminal.h>

#include <QtCore/QJsonDocument>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// How much data is gathered before it is written.
constexpr qsizetype kFlushSize = qsizetype(64) * 1024;

/// The JSON text with the control characters above ASCII's first block escaped as well: a terminal
/// would obey them.
QByteArray safeJson(const QJsonDocument &document, QJsonDocument::JsonFormat format)
{
    const QByteArray text = document.toJson(format);
    QByteArray safe;
    safe.reserve(text.size());
    qsizetype done = 0;
    const auto escape = [&](qsizetype at, qsizetype size, uint code) {
        safe += QByteArrayView(text).sliced(done, at - done);
        safe += "\\u00" + QByteArray::number(code, 16);
        done = at + size;
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        const uchar byte = uchar(text.at(at));
        // In UTF-8 the codes from 0x80 to 0xBF are the byte C2 and one that equals the code.
        const uchar next = at + 1 < text.size() ? uchar(text.at(at + 1)) : uchar(0);
        if (byte == 0x7f)
            escape(at, 1, byte);
        else if (byte == 0xc2 && next >= 0x80 && next <= 0x9f)
            escape(at, 2, next);
    }
    return safe += QByteArrayView(text).sliced(done);
}

QString messageText(const Failure &failure)
{
    QString text = u"kilnjet"_s;
    for (const QString &part : {failure.where, failure.what, failure.why}) {
        if (!part.isEmpty())
            text += u": "_s + part;
    }
    if (!failure.hint.isEmpty())
        text += u"; hint: "_s + failure.hint;
    return text;
}

QJsonObject messageObject(const Failure &failure)
{
    QJsonObject object = failure.details;
    object.insert("code"_L1, int(failure.code));
    object.insert("what"_L1, failure.what);
    object.insert("where"_L1, failure.where);
    object.insert("why"_L1, failure.why);
    object.insert("hint"_L1, failure.hint);
    return object;
}

} // namespace

Console::Console(Format format)
    : m_format(format)
{
    Platform::prepareStandardStreams();
}

Colour Console::colour() const
{
    const bool isWanted =
        !isJson() && qEnvironmentVariableIsEmpty("NO_COLOR") && Platform::isTerminal(stdout);
    return isWanted ? Colour::On : Colour::Off;
}

std::FILE *Console::screen() const
{
    return !isJson() && !m_isQuiet && Platform::isTerminal(stderr) ? stderr : nullptr;
}

void Console::write(const QString &text)
{
    write(text.toUtf8());
}

void Console::write(const QJsonObject &object)
{
    write(safeJson(QJsonDocument(object), QJsonDocument::Indented));
}

void Console::write(const QJsonArray &array)
{
    write(safeJson(QJsonDocument(array), QJsonDocument::Indented));
}

void Console::write(const QByteArray &bytes)
{
    m_pending += bytes;
    if (m_pending.size() >= kFlushSize)
        flush();
}

void Console::warn(const QString &where, const QString &text, const QString &hint)
{
    if (isJson()) {
        writeMessage(
            QJsonObject{{u"warning"_s,
                         QJsonObject{{u"where"_s, where}, {u"what"_s, text}, {u"hint"_s, hint}}}});
        return;
    }
    const Failure warning{.where = where, .what = u"warning: "_s + text, .hint = hint};
    writeMessage(messageText(warning));
}

void Console::warn(const Finding &finding)
{
    if (isJson())
        writeMessage(QJsonObject{{u"warning"_s, finding.toJsonObject()}});
    else
        writeMessage(u"kilnjet: "_s + finding.toString());
}

void Console::fail(const Failure &failure)
{
    flush();
    if (isJson())
        writeMessage(QJsonObject{{u"error"_s, messageObject(failure)}});
    else
        writeMessage(messageText(failure));
}

bool Console::finish()
{
    flush();
    if (std::fflush(stdout) != 0 && m_error == 0)
        m_error = errno;
    if (m_error == 0)
        return true;
    if (m_error != EPIPE) {
        fail({.code = ExitCode::Io,
              .where = u"standard output"_s,
              .what = u"cannot write"_s,
              .why = qt_error_string(m_error)});
    }
    return false;
}

/// Takes the progress away, which may stand where the next words go.
void Console::makeRoom()
{
    if (m_progress != nullptr)
        m_progress->clear();
}

void Console::flush()
{
    makeRoom();
    if (m_error == 0 && !m_pending.isEmpty()) {
        const size_t size = size_t(m_pending.size());
        if (std::fwrite(m_pending.constData(), 1, size, stdout) != size
            || std::fflush(stdout) != 0) {
            m_error = errno;
        }
    }
    m_pending.clear();
}

void Console::writeMessage(const QString &text)
{
    const QByteArray line = printable(text).toUtf8() + '\n';
    makeRoom();
    // A message that cannot be written has nowhere else to go.
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

void Console::writeMessage(const QJsonObject &object)
{
    const QByteArray line = safeJson(QJsonDocument(object), QJsonDocument::Compact) + '\n';
    makeRoom();
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

} // namespace Norvane::Kilnjet::Tool
