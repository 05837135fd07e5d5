// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBFormat.h"

#include <QtCore/QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

constexpr auto kBase64 = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
/// The characters with an escape of their own, and the letters that these consist of.
constexpr qsizetype kEscapes = 4;
constexpr char kEscaped[] = "\\\t\n\r";
constexpr char kLetters[] = "\\tnr";
/// Lengths have at most this many digits; no file is longer.
constexpr qsizetype kMaxLengthDigits = 15;

QByteArray textOf(const Digest &digest)
{
    return QByteArray::fromRawData(digest.data(), qsizetype(digest.size())).toBase64(kBase64);
}

/// Whether `c` needs an escape. It is compared with all of them at once, without branches: only
/// then are many bytes compared at a time.
bool needsEscape(char c, char inKeys)
{
    return (uchar(c) < 0x20) | (c == '\\') | (c == inKeys);
}

/// How many of the first bytes need no escape.
qsizetype plainLength(QByteArrayView utf8, bool isKey)
{
    constexpr qsizetype kBlock = 64;
    const char inKeys = isKey ? '=' : '\\';
    qsizetype length = 0;
    for (; utf8.size() - length >= kBlock; length += kBlock) {
        const char *const block = utf8.data() + length;
        uchar isFound = 0; // A bool would be set one byte at a time.
        for (qsizetype i = 0; i < kBlock; ++i)
            isFound |= uchar(needsEscape(block[i], inKeys));
        if (isFound != 0)
            break;
    }
    while (length < utf8.size() && !needsEscape(utf8[length], inKeys))
        ++length;
    return length;
}

