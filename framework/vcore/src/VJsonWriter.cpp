// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VJsonWriter.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>

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

bool isPlain(char16_t c)
{
    return c >= 0x20 && c < 0x80 && c != u'"' && c != u'\\';
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

/// Appends what follows the plain characters at the start of a string.
void appendFrom(std::string &text, QStringView rest)
{
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QChar c = rest.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < rest.size() && rest.at(i + 1).isLowSurrogate();
        if (isPlain(c.unicode())) {
            text += char(c.unicode());
        } else if (isPair) {
            text += rest.sliced(i++, 2).toUtf8().toStdString();
        } else if (c.isSurrogate() || c.unicode() < 0x80) {
            appendEscape(text, c.unicode());
        } else {
            text += rest.sliced(i, 1).toUtf8().toStdString();
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
    const auto *const special =
        std::find_if_not(value.begin(), value.end(), [](QChar c) { return isPlain(c.unicode()); });
    std::transform(value.begin(), special, std::back_inserter(m_text),
                   [](QChar c) { return char(c.unicode()); });
    appendFrom(m_text, QStringView(value).sliced(special - value.begin()));
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
