// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// verify: every record that a program does not get to see, with its line, its id and the reason.

#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_verify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSoundFile_passes();
    void aRecordLeftOutForItsContent_isNamed_data();
    void aRecordLeftOutForItsContent_isNamed();
    void aDamagedRecord_isNamed();
    void damageThatLosesNothing_isAFinding_data();
    void damageThatLosesNothing_isAFinding();
    void damage_isDamage_data();
    void damage_isDamage();
    void theWayOut_isSaidOfDamageAlone_data();
    void theWayOut_isSaidOfDamageAlone();
    void whatIsLeftOut_isWhatTheLibraryLeavesOut();
    void theFile_isNamedByAnOperandToo();
    void namesInIds_areEscaped();

private:
    QString path() const { return m_folder->path(u"Printers.tdb"_s); }
    QByteArray bytes() const { return m_folder->read(u"Printers.tdb"_s); }

    std::unique_ptr<Support::ToolFolder> m_folder;
};

void tst_verify::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
    QVERIFY(Support::makeFile(path(), {}));
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s}) {
        const QByteArray json = QJsonDocument(printerJson(name)).toJson(QJsonDocument::Compact);
        QVERIFY(Support::writeRaw(path(), Support::idOfPrinterJson(name), QString::fromUtf8(json)));
    }
}

void tst_verify::aSoundFile_passes()
{
    const ToolRun text = m_folder->run({u"verify"_s});
    VERIFY_CODE(text, 0);
    QCOMPARE(text.err, QByteArray());
    QCOMPARE(text.text(), u"Printers.tdb: 3 records, 0 left out, 0 places damaged\n"_s);
    const ToolRun json = m_folder->run({u"verify"_s, u"--json"_s});
    VERIFY_CODE(json, 0);
    QCOMPARE(json.object(),
             QJsonObject({{u"file"_s, u"Printers.tdb"_s},
                          {u"keyed"_s, false},
                          {u"records"_s, 3},
                          {u"leftOut"_s, QJsonArray()},
                          {u"damage"_s, QJsonArray()}}));
}

void tst_verify::aRecordLeftOutForItsContent_isNamed_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QVariant>("driver");
    QTest::addColumn<QString>("reason");
    const auto json = [](const QJsonObject &record) {
        return QVariant(QString::fromUtf8(QJsonDocument(record).toJson(QJsonDocument::Compact)));
    };
    const QString id = Support::idOfPrinterJson(u"D"_s);
    const QString other = Support::idOfPrinterJson(u"E"_s);
    QTest::newRow("an id that is none")
        << u"D"_s << json(printerJson(u"D"_s)) << u"its field \"id\" is no id"_s;
    QTest::newRow("the null id") << QUuid().toString() << json(printerJson(u"D"_s))
                                 << u"its field \"id\" is no id"_s;
    QTest::newRow("no driver") << id << QVariant() << u"it has no field \"driver\""_s;
    QTest::newRow("a null driver")
        << id << QVariant::fromValue(nullptr) << u"it has no field \"driver\""_s;
    QTest::newRow("a driver that is no JSON")
        << id << QVariant(u"{\"id\":"_s) << u"its field \"driver\" is no JSON: "_s;
    QTest::newRow("a driver that is an array")
        << id << QVariant(u"[]"_s) << u"its field \"driver\" is no record of a known kind"_s;
    QTest::newRow("a driver of an unknown kind")
        << id << json(Support::with(printerJson(u"D"_s), u"/id"_s, other))
        << u"its field \"driver\" is no record of a known kind"_s;
    QTest::newRow("a print unit") << id << json(Support::printUnitJson(u"D"_s))
                                  << u"it is a record of the kind 'print unit'"_s;
    QTest::newRow("another record's id")
        << other << json(printerJson(u"D"_s)) << u"its content has another id: "_s + id;
}

