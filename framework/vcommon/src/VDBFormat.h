// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBHash.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <array>
#include <optional>
#include <utility>

// The bytes of the text database. docs/file-format.md describes them; the two change together.

namespace Norvane::Database {

/// The first word of every file, and of each copy of its header.
constexpr char kMagic[] = "vdbtext";
/// The version of the format that this program writes and reads.
constexpr int kFormatVersion = 1;
/// No header is longer: what is longer and has no line end is no torn header.
constexpr qsizetype kMaxHeaderSize = 2048;

/// A sum or a code in Base64.
constexpr qsizetype kSumLength = 43;
using SumText = std::array<char, kSumLength>;

/// The first byte of a line says what the line is.
enum class LineKind : char
{
    Insert = '+',
    Remove = '-',
    Commit = '=',
    Seal = '.', ///< The batch before it is known to be on the disk.
    Void = '~', ///< What stands before it since the last batch was never completed.
};

/// One field of a line: a key, and a value that may be null.
struct FormatField
{
    QString key;
    std::optional<QString> value;
};

/// Appends the text `utf8` with what would end a field or a line written as an escape.
void appendEscaped(QByteArray &bytes, QByteArrayView utf8, bool isKey = false);
/// Reads what appendEscaped() wrote; a broken escape stands for itself.
QByteArray unescapedUtf8(QByteArrayView bytes);
QString unescaped(QByteArrayView bytes);
/// The text of `utf8`, whose first character may be a byte order mark; what is no UTF-8 is replaced
/// by U+FFFD.
QString textFromUtf8(QByteArrayView utf8);

/// Appends a field, "key=value", or the key alone for a null value, behind a tab where one is due.
void appendField(QByteArray &payload, const QString &key, std::optional<QByteArrayView> utf8);
/// Writes keys and values as "key=value" joined by tabs.
QByteArray encodeFields(const QList<std::pair<QString, QString>> &fields);
QList<FormatField> decodeFields(QByteArrayView payload);

/// One field of a payload as it stands there, escapes and all.
struct RawField
{
    QByteArrayView key;
    std::optional<QByteArrayView> value;
};

/// Takes the first field off a payload that is not empty.
RawField takeField(QByteArrayView &payload);
/// Where the last field of a payload begins.
qsizetype lastFieldAt(QByteArrayView payload);
/// The last field `key`, which is the one that counts; nothing when there is none. `lastAt` is
/// where the last of all begins.
std::optional<RawField> lastField(QByteArrayView payload, qsizetype lastAt, const QString &key);
/// The value of the first field `key`; a null text when it is missing or null. Decodes nothing
/// else.
QString findField(QByteArrayView payload, const QString &key);

/// The checks of lines: a sum that anyone can verify, and a code that only a key's holder can make.
class Signer
{
public:
    /// An empty key signs with sums alone.
    explicit Signer(const QString &key = QString());

    bool isKeyed() const { return m_codes.has_value(); }
    /// Tells this key from others, without telling the key. Empty without a key.
    QByteArray keyCheck() const;
    /// The sum of a line, as text: 43 characters.
    static QByteArray sum(LineKind kind, QByteArrayView payload);
    static QByteArray sum(QByteArrayView bytes);
    /// The code for a sum under the key, as text; "-" without a key.
    QByteArray code(QByteArrayView sum) const;

private:
    std::optional<Hmac> m_codes; ///< Nothing without a key.
};

/// What stands in a header.
struct Header
{
    QString keyField;
    int options = 0;
    QString locale;
    QString format;
    QByteArray keyCheck;
};

/// One copy of the header, without its line end.
QByteArray encodeHeader(const Header &header);
/// Reads one copy; nothing when it is damaged or of another version.
std::optional<Header> decodeHeader(QByteArrayView line);
/// The version that a header line claims to be of; 0 when it is no header line.
int headerVersion(QByteArrayView line);

/// The length of a line with its line end.
qsizetype lineSize(qsizetype payloadSize, const Signer &signer);
/// Writes a line of that length to `to`; gives the sum that it states.
SumText writeLine(char *to, LineKind kind, QByteArrayView payload, const Signer &signer);
/// One whole line with its line end.
QByteArray encodeLine(LineKind kind, QByteArrayView payload, const Signer &signer);

/// A line taken apart. All views are into the bytes that were read.
struct Line
{
    LineKind kind = LineKind::Insert;
    QByteArrayView sum;
    QByteArrayView code;
    QByteArrayView payload;
    qsizetype statedEnd =
        -1; ///< Where the stated length ends in the view given; -1 when unreadable.
};

/// Takes a line of the kinds +, - and = apart, up to the end of `bytes`, without checking it;
/// nothing when it does not have that shape.
std::optional<Line> splitLine(QByteArrayView bytes);

} // namespace Norvane::Database
