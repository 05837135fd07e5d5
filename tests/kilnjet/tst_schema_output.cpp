// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What every command writes with --json is as docs/schema/tool-output.schema.json has it, and so
// are all messages. A validator that knows nothing of us judges.

#include "Command.h"
#include "support/RawRecords.h"
#include "support/RecordJson.h"
#include "support/SchemaValidator.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;
using Support::with;
using Support::without;

class tst_schema_output : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void output_isAsDescribed_data();
    void output_isAsDescribed();
    void everyCommand_isDescribed();
    void anError_isAsDescribed_data();
    void anError_isAsDescribed();
    void aWarning_isAsDescribed_data();
    void aWarning_isAsDescribed();
    void whatNoCommandWrites_isRefused();

private:
    QString errors(const QString &part, const QJsonValue &value)
    {
        return m_validator.errors(u"tool-output#/$defs/"_s + part, value).join(u'\n');
    }
    /// Fails unless every line of standard error is as described; `first` becomes the first.
    void checkMessages(const ToolRun &run, QJsonObject &first);

    Support::SchemaValidator m_validator;
    Support::ToolFolder m_folder;
};

namespace {

QStringList words(const QString &line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}

} // namespace

void tst_schema_output::initTestCase()
{
    QVERIFY2(m_validator.failure().isEmpty(), qPrintable(m_validator.failure()));
    const QJsonArray records{printerJson(u"A"_s), printerJson(u"B"_s), printerJson(u"C"_s)};
    m_folder.write(u"in.json"_s, records);
    VERIFY_CODE(m_folder.run({u"import"_s, u"in.json"_s}), 0);
    VERIFY_CODE(m_folder.run({u"backup"_s, u"copy.tdb"_s}), 0);
    VERIFY_CODE(m_folder.run({u"backup"_s, u"damaged.tdb"_s}), 0);
    Support::flipByte(m_folder.path(u"damaged.tdb"_s),
                      m_folder.read(u"damaged.tdb"_s).indexOf("\n+") + 200);
    VERIFY_CODE(m_folder.run({u"--db"_s, u"copy.tdb"_s, u"rename"_s, u"A"_s, u"Another"_s}), 0);
    VERIFY_CODE(m_folder.run({u"--db"_s, u"copy.tdb"_s, u"remove"_s, u"B"_s}), 0);
    m_folder.write(u"key"_s, QByteArray("secret"));
    VERIFY_CODE(m_folder.run({u"--db"_s, u"keyed.tdb"_s, u"--key-file"_s, u"key"_s, u"import"_s,
                              u"in.json"_s}),
                0);
    m_folder.write(u"bad.json"_s, with(without(printerJson(u"D"_s), u"/name"_s), u"/extra"_s, 1));
    m_folder.write(u"twins.json"_s,
                   QJsonArray{printerJson(u"E"_s), with(printerJson(u"F"_s), u"/name"_s, u"E"_s)});
    VERIFY_CODE(m_folder.run({u"--db"_s, u"twins.tdb"_s, u"import"_s, u"twins.json"_s}), 0);
}

void tst_schema_output::output_isAsDescribed_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<int>("code");
    const auto addRow = [](const char *line, const QString &part, int code = 0) {
        QTest::newRow(line) << part << code;
    };
    addRow("import --dry-run in.json twins.json", u"import"_s);
    addRow("import in.json", u"import"_s);
    addRow("list", u"list"_s);
    addRow("list --names", u"names"_s);
    addRow("query --class Inkjet", u"query"_s);
    addRow("query --class Engraver", u"query"_s, 1);
    addRow("show A", u"show"_s);
    addRow("diff Printers.tdb copy.tdb", u"diff"_s, 1);
    addRow("diff Printers.tdb in.json", u"diff"_s);
    addRow("--db Printers.tdb diff A B", u"diff"_s, 1);
    addRow("export", u"export"_s);
    addRow("export A --output out.json", u"exported"_s);
    addRow("enums", u"enums"_s);
    addRow("enums PrinterFileCompression", u"enum"_s);
    addRow("enums PrinterClass --lang it", u"enum"_s);
    addRow("info", u"info"_s);
    addRow("validate in.json Printers.tdb", u"validate"_s);
    addRow("validate bad.json twins.json", u"validate"_s, 1);
    addRow("validate damaged.tdb", u"validate"_s, 1);
    addRow("verify", u"verify"_s);
    addRow("verify damaged.tdb", u"verify"_s, 4);
    addRow("verify keyed.tdb", u"verify"_s);
    addRow("backup new.tdb --verify", u"backup"_s);
    addRow("backup copy.tdb --verify", u"backup"_s);
    addRow("restore copy.tdb --dry-run", u"restore"_s);
    addRow("--db other.tdb restore copy.tdb", u"restore"_s);
    addRow("purge", u"purge"_s);
    addRow("reindex", u"reindex"_s);
    addRow("recover damaged.tdb rescued.tdb", u"recover"_s, 1);
    addRow("recover copy.tdb carried.tdb", u"recover"_s);
    addRow("rename A A", u"rename"_s);
    addRow("remove C", u"remove"_s);
    addRow("--version", u"version"_s);
}

