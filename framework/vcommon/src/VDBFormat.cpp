// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBFormat.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QMessageAuthenticationCode>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

constexpr auto kHash = QCryptographicHash::Blake2b_256;
constexpr auto kBase64 = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
/// A sum or a code in Base64.
constexpr qsizetype kSumLength = 43;
/// Lengths have at most this many digits; no file is longer.
constexpr qsizetype kMaxLengthDigits = 15;

QByteArray authenticationCode(const QByteArray &message, const QByteArray &key)
{
    return QMessageAuthenticationCode::hash(message, key, kHash);
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

/// Appends the byte that the escape at `position` stands for, and moves behind it.
void appendUnescaped(QByteArray &plain, QByteArrayView bytes, qsizetype &position)
{
    const qsizetype left = bytes.size() - position;
    const char next = left > 1 ? bytes[position + 1] : '\0';
    const char *const letters = "\\tnr";
    const char *const values = "\\\t\n\r";
    if (const char *const letter =
            next != '\0' ? std::find(letters, letters + 4, next) : letters + 4;
        letter != letters + 4) {
        plain.append(values[letter - letters]);
        position += 2;
    } else if (next == 'x' && left > 3 && hexDigit(bytes[position + 2]) >= 0
               && hexDigit(bytes[position + 3]) >= 0) {
        plain.append(char(hexDigit(bytes[position + 2]) * 16 + hexDigit(bytes[position + 3])));
        position += 4;
    } else {
        plain.append('\\');
        position += 1;
    }
}

} // namespace

void appendEscaped(QByteArray &bytes, const QString &text, bool isKey)
{
    const QByteArray utf8 = text.toUtf8();
    for (const char c : utf8) {
        switch (c) {
        case '\\':
            bytes.append("\\\\");
            break;
        case '\t':
            bytes.append("\\t");
            break;
        case '\n':
            bytes.append("\\n");
            break;
        case '\r':
            bytes.append("\\r");
            break;
        default:
            if (uchar(c) < 0x20 || (isKey && c == '='))
                bytes.append("\\x").append(QByteArray(1, c).toHex());
            else
                bytes.append(c);
        }
    }
}

QString unescaped(QByteArrayView bytes)
{
    if (!bytes.contains('\\'))
        return QString::fromUtf8(bytes);
    QByteArray plain;
    plain.reserve(bytes.size());
    for (qsizetype position = 0; position < bytes.size();) {
        if (bytes[position] == '\\')
            appendUnescaped(plain, bytes, position);
        else
            plain.append(bytes[position++]);
    }
    return QString::fromUtf8(plain);
}

QByteArray encodeFields(const QList<FormatField> &fields)
{
    QByteArray payload;
    for (const FormatField &field : fields) {
        if (!payload.isEmpty())
            payload.append('\t');
        appendEscaped(payload, field.key, true);
        if (field.value) {
            payload.append('=');
            appendEscaped(payload, *field.value);
        }
    }
    return payload;
}

QList<FormatField> decodeFields(QByteArrayView payload)
{
    QList<FormatField> fields;
    while (!payload.isEmpty()) {
        qsizetype end = payload.indexOf('\t');
        if (end < 0)
            end = payload.size();
        const QByteArrayView field = payload.first(end);
        const qsizetype equals = field.indexOf('=');
        if (equals < 0)
            fields.append({unescaped(field), std::nullopt});
        else
            fields.append({unescaped(field.first(equals)), unescaped(field.sliced(equals + 1))});
        payload = payload.sliced(std::min(end + 1, payload.size()));
    }
    return fields;
}

QString findField(QByteArrayView payload, const QString &key)
{
    QByteArray start;
    appendEscaped(start, key, true);
    start.append('=');
    while (!payload.startsWith(start)) {
        const qsizetype tab = payload.indexOf('\t');
        if (tab < 0)
            return {};
        payload = payload.sliced(tab + 1);
    }
    const qsizetype end = payload.indexOf('\t');
    return unescaped((end < 0 ? payload : payload.first(end)).sliced(start.size()));
}

Signer::Signer(const QString &key)
    // Lines are signed with a key derived from the given one, so that the check in the header and
    // the codes of the lines never stand for each other.
    : m_key(key.isEmpty() ? QByteArray() : authenticationCode("vdbtext line key"_ba, key.toUtf8()))
{ }

