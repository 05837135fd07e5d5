// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "StoreText.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QMessageAuthenticationCode>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Fuzz {

namespace {

constexpr auto kHash = QCryptographicHash::Sha256;
constexpr QByteArrayView kMagic("vdbtext\t");

QByteArray text(const QByteArray &digest)
{
    return digest.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QByteArray sum(QByteArrayView first, QByteArrayView rest = {})
{
    QCryptographicHash hash(kHash);
    hash.addData(first);
    hash.addData(rest);
    return text(hash.result());
}

QByteArray mac(const QByteArray &message, const QByteArray &key)
{
    return QMessageAuthenticationCode::hash(message, key, kHash);
}

QByteArray lineKeyOf(const QString &key)
{
    return key.isEmpty() ? QByteArray() : mac("vdbtext line key"_ba, key.toUtf8());
}

QByteArray signedLine(QByteArrayView kind, QByteArrayView payload, const QByteArray &lineKey)
{
    const QByteArray lineSum = sum(kind, payload);
    const QByteArray code = lineKey.isEmpty() ? "-"_ba : text(mac(lineSum, lineKey));
    return kind.toByteArray() + '\t' + QByteArray::number(payload.size()) + '\t' + lineSum + '\t'
        + code + '\t' + payload.toByteArray();
}

QByteArray signedHeader(QByteArrayView line, const QByteArray &lineKey)
{
    QByteArray header = line.first(line.lastIndexOf(QByteArrayView("\tsum="))).toByteArray();
    const qsizetype check = header.indexOf("\tkeycheck=");
    if (check >= 0) {
        const qsizetype begin = check + 10;
        const qsizetype end = header.indexOf('\t', begin);
        header.replace(begin, (end < 0 ? header.size() : end) - begin,
                       lineKey.isEmpty() ? QByteArray()
                                         : text(mac("vdbtext key check"_ba, lineKey)));
    }
    return header + "\tsum=" + sum(header);
}

/// Where the payload of a line of the kinds +, - and = begins; -1 for other lines.
qsizetype payloadAt(QByteArrayView line)
{
    if (line.size() < 2 || !QByteArrayView("+-=").contains(line[0]) || line[1] != '\t')
        return -1;
    qsizetype tab = 1;
    for (int i = 0; i < 3 && tab >= 0; ++i)
        tab = line.indexOf('\t', tab + 1);
    return tab < 0 ? -1 : tab + 1;
}

QByteArrayView lineFrom(QByteArrayView file, qsizetype begin)
{
    const qsizetype end = file.indexOf('\n', begin);
    return end < 0 ? file.sliced(begin) : file.sliced(begin, end - begin);
}

/// The payload of a line: up to the end at which its sum is right, else all that is there.
QByteArrayView payloadOf(QByteArrayView line)
{
    const qsizetype begin = payloadAt(line);
    if (begin < 0)
        return {};
    const QList<QByteArray> heads = line.first(begin).toByteArray().split('\t');
    const qsizetype stated = heads.at(1).toLongLong();
    const QByteArrayView whole = line.sliced(begin);
    for (const qsizetype size : {stated, whole.size() - 1, whole.size()}) {
        if (size >= 0 && size <= whole.size()
            && sum(line.first(1), whole.first(size)) == heads.at(2))
            return whole.first(size);
    }
    return whole;
}

} // namespace

StoreControl::StoreControl(QByteArrayView input)
{
    const auto byte = [&](qsizetype i) { return i < input.size() ? quint8(input[i]) : quint8(0); };
    static const QString kKeys[] = {QString(), u"golden"_s};
    signKey = kKeys[byte(0) & 1];
    openKey = (byte(0) & 2) == 0 ? signKey : (byte(0) & 4) == 0 ? QString() : u"other"_s;
    edits = (byte(0) & 8) == 0;
    purges = (byte(0) & 16) == 0;
    choice = byte(1);
    cut = quint16(byte(2) | (byte(3) << 8));
}

QString textOf(QByteArrayView utf8)
{
    // Behind another character the mark stays.
    return QString::fromUtf8(' ' + utf8.toByteArray()).sliced(1);
}

QByteArray signedAnew(QByteArrayView file, const QString &key, SignCommits commits)
{
    const QByteArray lineKey = lineKeyOf(key);
    QList<QByteArray> lines = file.toByteArray().split('\n');
    QByteArray sums;
    qsizetype count = 0;
    for (QByteArray &line : lines) {
        const qsizetype begin = payloadAt(line);
        if (line.startsWith(kMagic) && line.contains("\tsum="))
            line = signedHeader(line, lineKey);
        if (begin < 0)
            continue;
        QByteArray payload = line.sliced(begin);
        if (line.startsWith('=')) {
            if (commits == SignCommits::Yes)
                payload = "lines=" + QByteArray::number(count) + "\tdigest=" + sum(sums);
            sums.clear();
            count = 0;
        } else {
            sums += sum(QByteArrayView(line).first(1), payload);
            ++count;
        }
        line = signedLine(QByteArrayView(line).first(1).toByteArray(), payload, lineKey);
    }
    return lines.join('\n');
}

std::optional<QByteArray> keyFieldOf(QByteArrayView file)
{
    const QByteArrayView region = file.first(std::min(file.size(), qsizetype(4096)));
    for (qsizetype at = region.indexOf(kMagic); at >= 0; at = region.indexOf(kMagic, at + 1)) {
        QByteArrayView line = lineFrom(file, at);
        if (line.endsWith('\r'))
            line = line.chopped(1);
        const qsizetype sumAt = line.lastIndexOf(QByteArrayView("\tsum="));
        if (sumAt < 0 || line.sliced(sumAt + 5) != sum(line.first(sumAt)))
            continue;
        if (!line.startsWith("vdbtext\t1\t"))
            return std::nullopt; // The version has another spelling.
        const qsizetype begin = line.indexOf(QByteArrayView("\tkey=")) + 5;
        const QByteArray name = line.sliced(begin, line.indexOf('\t', begin) - begin).toByteArray();
        const bool isPlain = begin >= 5 && std::all_of(name.begin(), name.end(), [](char c) {
                                 return uchar(c) > 0x20 && uchar(c) < 0x7f && c != '\\' && c != '=';
                             });
        return isPlain ? std::optional(name) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QByteArray> recordKeyAt(QByteArrayView file, qsizetype offset, bool isSound,
                                      const QByteArray &keyField)
{
    const QByteArrayView line = lineFrom(file, offset);
    // A damaged one is read to its end, even if a sum is right that its code does not vouch for.
    const QByteArrayView payload =
        isSound ? payloadOf(line) : line.sliced(std::max(payloadAt(line), qsizetype(0)));
    for (const QByteArray &field : payload.toByteArray().split('\t')) {
        if (!field.startsWith(keyField + '='))
            continue;
        const QByteArray key = field.sliced(keyField.size() + 1);
        return key.contains('\\') ? std::nullopt : std::optional(key);
    }
    return QByteArray();
}

} // namespace Fuzz
