// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What a list says of a machine, read from its text or decoded, is what the machine itself says.

#include "Console.h"
#include "MachineSummary.h"
#include "Store.h"
#include "support/RawRecords.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <kilnjet/VPrintersDb.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::with;
using Support::without;

class tst_machine_summary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSummary_isWhatTheMachineSays_data();
    void aSummary_isWhatTheMachineSays();
    void machines_areOrderedByNameThenById();
    void oneIdInTwoSpellings_isOneMachine();

private:
    QList<Tool::MachineSummary> summaries() const;
    /// Makes a database that holds nothing but this record.
    void store(const QByteArray &json);

    Support::ToolFolder m_folder;
    QString m_path = m_folder.path(u"Printers.tdb"_s);
    QByteArray m_empty;
};

namespace {

QString idOf(const QByteArray &json)
{
    const std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> config(
        Hardware::VDeviceConfig::fromJson(json));
    return config ? config->dataId().toString() : QString();
}

QString told(const Tool::MachineSummary &summary)
{
    return QStringList{summary.id.toString(),
                       summary.deviceId.toString(),
                       summary.name,
                       QString::number(int(summary.printerClass)),
                       QString::number(int(summary.facesMode)),
                       QString::number(summary.maximumFaces),
                       QString::number(int(summary.isExperimental)),
                       QString::number(summary.children),
                       summary.version}
        .join(u'|');
}

} // namespace

void tst_machine_summary::initTestCase()
{
    VERIFY_CODE(m_folder.run({u"import"_s, u"-"_s}, "[]"), 0);
    m_empty = m_folder.read(u"Printers.tdb"_s);
}

QList<Tool::MachineSummary> tst_machine_summary::summaries() const
{
    Tool::Console console(Tool::Console::Format::Text);
    return Tool::readSummaries({.path = m_path, .key = {}}, console);
}

void tst_machine_summary::store(const QByteArray &json)
{
    m_folder.write(u"Printers.tdb"_s, m_empty);
    QVERIFY(Support::writeRaw(m_path, idOf(json), QString::fromUtf8(json)));
}

void tst_machine_summary::aSummary_isWhatTheMachineSays_data()
{
    QTest::addColumn<QByteArray>("json");
    const QJsonObject record = without(printerJson(u"A"_s), u"/metadata"_s);
    const auto addRow = [](const char *name, const QJsonObject &json) {
        QTest::newRow(name) << QJsonDocument(json).toJson(QJsonDocument::Compact);
    };
    addRow("a usual record", record);
    addRow("experimental", with(record, u"/config/experimental"_s, true));
    addRow("with annotations", printerJson(u"A"_s));
    for (const char *key : {"/name", "/version", "/deviceId", "/children", "/config/printerClass",
                            "/config/facesMode", "/config/maximumFaces", "/config/experimental"}) {
        const QString pointer = QLatin1StringView(key);
        QTest::addRow("without %s", key)
            << QJsonDocument(without(record, pointer)).toJson(QJsonDocument::Compact);
        QTest::addRow("a number as %s", key)
            << QJsonDocument(with(record, pointer, 2.5)).toJson(QJsonDocument::Compact);
        QTest::addRow("a text as %s", key)
            << QJsonDocument(with(record, pointer, u"7"_s)).toJson(QJsonDocument::Compact);
    }
    addRow("without fields", with(record, u"/config"_s, QJsonObject()));
    addRow("another spelling of a value", with(record, u"/config/printerClass"_s, u" engraver "_s));
    addRow("an unknown value", with(record, u"/config/printerClass"_s, u"Loom"_s));
    addRow("a name with an escape", with(record, u"/name"_s, u"a \"b\"\n\u00e9"_s));
    addRow("a name of another script", with(record, u"/name"_s, u"機械 ١"_s));
    addRow("a child of an unknown kind",
           with(record, u"/children/2"_s, QJsonObject{{u"id"_s, u"{1}"_s}}));
    addRow("a child that is none", with(record, u"/children/2"_s, 5));
    QTest::newRow("a number with an exponent")
        << QJsonDocument(record)
               .toJson(QJsonDocument::Compact)
               .replace("\"maximumFaces\":4", "\"maximumFaces\":4e0");
}

void tst_machine_summary::aSummary_isWhatTheMachineSays()
{
    QFETCH(QByteArray, json);
    store(json);
    if (QTest::currentTestFailed())
        return;
    VPrintersDb database(m_path, QString());
    database.init(false);
    QStringList expected;
    for (const VPrinterDriver &machine : database.values())
        expected.append(told(Tool::MachineSummary::of(machine)));
    QStringList found;
    for (const Tool::MachineSummary &summary : summaries())
        found.append(told(summary));
    QCOMPARE(found, expected);
}

void tst_machine_summary::machines_areOrderedByNameThenById()
{
    QJsonArray records;
    for (const QString &name : {u"b"_s, u"A"_s, u"B"_s, u"a"_s, u"c"_s})
        records.append(printerJson(name));
    QFile::remove(m_path);
    VERIFY_CODE(m_folder.run({u"import"_s, m_folder.write(u"in.json"_s, records)}), 0);
    const QList<Tool::MachineSummary> list = summaries();
    QCOMPARE(list.size(), 5);
    for (qsizetype i = 1; i < list.size(); ++i) {
        const int order = list.at(i - 1).name.compare(list.at(i).name, Qt::CaseInsensitive);
        QVERIFY(order < 0 || (order == 0 && list.at(i - 1).id < list.at(i).id));
    }
}

void tst_machine_summary::oneIdInTwoSpellings_isOneMachine()
{
    const QByteArray json = QJsonDocument(printerJson(u"A"_s)).toJson(QJsonDocument::Compact);
    store(json);
    QVERIFY(Support::writeRaw(m_path, idOf(json).toUpper(), QString::fromUtf8(json)));
    VPrintersDb database(m_path, QString());
    database.init(false);
    QCOMPARE(database.count(), 1);
    QCOMPARE(summaries().size(), 1);
}

QTEST_GUILESS_MAIN(tst_machine_summary)
#include "tst_machine_summary.moc"