void tst_schema_output::output_isAsDescribed()
{
    QFETCH(QString, part);
    QFETCH(int, code);
    const ToolRun run = m_folder.run(QStringList{u"--json"_s}
                                     + words(QString::fromLatin1(QTest::currentDataTag())));
    VERIFY_CODE(run, code);
    const QJsonDocument json = QJsonDocument::fromJson(run.out);
    const QJsonValue value = json.isArray() ? QJsonValue(json.array()) : json.object();
    QCOMPARE(errors(part, value), QString());
    QJsonObject message;
    checkMessages(run, message);
}

void tst_schema_output::everyCommand_isDescribed()
{
    const QJsonObject parts = Support::schema(u"tool-output"_s).value("$defs"_L1).toObject();
    for (const Tool::Command &command : Tool::commandTable()) {
        // Help is text for people whatever else is asked for.
        if (command.name != "help"_L1)
            QVERIFY2(parts.contains(command.name), command.name.data());
    }
}

void tst_schema_output::checkMessages(const ToolRun &run, QJsonObject &first)
{
    for (const QByteArray &line : run.err.split('\n')) {
        if (line.isEmpty())
            continue;
        const QJsonObject message = QJsonDocument::fromJson(line).object();
        QCOMPARE(errors(u"message"_s, message), QString());
        if (first.isEmpty())
            first = message;
    }
}

void tst_schema_output::anError_isAsDescribed_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("detail");
    const auto addRow = [](const char *line, int code, const QString &detail = QString()) {
        QTest::newRow(line) << code << detail;
    };
    addRow("", 2);
    addRow("lst", 2);
    addRow("list --jsn", 2);
    addRow("query --class Loom", 2);
    addRow("list --lang xx", 2);
    addRow("enums Chanel", 1);
    addRow("import bad.json", 1, u"findings"_s);
    addRow("import none.json", 3);
    addRow("diff bad.json in.json", 3, u"findings"_s);
    addRow("show nobody", 1);
    addRow("--db twins.tdb show E", 1, u"candidates"_s);
    addRow("--db none.tdb list", 3);
    addRow("--db in.json list", 4);
    addRow("--db keyed.tdb import in.json", 5);
    addRow("--key-file key list", 5);
    addRow("recover in.json nothing.tdb", 4);
    addRow("backup twins.tdb --verify", 3, u"extra"_s);
}

void tst_schema_output::anError_isAsDescribed()
{
    QFETCH(int, code);
    QFETCH(QString, detail);
    const ToolRun run = m_folder.run(QStringList{u"--json"_s}
                                     + words(QString::fromLatin1(QTest::currentDataTag())));
    VERIFY_CODE(run, code);
    QCOMPARE(run.out, QByteArray());
    QJsonObject message;
    checkMessages(run, message);
    const QJsonObject error = message["error"_L1].toObject();
    QCOMPARE(error["code"_L1].toInt(), code);
    QVERIFY2(detail.isEmpty() || error[detail].isArray(), run.err.constData());
}

void tst_schema_output::aWarning_isAsDescribed_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("--db damaged.tdb list") << u"what"_s;
    QTest::newRow("--db damaged.tdb purge") << u"what"_s;
    QTest::newRow("--db twins.tdb rename F E") << u"what"_s;
    QTest::newRow("import --dry-run odd.json") << u"reason"_s;
}

void tst_schema_output::aWarning_isAsDescribed()
{
    QFETCH(QString, key);
    m_folder.write(u"twins.json"_s, QJsonArray{printerJson(u"E"_s), printerJson(u"F"_s)});
    VERIFY_CODE(m_folder.run({u"--db"_s, u"twins.tdb"_s, u"import"_s, u"twins.json"_s}), 0);
    m_folder.write(u"odd.json"_s, with(printerJson(u"G"_s), u"/colour"_s, u"red"_s));
    const ToolRun run = m_folder.run(QStringList{u"--json"_s}
                                     + words(QString::fromLatin1(QTest::currentDataTag())));
    VERIFY_CODE(run, 0);
    QJsonObject message;
    checkMessages(run, message);
    QVERIFY2(message["warning"_L1][key].isString(), run.err.constData());
}

// Or the schema would only seem to be strict.
void tst_schema_output::whatNoCommandWrites_isRefused()
{
    const QJsonObject machine{{u"id"_s, Support::idOfPrinterJson(u"A"_s)}, {u"name"_s, u"A"_s}};
    QCOMPARE(errors(u"remove"_s, QJsonObject{{u"removed"_s, QJsonArray{machine}}}), QString());
    QVERIFY(!errors(u"remove"_s, QJsonObject{}).isEmpty());
    QVERIFY(!errors(u"remove"_s, QJsonObject{{u"removed"_s, QJsonArray{1}}}).isEmpty());
    QVERIFY(
        !errors(u"remove"_s, with({{u"removed"_s, QJsonArray{machine}}}, u"/more"_s, 1)).isEmpty());
    QVERIFY(!errors(u"message"_s, QJsonObject{{u"note"_s, 1}}).isEmpty());
    QVERIFY(!errors(u"list"_s, QJsonArray{machine}).isEmpty());
}

QTEST_GUILESS_MAIN(tst_schema_output)
#include "tst_schema_output.moc"
