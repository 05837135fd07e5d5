// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QLatin1StringView>
#include <QtCore/QString>

#include <string>

namespace Norvane {

/// Writes JSON text as QJsonDocument does in its compact form, byte for byte, without a tree.
///
/// A class writes its fields with a function over any writer, so that one function serves the text
/// and, through VJsonTreeWriter, the tree. Keys must come in ascending order, which is the order of
/// a QJsonObject.
/// Threads: one at a time.
class VCORE_EXPORT VJsonTextWriter
{
public:
    /// The text so far.
    QByteArray text() const { return QByteArray::fromStdString(m_text); }

    /// Writes an object, as an element of an array or as the whole text; `fill` writes its members
    /// to the writer that it is given.
    template<typename Fill>
    void object(Fill fill)
    {
        open('{');
        fill(*this);
        close('}');
    }
    /// Writes the member `key`, an object; `fill` as above.
    template<typename Fill>
    void object(QLatin1StringView key, Fill fill)
    {
        writeKey(key);
        object(fill);
    }
    /// Writes the member `key`, an array; `fill` writes its elements.
    template<typename Fill>
    void array(QLatin1StringView key, Fill fill)
    {
        writeKey(key);
        open('[');
        fill(*this);
        close(']');
    }
    /// Writes the member `key` of an object.
    template<typename Value>
    void insert(QLatin1StringView key, const Value &value)
    {
        writeKey(key);
        append(value);
    }
    /// Writes an element of an array: a string.
    void append(const QString &value);
    /// A boolean.
    void append(bool value);
    /// A number.
    void append(int value);
    /// A number; `null` for one that JSON has no form for (NaN, infinities).
    void append(double value);
    /// A whole array.
    void append(const QJsonArray &value);
    /// A whole object.
    void append(const QJsonObject &value);
    /// Writes a string of plain ASCII characters that need no escape.
    void appendPlain(const QByteArray &value);
    /// The same as the member `key` of an object.
    void insertPlain(QLatin1StringView key, const QByteArray &value)
    {
        writeKey(key);
        appendPlain(value);
    }

private:
    void open(char bracket)
    {
        separate();
        m_text += bracket;
        m_needsComma = false;
    }
    void close(char bracket)
    {
        m_text += bracket;
        m_needsComma = true;
    }
    /// Begins a value.
    void separate()
    {
        if (m_needsComma)
            m_text += ',';
        m_needsComma = true;
    }
    void writeKey(QLatin1StringView key);

    std::string m_text; ///< Its short operations are cheaper than those of QByteArray.
    bool m_needsComma = false;
};

/// Writes the same as a tree of values.
class VJsonTreeWriter
{
public:
    /// What was written with a key.
    const QJsonObject &members() const { return m_members; }
    /// What was written without one.
    const QJsonArray &elements() const { return m_elements; }

    /// As VJsonTextWriter::object().
    template<typename Fill>
    void object(Fill fill)
    {
        m_elements.append(filled(fill).m_members);
    }
    /// As VJsonTextWriter::object().
    template<typename Fill>
    void object(QLatin1StringView key, Fill fill)
    {
        m_members.insert(key, filled(fill).m_members);
    }
    /// As VJsonTextWriter::array().
    template<typename Fill>
    void array(QLatin1StringView key, Fill fill)
    {
        m_members.insert(key, filled(fill).m_elements);
    }
    /// As VJsonTextWriter::insert().
    void insert(QLatin1StringView key, const QJsonValue &value) { m_members.insert(key, value); }
    /// As VJsonTextWriter::append().
    void append(const QJsonValue &value) { m_elements.append(value); }
    /// As VJsonTextWriter::insertPlain().
    void insertPlain(QLatin1StringView key, const QByteArray &value)
    {
        m_members.insert(key, QString::fromLatin1(value));
    }

private:
    template<typename Fill>
    static VJsonTreeWriter filled(Fill fill)
    {
        VJsonTreeWriter writer;
        fill(writer);
        return writer;
    }

    QJsonObject m_members;
    QJsonArray m_elements;
};

} // namespace Norvane
