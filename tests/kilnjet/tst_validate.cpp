// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// validate: the checks of import, for files in JSON and for what a database holds.

#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_validate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void soundFiles_pass();
    void findings_areTheOutput();
    void warningsAlone_pass();
    void aRepeatedContentId_isFoundInOneFile();
    void brokenJson_isFound();
    void aDatabase_isRecognised();
    void storedRecords_areChecked();
    void recordsThatAreLeftOut_areFound();
    void aFileThatCannotBeRead_isAFailure();
    void json_hasOneEntryAFile();

private:
    std::unique_ptr<Support::ToolFolder> m_folder;
};

namespace {

QJsonObject broken()
{
    return Support::with(printerJson(u"A"_s), u"/children/0/config/channels/1"_s, u"cyan"_s);
}

} // namespace

void tst_validate::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
}

void tst_validate::soundFiles_pass()
{
    m_folder->write(u"a.json"_s, printerJson(u"A"_s));
    m_folder->write(u"b.json"_s, QJsonArray{printerJson(u"A"_s), printerJson(u"B"_s)});
    const ToolRun run = m_folder->run({u"validate"_s, u"a.json"_s, u"b.json"_s, u"-"_s}, "[]");
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.text(),
             u"a.json: 1 record, 0 errors, 0 warnings\n"
             "b.json: 2 records, 0 errors, 0 warnings\n"
             "standard input: 0 records, 0 errors, 0 warnings\n"_s);
}

void tst_validate::findings_areTheOutput()
{
    const QString file =
        m_folder->write(u"a.json"_s, QJsonDocument(broken()).toJson(QJsonDocument::Compact));
    const ToolRun run = m_folder->run({u"validate"_s, file});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.text(),
             u"a.json:1: /children/0/config/channels/1: 'cyan' is no value of Channel; "
             "did you mean 'Cyan'?\n"
             "a.json: 1 record, 1 error, 0 warnings\n"_s);
}

void tst_validate::warningsAlone_pass()
{
    m_folder->write(u"a.json"_s, Support::with(printerJson(u"A"_s), u"/owner"_s, 1));
    const ToolRun run = m_folder->run({u"validate"_s, u"a.json"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.text().endsWith(u"a.json: 1 record, 0 errors, 1 warning\n"_s),
             run.out.constData());
}

void tst_validate::aRepeatedContentId_isFoundInOneFile()
{
    m_folder->write(u"a.json"_s, QJsonArray{printerJson(u"A"_s), printerJson(u"A"_s)});
    const ToolRun run = m_folder->run({u"validate"_s, u"a.json"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.text().contains(u"has the content id of a.json: record 1"_s), run.out.constData());
    // Two files need not go together.
    m_folder->write(u"b.json"_s, printerJson(u"B"_s));
    VERIFY_CODE(m_folder->run({u"validate"_s, u"b.json"_s, u"b.json"_s}), 0);
}

void tst_validate::brokenJson_isFound()
{
    m_folder->write(u"a.json"_s, QByteArray("{\n\"id\" 1}"));
    const ToolRun run = m_folder->run({u"validate"_s, u"a.json"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.text().startsWith(u"a.json:2: column 6: a ':' is missing\n"_s),
             run.out.constData());
    VERIFY_CODE(m_folder->run({u"validate"_s, u"-"_s}, QByteArray(100'000, '[')), 1);
}

void tst_validate::aDatabase_isRecognised()
{
    QVERIFY(Support::makeFile(m_folder->path(u"any.name"_s), Support::printers({u"A"_s, u"B"_s})));
    const QByteArray before = m_folder->read(u"any.name"_s);
    const ToolRun run = m_folder->run({u"validate"_s, u"any.name"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(), u"any.name: 2 records, 0 errors, 0 warnings\n"_s);
    QCOMPARE(m_folder->read(u"any.name"_s), before);
}

void tst_validate::storedRecords_areChecked()
{
    const QString path = m_folder->path(u"a.tdb"_s);
    QVERIFY(Support::makeFile(path, {}));
    const QByteArray json = QJsonDocument(broken()).toJson(QJsonDocument::Compact);
    QVERIFY(Support::writeRaw(path, Support::idOfPrinterJson(u"A"_s), QString::fromUtf8(json)));
    const ToolRun run = m_folder->run({u"validate"_s, u"a.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, 1);
    const QJsonObject finding = run.object()["files"_L1][0]["findings"_L1][0].toObject();
    QCOMPARE(finding["record"_L1].toString(), Support::idOfPrinterJson(u"A"_s));
    QCOMPARE(finding["pointer"_L1].toString(), u"/children/0/config/channels/1"_s);
    QCOMPARE(finding["line"_L1].toInt(), 3);
}

void tst_validate::recordsThatAreLeftOut_areFound()
{
    const QString path = m_folder->path(u"a.tdb"_s);
    QVERIFY(Support::makeFile(path, Support::printers({u"A"_s})));
    QVERIFY(Support::writeRaw(path, u"nobody"_s, u"{}"_s));
    const ToolRun run = m_folder->run({u"validate"_s, u"a.tdb"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(
        run.text().contains(u": nobody: the record is left out: its field \"id\" is no id\n"_s),
        run.out.constData());
    QVERIFY2(run.text().endsWith(u"a.tdb: 2 records, 1 error, 0 warnings\n"_s),
             run.out.constData());
}

void tst_validate::aFileThatCannotBeRead_isAFailure()
{
    m_folder->write(u"a.json"_s, printerJson(u"A"_s));
    VERIFY_CODE(m_folder->run({u"validate"_s, u"a.json"_s, u"missing.json"_s}), 3);
    VERIFY_CODE(m_folder->run({u"validate"_s, u"."_s}), 3);
}

void tst_validate::json_hasOneEntryAFile()
{
    m_folder->write(u"a.json"_s, printerJson(u"A"_s));
    const ToolRun run = m_folder->run({u"validate"_s, u"--json"_s, u"a.json"_s, u"-"_s}, "[5]");
    VERIFY_CODE(run, 1);
    QCOMPARE(run.err, QByteArray());
    const QJsonObject sound{{u"file"_s, u"a.json"_s},
                            {u"kind"_s, u"records"_s},
                            {u"records"_s, 1},
                            {u"findings"_s, QJsonArray()}};
    const QJsonObject finding{{u"severity"_s, u"error"_s},
                              {u"file"_s, u"standard input"_s},
                              {u"line"_s, 1},
                              {u"record"_s, u"record 1"_s},
                              {u"pointer"_s, u""_s},
                              {u"reason"_s, u"5 stands where a record belongs"_s}};
    const QJsonObject unsound{{u"file"_s, u"standard input"_s},
                              {u"kind"_s, u"records"_s},
                              {u"records"_s, 1},
                              {u"findings"_s, QJsonArray{finding}}};
    QCOMPARE(run.object(), QJsonObject({{u"files"_s, QJsonArray{sound, unsound}}}));
}

QTEST_GUILESS_MAIN(tst_validate)
#include "tst_validate.moc"
