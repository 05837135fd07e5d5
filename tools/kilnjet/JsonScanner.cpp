// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "JsonScanner.h"

#include <QtCore/QUtf8StringView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// As deep as Qt's own parser goes; it also bounds the recursion here.
constexpr int kDeepest = 1024;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// How many bytes the UTF-8 sequence that begins with `lead` has.
qsizetype sequenceSize(char lead)
{
    const auto byte = uchar(lead);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

/// The offset of the first byte that is no part of valid UTF-8; -1 when there is none.
qsizetype invalidUtf8(QByteArrayView text)
{
    const auto isValid = [](QByteArrayView part) {
        return QUtf8StringView(part.data(), part.size()).isValidUtf8();
    };
    if (isValid(text))
        return -1;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype size = std::min(sequenceSize(text.at(at)), text.size() - at);
        if (!isValid(text.sliced(at, size)))
            return at;
        at += size;
    }
    return -1;
}

} // namespace

QString pointerStep(const QString &key)
{
    QString step = key;
    step.replace(u'~', u"~0"_s).replace(u'/', u"~1"_s);
    return u'/' + step;
}

JsonScanner::JsonScanner(QByteArrayView text)
    : m_text(text)
{ }

std::optional<JsonScanner::Error> JsonScanner::scan()
{
    const qsizetype invalid = invalidUtf8(m_text);
    if (invalid >= 0)
        return Error{invalid, u"this byte is not UTF-8"_s};
    skipBlanks();
    if (atEnd())
        fail(u"there is nothing to read"_s);
    else if (scanValue()) {
        skipBlanks();
        if (!atEnd())
            fail(u"the text goes on after its end"_s);
    }
    return m_error;
}

bool JsonScanner::fail(const QString &reason)
{
    if (!m_error)
        m_error = Error{m_at, reason};
    return false;
}

void JsonScanner::skipBlanks()
{
    while (!atEnd() && QByteArrayView(" \t\r\n").contains(peek()))
        ++m_at;
}

bool JsonScanner::take(char c)
{
    skipBlanks();
    if (atEnd() || peek() != c)
        return false;
    ++m_at;
    skipBlanks();
    return true;
}

bool JsonScanner::scanValue()
{
    if (m_wanted.contains(m_pointer))
        m_offsets.insert(m_pointer, m_at);
    switch (peek()) {
    case '{':
        return scanObject();
    case '[':
        return scanArray();
    case '"':
        return scanString(nullptr);
    case 't':
        return scanLiteral("true");
    case 'f':
        return scanLiteral("false");
    case 'n':
        return scanLiteral("null");
    default:
        return isDigit(peek()) || peek() == '-' ? scanNumber() : fail(u"a value is missing"_s);
    }
}

bool JsonScanner::scanObject()
{
    if (++m_depth > kDeepest)
        return fail(u"the text is nested too deeply"_s);
    QSet<QString> keys;
    take('{');
    if (!take('}')) {
        do {
            if (!scanMember(keys))
                return false;
        } while (take(','));
        if (!take('}'))
            return fail(u"a ',' or '}' is missing"_s);
    }
    --m_depth;
    return true;
}

bool JsonScanner::scanMember(QSet<QString> &keys)
{
    const qsizetype begin = m_at;
    QString key;
    if (peek() != '"')
        return fail(u"a key in double quotes is missing"_s);
    if (!scanString(&key))
        return false;
    if (!take(':'))
        return fail(u"a ':' is missing"_s);
    const qsizetype parent = m_pointer.size();
    m_pointer += pointerStep(key);
    if (keys.contains(key))
        m_duplicates.append({begin, m_pointer});
    keys.insert(key);
    const bool ok = scanValue();
    m_pointer.truncate(parent);
    return ok;
}

bool JsonScanner::scanArray()
{
    if (++m_depth > kDeepest)
        return fail(u"the text is nested too deeply"_s);
    take('[');
    if (!take(']')) {
        const qsizetype parent = m_pointer.size();
        qsizetype index = 0;
        do {
            m_pointer += u'/' + QString::number(index++);
            if (!scanValue())
                return false;
            m_pointer.truncate(parent);
        } while (take(','));
        if (!take(']'))
            return fail(u"a ',' or ']' is missing"_s);
    }
    --m_depth;
    return true;
}

