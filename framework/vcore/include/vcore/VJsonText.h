// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QUtf8StringView>
#include <QtCore/QUuid>
#include <QtCore/QVarLengthArray>

namespace Norvane {

class VJsonTextArray;
class VJsonTextObject;

/// JSON text whose structure is known, so that its values can be read straight from the bytes.
///
/// A QJsonDocument builds a tree first, which costs more than everything else that reading a record
/// takes. This reader takes plain text only and refuses the rest, valid or not: what it accepts,
/// QJsonDocument accepts too and gives the same values; what it refuses is for QJsonDocument to
/// judge. Plain means: an object, no escapes in strings, no key twice in an object, numbers without
/// an exponent and of no more digits than a double has, and little depth.
///
/// Values, objects and arrays are views, with the operations of their Qt namesakes: they are valid
/// as long as this object is not parsed into again and its bytes live. The object is large, and
/// meant to live on the stack.
/// Threads: one may parse; many may read then.
class VCORE_EXPORT VJsonText
{
public:
    /// Takes the structure of `bytes`; false when they are not plain.
    [[nodiscard]] bool parse(QByteArrayView bytes);

    /// The object that the text is.
    VJsonTextObject object() const;

private:
    friend class VJsonTextValue;
    friend class VJsonTextObject;
    friend class VJsonTextArray;
    class Parser;

    enum class Kind : quint8
    {
        Object, ///< Keys and values in braces.
        Array, ///< Values in brackets.
        Key, ///< The name of a value in an object.
        String, ///< A text.
        Number, ///< A number.
        True, ///< `true`.
        False, ///< `false`.
        Null, ///< `null`.
    };

    /// A value or a key: its bytes (of strings, what stands between the quotes), and the token that
    /// follows it and what it contains.
    struct Token
    {
        quint32 begin;
        quint32 end;
        quint32 next;
        Kind kind;
    };

    /// Room for a usual record without an allocation.
    using Tokens = QVarLengthArray<Token, 512>;

    const char *m_bytes = nullptr;
    Tokens m_tokens;
};

/// A value in a VJsonText; undefined when there is none.
class VCORE_EXPORT VJsonTextValue
{
public:
    /// An undefined value.
    VJsonTextValue() = default;

    /// True when there is no value.
    bool isUndefined() const { return m_text == nullptr; }
    /// True when it is a string.
    bool isString() const { return is(VJsonText::Kind::String); }
    /// True when it is an object.
    bool isObject() const { return is(VJsonText::Kind::Object); }
    /// True when it is an array.
    bool isArray() const { return is(VJsonText::Kind::Array); }

    /// The bytes of a string; empty for any other value.
    QUtf8StringView utf8() const;
    /// The text of a string; empty for any other value.
    QString toString() const;
    /// The boolean; `fallback` for any other value.
    bool toBool(bool fallback = false) const;
    /// The number, if it is whole and fits; else `fallback`.
    int toInt(int fallback = 0) const;
    /// The number; `fallback` for any other value.
    double toDouble(double fallback = 0.0) const;
    /// The object; an empty one for any other value.
    VJsonTextObject toObject() const;
    /// The array; an empty one for any other value.
    VJsonTextArray toArray() const;
    /// The same as a tree of values.
    QJsonValue toJsonValue() const;

private:
    friend class VJsonText;
    friend class VJsonTextObject;
    friend class VJsonTextArray;
    VJsonTextValue(const VJsonText *text, quint32 token)
        : m_text(text)
        , m_token(token)
    { }
    bool is(VJsonText::Kind kind) const { return m_text != nullptr && token().kind == kind; }
    const VJsonText::Token &token() const { return m_text->m_tokens[m_token]; }
    QByteArrayView bytes() const;

    const VJsonText *m_text = nullptr;
    quint32 m_token = 0;
};

/// An object in a VJsonText; empty when the value was none.
class VCORE_EXPORT VJsonTextObject
{
public:
    /// An empty object of no text.
    VJsonTextObject() = default;

    /// The value of `key`; undefined when there is none.
    VJsonTextValue value(QLatin1StringView key) const;
    /// The same as a tree of values.
    QJsonObject toJsonObject() const;

private:
    friend class VJsonText;
    friend class VJsonTextValue;
    explicit VJsonTextObject(const VJsonTextValue &value)
        : m_value(value)
    { }

    VJsonTextValue m_value;
};

/// An array in a VJsonText; empty when the value was none.
class VCORE_EXPORT VJsonTextArray
{
public:
    /// A walk over the elements, forwards.
    class Iterator
    {
    public:
        /// The current element.
        VJsonTextValue operator*() const { return m_value; }
        /// Goes on to the next element.
        Iterator &operator++()
        {
            m_value.m_token = m_value.token().next;
            return *this;
        }
        /// True when both stand on the same element.
        bool operator==(const Iterator &other) const
        {
            return m_value.m_token == other.m_value.m_token;
        }

    private:
        friend class VJsonTextArray;
        explicit Iterator(const VJsonTextValue &value)
            : m_value(value)
        { }
        VJsonTextValue m_value;
    };

    /// An empty array of no text.
    VJsonTextArray() = default;

    /// The first element.
    Iterator begin() const;
    /// Behind the last element.
    Iterator end() const;
    /// True when there is no element.
    bool isEmpty() const { return begin() == end(); }
    /// The same as a tree of values.
    QJsonArray toJsonArray() const;

private:
    friend class VJsonTextValue;
    explicit VJsonTextArray(const VJsonTextValue &value)
        : m_value(value)
    { }

    VJsonTextValue m_value;
};

/// The UUID that a string value spells; null for any other value.
inline QUuid uuidFromJson(const QJsonValue &value)
{
    return QUuid::fromString(value.toString());
}
/// The same for a value in JSON text.
inline QUuid uuidFromJson(const VJsonTextValue &value)
{
    return QUuid::fromString(value.utf8());
}

} // namespace Norvane