QByteArray Signer::keyCheck() const
{
    return isKeyed() ? authenticationCode("vdbtext key check"_ba, m_key).toBase64(kBase64)
                     : QByteArray();
}

QByteArray Signer::sum(LineKind kind, QByteArrayView payload)
{
    QCryptographicHash hash(kHash);
    const char kindByte = char(kind);
    hash.addData(QByteArrayView(&kindByte, 1));
    hash.addData(payload);
    return hash.result().toBase64(kBase64);
}

QByteArray Signer::sum(QByteArrayView bytes)
{
    QCryptographicHash hash(kHash);
    hash.addData(bytes);
    return hash.result().toBase64(kBase64);
}

QByteArray Signer::code(QByteArrayView sum) const
{
    return isKeyed() ? authenticationCode(sum.toByteArray(), m_key).toBase64(kBase64) : "-"_ba;
}

QByteArray encodeHeader(const Header &header)
{
    QByteArray line = QByteArray(kMagic) + '\t' + QByteArray::number(kFormatVersion) + '\t';
    line += encodeFields({{u"key"_s, header.keyField},
                          {u"options"_s, QString::number(header.options)},
                          {u"locale"_s, header.locale},
                          {u"format"_s, header.format},
                          {u"keycheck"_s, QString::fromLatin1(header.keyCheck)}});
    return line + "\tsum=" + Signer::sum(line);
}

int headerVersion(QByteArrayView line)
{
    const QByteArray start = QByteArray(kMagic) + '\t';
    if (!line.startsWith(start))
        return 0;
    line = line.sliced(start.size());
    const QByteArrayView number = line.first(std::max(line.indexOf('\t'), qsizetype(0)));
    bool ok = false;
    const int version = number.toByteArray().toInt(&ok);
    return ok && version > 0 ? version : 0;
}

std::optional<Header> decodeHeader(QByteArrayView line)
{
    const qsizetype sumAt = line.lastIndexOf(QByteArrayView("\tsum="));
    if (sumAt < 0 || headerVersion(line) != kFormatVersion
        || line.sliced(sumAt + 5) != Signer::sum(line.first(sumAt)))
        return std::nullopt;
    Header header;
    header.keyField = findField(line, u"key"_s);
    header.options = findField(line, u"options"_s).toInt();
    header.locale = findField(line, u"locale"_s);
    header.format = findField(line, u"format"_s);
    header.keyCheck = findField(line, u"keycheck"_s).toLatin1();
    return header;
}

QByteArray encodeLine(LineKind kind, QByteArrayView payload, const Signer &signer)
{
    const QByteArray sum = Signer::sum(kind, payload);
    QByteArray line;
    line.reserve(payload.size() + 2 * kSumLength + kMaxLengthDigits + 8);
    line.append(char(kind)).append('\t').append(QByteArray::number(payload.size()));
    line.append('\t').append(sum).append('\t').append(signer.code(sum)).append('\t');
    return line.append(payload).append('\n');
}

std::optional<Line> splitLine(QByteArrayView bytes)
{
    if (bytes.size() < 2 || !QByteArrayView("+-=").contains(bytes[0]) || bytes[1] != '\t')
        return std::nullopt;
    const qsizetype tabs[] = {1, bytes.indexOf('\t', 2)};
    const qsizetype sumEnd = tabs[1] < 0 ? -1 : bytes.indexOf('\t', tabs[1] + 1);
    const qsizetype codeEnd = sumEnd < 0 ? -1 : bytes.indexOf('\t', sumEnd + 1);
    if (codeEnd < 0 || tabs[1] - 2 > kMaxLengthDigits || sumEnd - tabs[1] - 1 > kSumLength
        || codeEnd - sumEnd - 1 > kSumLength)
        return std::nullopt;
    Line line;
    line.kind = LineKind(bytes[0]);
    line.sum = bytes.sliced(tabs[1] + 1, sumEnd - tabs[1] - 1);
    line.code = bytes.sliced(sumEnd + 1, codeEnd - sumEnd - 1);
    line.payload = bytes.sliced(codeEnd + 1);
    bool ok = false;
    const qlonglong length = bytes.sliced(2, tabs[1] - 2).toByteArray().toLongLong(&ok);
    if (ok && length >= 0 && length <= line.payload.size())
        line.statedEnd = codeEnd + 1 + length;
    return line;
}

} // namespace Norvane::Database