bool JsonScanner::scanString(QString *value)
{
    ++m_at;
    const QByteArrayView rest = m_text.sliced(m_at);
    if (rest.startsWith("\xEF\xBB\xBF")
        || rest.first(std::min(rest.size(), qsizetype(6))).toByteArray().toLower() == "\\ufeff") {
        // Qt's parser drops it, so what is stored would not be what is written.
        return fail(u"a byte order mark begins this text"_s);
    }
    while (!atEnd() && peek() != '"') {
        const qsizetype begin = m_at;
        while (!atEnd() && peek() != '"' && peek() != '\\' && uchar(peek()) >= 0x20)
            ++m_at;
        if (value != nullptr)
            *value += QString::fromUtf8(m_text.sliced(begin, m_at - begin));
        if (!atEnd() && uchar(peek()) < 0x20)
            return fail(u"a control character stands in a text; write it as an escape"_s);
        if (peek() == '\\' && !scanEscape(value))
            return false;
    }
    if (atEnd())
        return fail(u"a text has no closing '\"'"_s);
    ++m_at;
    return true;
}

bool JsonScanner::scanEscape(QString *value)
{
    const QString reason = u"this is no escape"_s;
    ++m_at;
    const char letter = peek();
    if (letter != 'u') {
        constexpr QByteArrayView kLetters("\"\\/bfnrt");
        const qsizetype index = atEnd() ? -1 : kLetters.indexOf(letter);
        if (index < 0)
            return fail(reason);
        if (value != nullptr)
            *value += QLatin1Char("\"\\/\b\f\n\r\t"[index]);
        ++m_at;
        return true;
    }
    char16_t unit = 0;
    char16_t second = 0;
    if (!scanHex(unit))
        return fail(reason);
    if (QChar::isSurrogate(unit)) {
        const bool paired = QChar::isHighSurrogate(unit) && m_text.sliced(m_at).startsWith("\\u");
        if (!paired || (++m_at, !scanHex(second)) || !QChar::isLowSurrogate(second))
            return fail(u"half of a surrogate pair stands alone"_s);
    }
    if (value != nullptr) {
        *value += QChar(unit);
        if (second != 0)
            *value += QChar(second);
    }
    return true;
}

/// Reads "uXXXX".
bool JsonScanner::scanHex(char16_t &unit)
{
    ++m_at;
    bool ok = m_text.size() - m_at >= 4;
    const QByteArrayView digits = ok ? m_text.sliced(m_at, 4) : QByteArrayView();
    ok = ok && std::all_of(digits.begin(), digits.end(), [](char c) {
             return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
         });
    if (!ok)
        return false;
    unit = char16_t(digits.toByteArray().toUShort(nullptr, 16));
    m_at += 4;
    return true;
}

bool JsonScanner::scanNumber()
{
    const qsizetype begin = m_at;
    const QString reason = u"this is no number"_s;
    if (peek() == '-')
        ++m_at;
    const bool zero = peek() == '0';
    const qsizetype digits = m_at;
    if (!scanDigits() || (zero && m_at - digits > 1))
        return fail(reason);
    if (peek() == '.') {
        ++m_at;
        if (!scanDigits())
            return fail(reason);
    }
    if (peek() == 'e' || peek() == 'E') {
        ++m_at;
        if (peek() == '+' || peek() == '-')
            ++m_at;
        if (!scanDigits())
            return fail(reason);
    }
    bool ok = false;
    m_text.sliced(begin, m_at - begin).toByteArray().toDouble(&ok);
    return ok || fail(u"this number is too large or too small"_s);
}

bool JsonScanner::scanDigits()
{
    const qsizetype begin = m_at;
    while (isDigit(peek()))
        ++m_at;
    return m_at > begin;
}

bool JsonScanner::scanLiteral(QByteArrayView word)
{
    if (!m_text.sliced(m_at).startsWith(word))
        return fail(u"a value is missing"_s);
    m_at += word.size();
    return true;
}

} // namespace Norvane::Kilnjet::Tool
