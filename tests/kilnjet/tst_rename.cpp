// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// rename: a new name and the present date, and nothing else.

#include "support/Printers.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_rename : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theNameAndTheDateChange_nothingElse();
    void theSameName_changesNothing();
    void anEmptyName_isRefused();
    void anothersName_isReportedNotRefused();
    void anUnknownMachine_isNotRenamed();
    void anInvalidRecord_isNotRenamed();
    void json_tellsBothNames();

private:
    std::unique_ptr<Support::ToolFolder> m_folder;
};

void tst_rename::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
    const QJsonArray records{printerJson(u"A"_s), printerJson(u"B"_s)};
    VERIFY_CODE(m_folder->run({u"import"_s, m_folder->write(u"in.json"_s, records)}), 0);
}

void tst_rename::theNameAndTheDateChange_nothingElse()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const ToolRun run = m_folder->run({u"rename"_s, u"A"_s, u"Línea 1, nave norte"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(),
             u"renamed %1 'A' to 'Línea 1, nave norte'\n"_s.arg(Support::idOfPrinterJson(u"A"_s)));
    const ToolRun shown = m_folder->run({u"show"_s, u"--json"_s, u"Línea 1, nave norte"_s});
    VERIFY_CODE(shown, 0);
    QCOMPARE(shown.object()["id"_L1].toString(), Support::idOfPrinterJson(u"A"_s));
    QJsonObject driver = shown.object()["driver"_L1].toObject();
    const QDateTime date =
        QDateTime::fromString(driver["dateTime"_L1].toString(), Qt::ISODateWithMs);
    QVERIFY(date >= before && date <= QDateTime::currentDateTimeUtc());
    driver.insert("name"_L1, u"A"_s);
    driver.insert("dateTime"_L1, printerJson(u"A"_s)["dateTime"_L1]);
    QCOMPARE(driver, printerJson(u"A"_s));
}

void tst_rename::theSameName_changesNothing()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    VERIFY_CODE(m_folder->run({u"rename"_s, u"A"_s, u"A"_s}), 0);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

void tst_rename::anEmptyName_isRefused()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    for (const QString &name : {u""_s, u"  "_s, u"\t\n"_s})
        VERIFY_CODE(m_folder->run({u"rename"_s, u"A"_s, name}), 2);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

void tst_rename::anothersName_isReportedNotRefused()
{
    const ToolRun run = m_folder->run({u"rename"_s, u"A"_s, u"B"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u"warning: another machine has the name 'B': "_s
                                     + Support::idOfPrinterJson(u"B"_s)),
             run.err.constData());
    QVERIFY2(run.messages().contains(u"hint: 'B - 1' is free"_s), run.err.constData());
    QCOMPARE(m_folder->run({u"list"_s, u"--json"_s}).array()[1]["name"_L1].toString(), u"B"_s);
}

void tst_rename::anUnknownMachine_isNotRenamed()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    VERIFY_CODE(m_folder->run({u"rename"_s, u"Z"_s, u"Y"_s}), 1);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

// A database holds an invalid record only when another program wrote it.
void tst_rename::anInvalidRecord_isNotRenamed()
{
    using namespace Norvane::Database;
    const auto driver = Support::invalidPrinter(u"Broken"_s);
    VDBRecord record;
    record.insert(u"id"_s, Support::idText(driver));
    record.insert(u"driver"_s, Support::jsonText(driver));
    QFile file(m_folder->path(u"Printers.tdb"_s));
    VDBText store;
    store.setKey(QString(), QString());
    QVERIFY(store.open(&file));
    QVERIFY(store.insert(record));
    store.close();

    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    const ToolRun run = m_folder->run({u"rename"_s, u"Broken"_s, u"Mended"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.messages().contains(u"its record is not valid"_s), run.err.constData());
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

void tst_rename::json_tellsBothNames()
{
    const ToolRun run = m_folder->run({u"rename"_s, u"A"_s, u"Z"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.object(),
             QJsonObject({{u"id"_s, Support::idOfPrinterJson(u"A"_s)},
                          {u"before"_s, u"A"_s},
                          {u"name"_s, u"Z"_s}}));
}

QTEST_GUILESS_MAIN(tst_rename)
#include "tst_rename.moc"
