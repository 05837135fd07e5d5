// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RecordFile.h"

#include "Failure.h"
#include "Paths.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

/// The pointer without its last step.
QString parentOf(const QString &pointer)
{
    return pointer.left(std::max(pointer.lastIndexOf(u'/'), qsizetype(0)));
}

/// How messages call the record with the index `i` of a list.
QString labelOf(qsizetype i)
{
    return u"record %1"_s.arg(i + 1);
}

/// True when the line is a whole JSON object.
bool isRecord(QByteArrayView line)
{
    return line.trimmed().startsWith('{') && !JsonScanner(line).scan();
}

/// `pointer` and everything above it.
void insertWithParents(const QString &pointer, QSet<QString> &pointers)
{
    for (QString step = pointer; !step.isEmpty(); step = parentOf(step))
        pointers.insert(step);
    pointers.insert(QString());
}

} // namespace

bool RecordFile::isStandardInput(const QString &name)
{
    return name == "-"_L1;
}

QByteArray RecordFile::readAll(const QString &name)
{
    if (!isStandardInput(name) && QFileInfo(name).isDir()) {
        throw Failure{.code = ExitCode::Io,
                      .where = name,
                      .what = u"cannot read the file"_s,
                      .why = u"it is a folder"_s,
                      .hint = u"name a file in it"_s};
    }
    QFile file(name);
    const bool opened = isStandardInput(name) ? file.open(stdin, QIODevice::ReadOnly)
                                              : file.open(QIODevice::ReadOnly);
    const QByteArray text = opened ? file.readAll() : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError) {
        const bool missing = !isStandardInput(name) && !QFileInfo::exists(name);
        throw Failure{.code = ExitCode::Io,
                      .where = name,
                      .what = u"cannot read the file"_s,
                      .why = missing ? u"there is no such file"_s : file.errorString(),
                      .hint = missing ? nearbyFile(name) : QString()};
    }
    return text;
}

RecordFile::RecordFile(const QString &name, const QByteArray &text)
    : m_name(isStandardInput(name) ? u"standard input"_s : name)
    , m_text(text.startsWith(kByteOrderMark) ? text.sliced(kByteOrderMark.size()) : text)
    , m_lines(m_text)
{
    if (!readAsLines())
        readDocument(0, m_text.size(), QString());
}

QByteArrayView RecordFile::document(qsizetype begin, qsizetype size) const
{
    return QByteArrayView(m_text).sliced(begin, size);
}

/// Takes the text as one record a line if its first line is a record and more follows.
bool RecordFile::readAsLines()
{
    qsizetype begin = std::max(m_text.indexOf('{'), qsizetype(0));
    const qsizetype firstEnd = m_text.indexOf('\n', begin);
    if (firstEnd < 0 || !isRecord(document(0, firstEnd))
        || document(firstEnd, m_text.size() - firstEnd).trimmed().isEmpty()) {
        return false;
    }
    qsizetype number = 0;
    begin = 0;
    while (begin < m_text.size()) {
        const qsizetype lineFeed = m_text.indexOf('\n', begin);
        const qsizetype end = lineFeed < 0 ? m_text.size() : lineFeed;
        if (!document(begin, end - begin).trimmed().isEmpty())
            readDocument(begin, end - begin, labelOf(number++));
        begin = end + 1;
    }
    return true;
}

void RecordFile::readDocument(qsizetype begin, qsizetype size, const QString &label)
{
    JsonScanner scanner(document(begin, size));
    if (const auto error = scanner.scan()) {
        addError(begin + error->offset, label, error->reason);
        return;
    }
    QJsonParseError error;
    const auto json = QJsonDocument::fromJson(m_text.sliced(begin, size), &error);
    if (error.error != QJsonParseError::NoError) {
        addError(begin + error.offset, label, error.errorString());
        return;
    }
    const bool isList = json.isArray() && label.isEmpty();
    for (const auto &duplicate : scanner.duplicates())
        addDuplicate(duplicate, begin, isList, label);
    if (!isList) {
        const QJsonValue value = json.isArray() ? QJsonValue(json.array()) : json.object();
        m_records.append({label, QString(), begin, size, value});
        return;
    }
    const QJsonArray array = json.array();
    for (qsizetype i = 0; i < array.size(); ++i)
        m_records.append({labelOf(i), u"/%1"_s.arg(i), begin, size, array.at(i)});
}

void RecordFile::addDuplicate(const JsonScanner::Duplicate &duplicate, qsizetype begin, bool isList,
                              const QString &label)
{
    addError(begin + duplicate.offset, label, u"this key stands twice in its object"_s);
    m_findings.last().pointer = duplicate.pointer;
    if (isList) {
        const qsizetype second = duplicate.pointer.indexOf(u'/', 1);
        m_findings.last().record = labelOf(duplicate.pointer.sliced(1, second - 1).toLongLong());
        m_findings.last().pointer = duplicate.pointer.sliced(second);
    }
}

void RecordFile::addError(qsizetype offset, const QString &label, const QString &reason)
{
    const TextPosition position = m_lines.position(offset);
    m_findings.append({.file = m_name,
                       .line = position.line,
                       .record = label,
                       .reason = u"column %1: %2"_s.arg(position.column).arg(reason)});
}

Findings RecordFile::located(const QList<RecordFinding> &found) const
{
    Findings findings;
    qsizetype done = 0;
    while (done < found.size()) {
        // Records of one array share a document, which is read once for all of them.
        const RecordInput &first = m_records.at(found.at(done).record);
        QSet<QString> wanted;
        qsizetype end = done;
        for (; end < found.size() && m_records.at(found.at(end).record).begin == first.begin; ++end)
            insertWithParents(pointerOf(found.at(end)), wanted);
        JsonScanner scanner(document(first.begin, first.size));
        scanner.locate(wanted);
        scanner.scan();
        for (; done < end; ++done) {
            // What is missing is looked for where it should stand.
            QString pointer = pointerOf(found.at(done));
            while (!pointer.isEmpty() && !scanner.offsets().contains(pointer))
                pointer = parentOf(pointer);
            Finding finding = found.at(done).finding;
            finding.file = m_name;
            finding.record = m_records.at(found.at(done).record).label;
            finding.line = m_lines.position(first.begin + scanner.offsets().value(pointer)).line;
            findings.append(finding);
        }
    }
    return findings;
}

QString RecordFile::pointerOf(const RecordFinding &found) const
{
    return m_records.at(found.record).pointer + found.finding.pointer;
}

} // namespace Norvane::Kilnjet::Tool