void tst_verify::aRecordLeftOutForItsContent_isNamed()
{
    QFETCH(QString, id);
    QFETCH(QVariant, driver);
    QFETCH(QString, reason);
    QVERIFY(Support::writeRaw(path(), id, driver));
    const QByteArray whole = bytes();
    const qint64 line = whole.first(whole.lastIndexOf("id=" + id.toUtf8())).count('\n') + 1;

    const ToolRun text = m_folder->run({u"verify"_s});
    VERIFY_CODE(text, 1);
    QVERIFY2(text.text().startsWith(u"Printers.tdb:%1: record %2: left out: %3"_s.arg(
                 QString::number(line), id, reason)),
             text.out.constData());
    QVERIFY2(text.text().endsWith(u"Printers.tdb: 4 records, 1 left out, 0 places damaged\n"_s),
             text.out.constData());

    const ToolRun json = m_folder->run({u"verify"_s, u"--json"_s});
    VERIFY_CODE(json, 1);
    const QJsonObject leftOut = json.object()["leftOut"_L1][0].toObject();
    QCOMPARE(leftOut["line"_L1].toInteger(), line);
    QCOMPARE(leftOut["id"_L1].toString(), id);
    QVERIFY(leftOut["reason"_L1].toString().startsWith(reason));

    // The others are there, and those who edit hear of it.
    const ToolRun list = m_folder->run({u"list"_s, u"--json"_s});
    VERIFY_CODE(list, 0);
    QCOMPARE(list.array().size(), 3);
    const ToolRun edit = m_folder->run({u"rename"_s, u"A"_s, u"Z"_s});
    VERIFY_CODE(edit, 0);
    QVERIFY2(edit.messages().contains(u"warning: 1 record left out, because it cannot be read; "
                                      "hint: 'kilnjet verify Printers.tdb' tells more"_s),
             edit.err.constData());
}

void tst_verify::aDamagedRecord_isNamed()
{
    const QByteArray id = Support::idOfPrinterJson(u"B"_s).toUtf8();
    Support::flipByte(path(), bytes().indexOf("\"name\":\"B\"") + 9);
    const ToolRun text = m_folder->run({u"verify"_s});
    VERIFY_CODE(text, 4);
    QVERIFY2(text.text().contains(u": record %1: left out: its signature does not match its "
                                  "content\n"_s.arg(QString::fromUtf8(id))),
             text.out.constData());
    const ToolRun json = m_folder->run({u"verify"_s, u"--json"_s});
    VERIFY_CODE(json, 4);
    QCOMPARE(json.object()["leftOut"_L1].toArray().size(), 1);
    QVERIFY(!json.object()["damage"_L1].toArray().isEmpty());
    QCOMPARE(json.object()["damage"_L1][0]["id"_L1].toString(), QString::fromUtf8(id));
    QCOMPARE(m_folder->run({u"list"_s, u"--json"_s}).array().size(), 2);
}

void tst_verify::damageThatLosesNothing_isAFinding_data()
{
    QTest::addColumn<bool>("isCut");
    QTest::newRow("a batch that was never completed") << true;
    QTest::newRow("a line that ends as on Windows") << false;
}

void tst_verify::damageThatLosesNothing_isAFinding()
{
    QFETCH(bool, isCut);
    QByteArray whole = bytes();
    if (isCut)
        whole += "+\t100\thalf a line";
    else
        whole.insert(whole.lastIndexOf("\n+"), '\r');
    m_folder->write(u"Printers.tdb"_s, whole);
    const ToolRun run = m_folder->run({u"verify"_s, u"--json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.object()["leftOut"_L1].toArray(), QJsonArray());
    QVERIFY(run.object()["damage"_L1][0]["harmless"_L1].toBool());
    QCOMPARE(run.object()["damage"_L1][0]["reason"_L1].toString(),
             isCut ? u"unfinished"_s : u"badLineEnd"_s);
    const ToolRun list = m_folder->run({u"list"_s, u"--json"_s});
    QCOMPARE(list.array().size(), 3);
    QCOMPARE(list.err, QByteArray());
}

void tst_verify::damage_isDamage_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("reason");
    QTest::newRow("garbage between lines")
        << QByteArray("\n+") << QByteArray("\ngarbage\n+") << u"notALine"_s;
    QTest::newRow("one header damaged")
        << QByteArray("vdbtext\t1") << QByteArray("vdbtexT\t1") << u"badHeader"_s;
}

void tst_verify::damage_isDamage()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, reason);
    QByteArray whole = bytes();
    whole.replace(whole.indexOf(before, 1), before.size(), after);
    m_folder->write(u"Printers.tdb"_s, whole);
    const ToolRun run = m_folder->run({u"verify"_s, u"--json"_s});
    VERIFY_CODE(run, 4);
    QCOMPARE(run.object()["damage"_L1][0]["reason"_L1].toString(), reason);
    QVERIFY(!run.object()["damage"_L1][0]["harmless"_L1].toBool());
    QVERIFY(run.object()["damage"_L1][0]["size"_L1].toInteger() > 0);
    const ToolRun text = m_folder->run({u"verify"_s});
    QVERIFY2(text.text().contains(u": offset "_s), text.out.constData());
    const ToolRun list = m_folder->run({u"list"_s, u"--json"_s});
    VERIFY_CODE(list, 0);
    QCOMPARE(list.array().size(), 3);
    QVERIFY2(list.messages().contains(u"parts of the file are damaged"_s), list.err.constData());
}

