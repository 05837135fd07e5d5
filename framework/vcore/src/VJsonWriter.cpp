// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VJsonWriter.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Norvane {

namespace {

/// As much as a record with some children takes.
constexpr qsizetype kUsualSize = 8192;
/// Up to here QJsonValue keeps whole numbers as such: 2 to the power of 53.
constexpr double kLargestWhole = 9007199254740992.0;

/// The letter that escapes a character in short; NUL when there is none.
char shortEscape(char16_t c)
{
    switch (c) {
    case u'"':
    case u'\\':
        return char(c);
    case u'\b':
        return 'b';
    case u'\f':
        return 'f';
    case u'\n':
        return 'n';
    case u'\r':
        return 'r';
    case u'\t':
        return 't';
    default:
        return '\0';
    }
}

bool isPlain(char16_t c)
{
    return c >= 0x20 && c < 0x80 && c != u'"' && c != u'\\';
}

void appendEscape(QByteArray &text, char16_t c)
{
    text += '\\';
    if (const char letter = shortEscape(c)) {
        text += letter;
        return;
    }
    text += 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[(c >> shift) & 0xF];
}

/// Appends what follows the plain characters at the start of a string.
void appendFrom(QByteArray &text, QStringView rest)
{
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QChar c = rest.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < rest.size() && rest.at(i + 1).isLowSurrogate();
        if (isPlain(c.unicode())) {
            text += char(c.unicode());
        } else if (isPair) {
            text += rest.sliced(i++, 2).toUtf8();
        } else if (c.isSurrogate() || c.unicode() < 0x80) {
            appendEscape(text, c.unicode());
        } else {
            text += rest.sliced(i, 1).toUtf8();
        }
    }
}

} // namespace

void VJsonTextWriter::open(char bracket)
{
    if (m_text.isNull())
        m_text.reserve(kUsualSize);
    separate();
    m_text += bracket;
    m_needsComma = false;
}

void VJsonTextWriter::close(char bracket)
{
    m_text += bracket;
    m_needsComma = true;
}

/// Begins a value.
void VJsonTextWriter::separate()
{
    if (m_needsComma)
        m_text += ',';
    m_needsComma = true;
}

void VJsonTextWriter::writeKey(QLatin1StringView key)
{
    separate();
    m_text.append('"').append(key.data(), key.size()).append("\":");
    m_needsComma = false;
}

void VJsonTextWriter::append(const QString &value)
{
    separate();
    m_text += '"';
    const auto *const special =
        std::find_if_not(value.begin(), value.end(), [](QChar c) { return isPlain(c.unicode()); });
    const qsizetype plain = special - value.begin();
    const qsizetype start = m_text.size();
    m_text.resize(start + plain);
    std::transform(value.begin(), special, m_text.begin() + start,
                   [](QChar c) { return char(c.unicode()); });
    appendFrom(m_text, QStringView(value).sliced(plain));
    m_text += '"';
}

void VJsonTextWriter::appendPlain(const QByteArray &value)
{
    separate();
    m_text.append('"').append(value).append('"');
}

void VJsonTextWriter::append(bool value)
{
    separate();
    m_text += value ? "true" : "false";
}

void VJsonTextWriter::append(int value)
{
    separate();
    std::array<char, 16> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    m_text.append(digits.data(), end - digits.begin());
}

void VJsonTextWriter::append(double value)
{
    separate();
    if (value == std::trunc(value) && std::abs(value) <= kLargestWhole)
        m_text += QByteArray::number(qint64(value));
    else if (std::isfinite(value))
        m_text += QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
    else
        m_text += "null";
}

void VJsonTextWriter::append(const QJsonArray &value)
{
    separate();
    m_text += QJsonDocument(value).toJson(QJsonDocument::Compact);
}

void VJsonTextWriter::append(const QJsonObject &value)
{
    separate();
    m_text += QJsonDocument(value).toJson(QJsonDocument::Compact);
}

} // namespace Norvane