RawField splitField(QByteArrayView field)
{
    const qsizetype equals = field.indexOf('=');
    if (equals < 0)
        return {field, std::nullopt};
    return {field.first(equals), field.sliced(equals + 1)};
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
    if (const char *const letter = std::find(kLetters, kLetters + kEscapes, next);
        letter != kLetters + kEscapes) {
        plain.append(kEscaped[letter - kLetters]);
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

void appendEscaped(QByteArray &bytes, QByteArrayView utf8, bool isKey)
{
    while (!utf8.isEmpty()) {
        const qsizetype plain = plainLength(utf8, isKey);
        bytes.append(utf8.first(plain));
        if (plain == utf8.size())
            return;
        const char c = utf8[plain];
        if (const char *const letter = std::find(kEscaped, kEscaped + kEscapes, c);
            letter != kEscaped + kEscapes)
            bytes.append('\\').append(kLetters[letter - kEscaped]);
        else
            bytes.append("\\x").append(QByteArray(1, c).toHex());
        utf8 = utf8.sliced(plain + 1);
    }
}

QByteArray unescapedUtf8(QByteArrayView bytes)
{
    QByteArray plain;
    plain.reserve(bytes.size());
    for (qsizetype position = 0; position < bytes.size();) {
        const qsizetype next = bytes.indexOf('\\', position);
        const qsizetype end = next < 0 ? bytes.size() : next;
        plain.append(bytes.sliced(position, end - position));
        position = end;
        if (next >= 0)
            appendUnescaped(plain, bytes, position);
    }
    return plain;
}

QString unescaped(QByteArrayView bytes)
{
    return bytes.contains('\\') ? textFromUtf8(unescapedUtf8(bytes)) : textFromUtf8(bytes);
}

QString textFromUtf8(QByteArrayView utf8)
{
    // By itself Qt would take a leading byte order mark away: here it is a character like others.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringConverter::Flag::Stateless
                               | QStringConverter::Flag::ConvertInitialBom);
    return utf8.startsWith("\xEF\xBB\xBF") ? decoder(utf8) : QString::fromUtf8(utf8);
}

void appendField(QByteArray &payload, const QString &key, std::optional<QByteArrayView> utf8)
{
    if (!payload.isEmpty())
        payload.append('\t');
    appendEscaped(payload, key.toUtf8(), true);
    if (utf8) {
        payload.append('=');
        appendEscaped(payload, *utf8);
    }
}

QByteArray encodeFields(const QList<std::pair<QString, QString>> &fields)
{
    QByteArray payload;
    for (const auto &[key, value] : fields)
        appendField(payload, key, value.toUtf8());
    return payload;
}

QList<FormatField> decodeFields(QByteArrayView payload)
{
    QList<FormatField> fields;
    while (!payload.isEmpty()) {
        const RawField field = takeField(payload);
        fields.append({unescaped(field.key),
                       field.value ? std::optional(unescaped(*field.value)) : std::nullopt});
    }
    return fields;
}

RawField takeField(QByteArrayView &payload)
{
    const qsizetype tab = payload.indexOf('\t');
    const QByteArrayView field = tab < 0 ? payload : payload.first(tab);
    payload = tab < 0 ? QByteArrayView() : payload.sliced(tab + 1);
    return splitField(field);
}

qsizetype lastFieldAt(QByteArrayView payload)
{
    // Forwards: Qt goes backwards a byte at a time.
    qsizetype at = 0;
    for (qsizetype tab = payload.indexOf('\t'); tab >= 0; tab = payload.indexOf('\t', at))
        at = tab + 1;
    return at;
}

std::optional<RawField> lastField(QByteArrayView payload, qsizetype lastAt, const QString &key)
{
    const QByteArray utf8 = key.toUtf8();
    const auto isNamed = [&](const RawField &field) {
        const bool isPlain = std::all_of(field.key.begin(), field.key.end(),
                                         [](char c) { return uchar(c) < 0x80 && c != '\\'; });
        return isPlain ? field.key == utf8 : unescaped(field.key) == key;
    };
    // It is asked first, and not looked into: it may be most of the record.
    if (lastAt < payload.size()) {
        const RawField field = splitField(payload.sliced(lastAt));
        if (isNamed(field))
            return field;
        payload.truncate(std::max(lastAt - 1, qsizetype(0)));
    }
    std::optional<RawField> last;
    while (!payload.isEmpty()) {
        const RawField field = takeField(payload);
        if (isNamed(field))
            last = field;
    }
    return last;
}

QString findField(QByteArrayView payload, const QString &key)
{
    QByteArray start;
    appendEscaped(start, key.toUtf8(), true);
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
{
    // Lines are signed with a key derived from the given one, so that the check in the header and
    // the codes of the lines never stand for each other.
    if (!key.isEmpty())
        m_codes.emplace(Hmac(key.toUtf8()).of("vdbtext line key"));
}

QByteArray Signer::keyCheck() const
{
    return m_codes ? textOf(m_codes->of("vdbtext key check")) : QByteArray();
}

QByteArray Signer::sum(LineKind kind, QByteArrayView payload)
{
    const char kindByte = char(kind);
    return textOf(sha256(QByteArrayView(&kindByte, 1), payload));
}

QByteArray Signer::sum(QByteArrayView bytes)
{
    return textOf(sha256(bytes));
}

QByteArray Signer::code(QByteArrayView sum) const
{
    return m_codes ? textOf(m_codes->of(sum)) : "-"_ba;
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

qsizetype lineSize(qsizetype payloadSize, const Signer &signer)
{
    // The kind, the length, the sum and the code are each followed by a tab, all of it by the end.
    return 1 + QByteArray::number(payloadSize).size() + kSumLength
        + (signer.isKeyed() ? kSumLength : 1) + 4 + payloadSize + 1;
}

SumText writeLine(char *to, LineKind kind, QByteArrayView payload, const Signer &signer)
{
    const auto put = [&to](QByteArrayView bytes, char end) {
        to = std::copy(bytes.begin(), bytes.end(), to);
        *to++ = end;
    };
    const QByteArray sum = Signer::sum(kind, payload);
    const char kindByte = char(kind);
    put(QByteArrayView(&kindByte, 1), '\t');
    put(QByteArray::number(payload.size()), '\t');
    put(sum, '\t');
    put(signer.code(sum), '\t');
    put(payload, '\n');
    SumText text;
    std::copy(sum.begin(), sum.end(), text.begin());
    return text;
}

QByteArray encodeLine(LineKind kind, QByteArrayView payload, const Signer &signer)
{
    QByteArray line(lineSize(payload.size(), signer), Qt::Uninitialized);
    writeLine(line.data(), kind, payload, signer);
    return line;
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
