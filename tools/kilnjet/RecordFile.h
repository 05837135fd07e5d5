// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Finding.h"
#include "JsonScanner.h"
#include "LineIndex.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// One record of an input, not checked yet.
struct RecordInput
{
    QString label; ///< "record 3"; empty when it is the only one.
    QString pointer; ///< Where it stands in its document: "/2", or empty.
    qsizetype begin = 0; ///< Where its document begins in the text, in bytes.
    qsizetype size = 0; ///< How long the document is.
    QJsonValue value;
};

/// A finding about a record of a file, whose pointer is relative to that record.
struct RecordFinding
{
    qsizetype record = 0; ///< The index of the record.
    Finding finding;
};

/// The records of one input: one object, an array of records, or one record a line.
///
/// What is no strict JSON, and keys that stand twice, become findings.
class RecordFile
{
public:
    /// True for the name that stands for the standard input.
    static bool isStandardInput(const QString &name);
    /// Everything in the file, or in the standard input; throws a Failure when it cannot be read.
    static QByteArray readAll(const QString &name);

    RecordFile(const QString &name, const QByteArray &text);

    /// The name as messages show it.
    QString name() const { return m_name; }
    const QList<RecordInput> &records() const { return m_records; }
    /// What is wrong with the text; the records it concerns may be left out.
    const Findings &findings() const { return m_findings; }

    /// The findings, in the order of the records, with file, line and record filled in.
    Findings located(const QList<RecordFinding> &found) const;

private:
    void readDocument(qsizetype begin, qsizetype size, const QString &label);
    void addDuplicate(const JsonScanner::Duplicate &duplicate, qsizetype begin, bool isList,
                      const QString &label);
    bool readAsLines();
    void addError(qsizetype offset, const QString &label, const QString &reason);
    QString pointerOf(const RecordFinding &found) const;
    QByteArrayView document(qsizetype begin, qsizetype size) const;

    QString m_name;
    QByteArray m_text;
    LineIndex m_lines;
    QList<RecordInput> m_records;
    Findings m_findings;
};

} // namespace Norvane::Kilnjet::Tool
