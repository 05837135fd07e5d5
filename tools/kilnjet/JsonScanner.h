// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QString>

#include <optional>

namespace Norvane::Kilnjet::Tool {

/// `key` as one more step of a JSON pointer, its slash included.
QString pointerStep(const QString &key);

/// Reads JSON without building anything, to find what a lenient parser would let pass: it takes
/// RFC 8259 by its word, and it sees keys that stand twice in one object.
class JsonScanner
{
public:
    struct Error
    {
        qsizetype offset = 0;
        QString reason;
    };
    struct Duplicate
    {
        qsizetype offset = 0;
        QString pointer;
    };

    /// `text` must outlive the scanner.
    explicit JsonScanner(QByteArrayView text);

    /// Asks for the offsets at which the values with these pointers begin; before scan().
    void locate(const QSet<QString> &pointers) { m_wanted = pointers; }
    /// Reads the text as one value; what is wrong with it, if anything.
    std::optional<Error> scan();
    /// The keys that an object of the text held already.
    const QList<Duplicate> &duplicates() const { return m_duplicates; }
    /// Where the values asked for begin, as far as they were found.
    const QHash<QString, qsizetype> &offsets() const { return m_offsets; }

private:
    bool fail(const QString &reason);
    void skipBlanks();
    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text.at(m_at); }
    bool take(char c);

    bool scanValue();
    bool scanObject();
    bool scanMember(QSet<QString> &keys);
    bool scanArray();
    bool scanString(QString *value);
    bool scanEscape(QString *value);
    bool scanHex(char16_t &unit);
    bool scanNumber();
    bool scanDigits();
    bool scanLiteral(QByteArrayView word);

    QByteArrayView m_text;
    qsizetype m_at = 0;
    int m_depth = 0;
    QString m_pointer;
    QSet<QString> m_wanted;
    QList<Duplicate> m_duplicates;
    QHash<QString, qsizetype> m_offsets;
    std::optional<Error> m_error;
};

} // namespace Norvane::Kilnjet::Tool
