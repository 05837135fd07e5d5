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

/// Whether a character needs an escape or more than one byte. Without branches, so that many are
/// compared at a time.
char16_t isOdd(char16_t c)
{
    return char16_t(c < 0x20) | char16_t(c >= 0x80) | char16_t(c == u'"') | char16_t(c == u'\\');
}

bool isPlain(QStringView text)
{
    char16_t found = 0;
    for (const QChar c : text)
        found |= isOdd(c.unicode());
    return found == 0;
}

void appendEscape(std::string &text, char16_t c)
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

void appendPlainText(std::string &text, QStringView plain)
{
    const std::size_t at = text.size();
    text.resize(at + std::size_t(plain.size()));
    std::transform(plain.begin(), plain.end(), text.begin() + std::ptrdiff_t(at),
                   [](QChar c) { return char(c.unicode()); });
}

/// Appends a string that is not plain all over.
void appendOddText(std::string &text, QStringView odd)
{
    for (qsizetype i = 0; i < odd.size(); ++i) {
        const QChar c = odd.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < odd.size() && odd.at(i + 1).isLowSurrogate();
        if (!isOdd(c.unicode())) {
            text += char(c.unicode());
        } else if (isPair) {
            text += odd.sliced(i++, 2).toUtf8().toStdString();
        } else if (c.isSurrogate() || c.unicode() < 0x80) {
            appendEscape(text, c.unicode());
        } else {
            text += odd.sliced(i, 1).toUtf8().toStdString();
        }
    }
}

void appendWhole(std::string &text, qint64 value)
{
    std::array<char, 24> digits{};
    text.append(digits.begin(), std::to_chars(digits.begin(), digits.end(), value).ptr);
}

} // namespace

void VJsonTextWriter::writeKey(QLatin1StringView key)
{
    separate();
    m_text += '"';
    m_text.append(key.data(), std::size_t(key.size())).append("\":");
    m_needsComma = false;
}

void VJsonTextWriter::append(const QString &value)
{
    separate();
    m_text += '"';
    if (isPlain(value))
        appendPlainText(m_text, value);
    else
        appendOddText(m_text, value);
    m_text += '"';
}

void VJsonTextWriter::appendPlain(const QByteArray &value)
{
    separate();
    m_text += '"';
    m_text.append(value.constData(), std::size_t(value.size())) += '"';
}

void VJsonTextWriter::append(bool value)
{
    separate();
    m_text += value ? "true" : "false";
}

void VJsonTextWriter::append(int value)
{
    separate();
    appendWhole(m_text, value);
}

void VJsonTextWriter::append(double value)
{
    separate();
    if (value == std::trunc(value) && std::abs(value) <= kLargestWhole)
        appendWhole(m_text, qint64(value));
    else if (std::isfinite(value))
        m_text += QByteArray::number(value, 'g', QLocale::FloatingPointShortest).toStdString();
    else
        m_text += "null";
}

void VJsonTextWriter::append(const QJsonArray &value)
{
    separate();
    m_text += QJsonDocument(value).toJson(QJsonDocument::Compact).toStdString();
}

void VJsonTextWriter::append(const QJsonObject &value)
{
    separate();
    m_text += QJsonDocument(value).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace Norvane