void tst_verify::theWayOut_isSaidOfDamageAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isSaid");
    init();
    const QByteArray sound = bytes();
    const auto with = [&sound](const char *before, const char *after) {
        return QByteArray(sound).replace(before, after);
    };
    QVERIFY(Support::makeFile(m_folder->path(u"k.tdb"_s), Support::printers({u"A"_s}), u"other"_s));
    QVERIFY(Support::writeRaw(path(), Support::idOfPrinterJson(u"D"_s), QVariant(u"{}"_s)));

    QTest::newRow("a damaged record") << with("\"name\":\"B\"", "\"name\":\"X\"") << 4 << true;
    QTest::newRow("garbage between lines") << with("\n+", "\ngarbage\n+") << 4 << true;
    QTest::newRow("both headers damaged") << with("format=2", "format=3") << 4 << true;
    QTest::newRow("something else") << QByteArray("[1, 2, 3]\n") << 4 << true;
    QTest::newRow("a newer format") << with("vdbtext\t1\t", "vdbtext\t2\t") << 4 << false;
    QTest::newRow("no key") << sound << 5 << false;
    QTest::newRow("another key") << m_folder->read(u"k.tdb"_s) << 5 << false;
    QTest::newRow("a batch that was never completed") << sound + "+\t10\t" << 1 << false;
    QTest::newRow("a record that is no driver") << bytes() << 1 << false;
    QTest::newRow("nothing") << sound << 0 << false;
}

void tst_verify::theWayOut_isSaidOfDamageAlone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(bool, isSaid);
    m_folder->write(u"a.tdb"_s, bytes);
    QStringList arguments{u"verify"_s, u"a.tdb"_s};
    if (code == 5)
        arguments.append({u"--key-file"_s, m_folder->write(u"key"_s, QByteArray("key"))});
    const ToolRun text = m_folder->run(arguments);
    VERIFY_CODE(text, code);
    QCOMPARE(text.messages().count(u"'kilnjet recover a.tdb NEW'"_s), isSaid ? 1 : 0);
    QCOMPARE(text.messages().count(u"'kilnjet --db NEW restore BACKUP'"_s), isSaid ? 1 : 0);
    QVERIFY2(text.err.count('\n') <= 1, text.err.constData());
    const ToolRun json = m_folder->run(arguments + QStringList{u"--json"_s});
    VERIFY_CODE(json, code);
    QCOMPARE(json.messages().contains(u"'kilnjet recover a.tdb NEW'"_s), isSaid);
    QVERIFY(!json.messages().contains(u"kilnjet: "_s));
}

// The rules stand in the library and here; they must agree.
void tst_verify::whatIsLeftOut_isWhatTheLibraryLeavesOut()
{
    const QString good = Support::idOfPrinterJson(u"A"_s);
    QVERIFY(Support::writeRaw(path(), u"D"_s, QVariant(u"{}"_s)));
    QVERIFY(Support::writeRaw(path(), Support::idOfPrinterJson(u"E"_s), QVariant(u"{}"_s)));
    QVERIFY(Support::writeRaw(path(), good, QVariant(u"{}"_s)));
    Support::flipByte(path(), bytes().indexOf("\"name\":\"B\"") + 9);
    const QJsonObject verdict = m_folder->run({u"verify"_s, u"--json"_s}).object();
    Support::VPrintersDb database(path(), QString());
    database.init(false);
    QCOMPARE(verdict["records"_L1].toInt() - verdict["leftOut"_L1].toArray().size(),
             database.count());
    QCOMPARE(Support::namesIn(database), QStringList{u"C"_s});
}

void tst_verify::theFile_isNamedByAnOperandToo()
{
    const QByteArray expected = m_folder->run({u"verify"_s}).out;
    QCOMPARE(m_folder->run({u"verify"_s, u"Printers.tdb"_s}).out, expected);
    QCOMPARE(m_folder->run({u"--db=Printers.tdb"_s, u"verify"_s}).out, expected);
}

void tst_verify::namesInIds_areEscaped()
{
    QVERIFY(Support::writeRaw(path(), u"\u001b[2J\u202e"_s, QVariant(u"{}"_s)));
    const ToolRun run = m_folder->run({u"verify"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.text().contains(u"record \\u001b[2J\\u202e: "_s), run.out.constData());
}

QTEST_GUILESS_MAIN(tst_verify)
#include "tst_verify.moc"
