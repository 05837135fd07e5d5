// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VJsonText.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <charconv>
#include <cmath>
#include <limits>

namespace Norvane {

QByteArrayView VJsonTextValue::bytes() const
{
    return {m_text->m_bytes + token().begin, qsizetype(token().end - token().begin)};
}

QUtf8StringView VJsonTextValue::utf8() const
{
    return isString() ? QUtf8StringView(bytes()) : QUtf8StringView();
}

QString VJsonTextValue::toString() const
{
    return isString() ? QString::fromUtf8(bytes()) : QString();
}

bool VJsonTextValue::toBool(bool fallback) const
{
    if (is(VJsonText::Kind::True))
        return true;
    return is(VJsonText::Kind::False) ? false : fallback;
}

double VJsonTextValue::toDouble(double fallback) const
{
    if (!is(VJsonText::Kind::Number))
        return fallback;
    const QByteArrayView digits = bytes();
    double number = 0;
    std::from_chars(digits.begin(), digits.end(), number);
    return number == 0 ? 0 : number; // There is no negative zero in JSON.
}

int VJsonTextValue::toInt(int fallback) const
{
    if (!is(VJsonText::Kind::Number))
        return fallback;
    const double number = toDouble();
    const bool fits = number >= std::numeric_limits<int>::min()
        && number <= std::numeric_limits<int>::max() && number == std::trunc(number);
    return fits ? int(number) : fallback;
}

VJsonTextObject VJsonTextValue::toObject() const
{
    return isObject() ? VJsonTextObject(*this) : VJsonTextObject();
}

VJsonTextArray VJsonTextValue::toArray() const
{
    return isArray() ? VJsonTextArray(*this) : VJsonTextArray();
}

QJsonValue VJsonTextValue::toJsonValue() const
{
    if (isUndefined())
        return QJsonValue(QJsonValue::Undefined);
    if (isString())
        return toString();
    if (isObject())
        return toObject().toJsonObject();
    if (isArray())
        return toArray().toJsonArray();
    switch (token().kind) {
    case VJsonText::Kind::Number:
        return toDouble();
    case VJsonText::Kind::Null:
        return QJsonValue(QJsonValue::Null);
    default:
        return toBool();
    }
}

VJsonTextValue VJsonTextObject::value(QLatin1StringView key) const
{
    if (m_value.isUndefined())
        return {};
    const auto &tokens = m_value.m_text->m_tokens;
    const char *const bytes = m_value.m_text->m_bytes;
    const quint32 end = m_value.token().next;
    // The token of a key stands right before that of its value.
    for (quint32 member = m_value.m_token + 1; member < end; member = tokens[member + 1].next) {
        const auto &token = tokens[member];
        // Not by the C library: most names of this length differ in their first character.
        if (qsizetype(token.end - token.begin) == key.size()
            && std::equal(key.begin(), key.end(), bytes + token.begin, std::equal_to<char>()))
            return {m_value.m_text, member + 1};
    }
    return {};
}

QJsonObject VJsonTextObject::toJsonObject() const
{
    if (m_value.isUndefined())
        return {};
    return QJsonDocument::fromJson(m_value.bytes().toByteArray()).object();
}

VJsonTextArray::Iterator VJsonTextArray::begin() const
{
    const bool isNone = m_value.isUndefined();
    return Iterator(isNone ? m_value : VJsonTextValue(m_value.m_text, m_value.m_token + 1));
}

VJsonTextArray::Iterator VJsonTextArray::end() const
{
    const bool isNone = m_value.isUndefined();
    return Iterator(isNone ? m_value : VJsonTextValue(m_value.m_text, m_value.token().next));
}

QJsonArray VJsonTextArray::toJsonArray() const
{
    if (m_value.isUndefined())
        return {};
    return QJsonDocument::fromJson(m_value.bytes().toByteArray()).array();
}

VJsonTextObject VJsonText::object() const
{
    return m_tokens.isEmpty() ? VJsonTextObject() : VJsonTextObject(VJsonTextValue(this, 0));
}

} // namespace Norvane
