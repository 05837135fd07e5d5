// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Any bytes as a file to import: every record is either complained about or accepted, complaints
// name a place in the file, and what is accepted can be stored, loaded, exported and imported again
// without a difference.

#include "CheckedFile.h"
#include "Fuzz.h"

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>

#include <algorithm>

using namespace Fuzz;
using namespace Norvane::Kilnjet;
using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;

namespace {

bool isPrintable(const QString &text)
{
    return std::none_of(text.begin(), text.end(),
                        [](QChar c) { return c.category() == QChar::Other_Control; });
}

void checkFindings(const Findings &findings, const QByteArray &text)
{
    const qint64 lines = text.count('\n') + 1;
    for (const Finding &finding : findings) {
        require(finding.file == "fuzzed.json"_L1 && finding.line >= 1 && finding.line <= lines,
                "a finding names a line of the file");
        require(!finding.reason.isEmpty(), "a finding has a reason");
        require(isPrintable(finding.toString()), "a finding is safe to print");
        require(!finding.toJsonObject().isEmpty(), "a finding has a JSON form");
    }
}

/// What is accepted and then exported is accepted again, and is the same.
void checkExport(const QList<AcceptedRecord> &accepted)
{
    QJsonArray exported;
    for (const AcceptedRecord &record : accepted)
        exported.append(record.driver.toJsonObject());
    const CheckedFile again = checkFile(u"fuzzed.json"_s, QJsonDocument(exported).toJson());
    require(!hasErrors(again.findings), "what was exported has no errors");
    require(again.accepted.size() == accepted.size(), "what was exported is accepted");
    for (qsizetype i = 0; i < accepted.size(); ++i) {
        const VPrinterDriver &driver = again.accepted.at(i).driver;
        require(driver.toJsonObject() == exported.at(i).toObject(), "an import changes nothing");
        require(driver.dataId() == accepted.at(i).driver.dataId(), "content ids stay");
    }
}

/// What is accepted is stored, and there when the database is loaded again.
void checkDatabase(const QList<AcceptedRecord> &accepted)
{
    QBuffer file;
    QHash<QUuid, QJsonObject> stored;
    {
        VPrintersDb database(&file, QString());
        database.init(false);
        for (const AcceptedRecord &record : accepted) {
            require(database.insert(record.driver), "what is accepted can be stored");
            // As the import stores it: a copy, which drops what a copy drops.
            stored.insert(record.driver.dataId(), VPrinterDriver(record.driver).toJsonObject());
        }
        database.commit();
    }
    VPrintersDb database(&file, QString());
    database.init(false);
    require(database.count() == stored.size(), "what was stored loads");
    for (const VPrinterDriver &driver : database.values())
        require(driver.toJsonObject() == stored.value(driver.dataId()), "it loads as it was");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = bytesOf(data, size);
    QList<CheckedFile> files{checkFile(u"fuzzed.json"_s, text)};
    findRepeats(files);
    const CheckedFile &file = files.first();
    checkFindings(file.findings, text);
    const qsizetype records = file.source.records().size();
    require(file.accepted.size() <= records, "accepted records are records of the file");
    require(hasErrors(file.findings) || file.accepted.size() == records,
            "what is not accepted has a finding");
    QSet<qsizetype> seen;
    for (const AcceptedRecord &record : file.accepted) {
        require(record.driver.isValid(), "what is accepted is valid");
        require(record.record < records && !seen.contains(record.record), "each record once");
        seen.insert(record.record);
    }
    if (!file.accepted.isEmpty()) {
        if (size % 2 == 0)
            checkExport(file.accepted);
        else
            checkDatabase(file.accepted);
    }
    return 0;
}
