// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// docs/content-ids.md says how others compute our content ids: whatever it states is tried here,
// read from the page itself.

#include <kilnjet/Channel.h>
#include <kilnjet/ChannelV100Sort.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <vcommon/VDeviceConfig.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

const QString kPrinter = u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s;
const QString kPrintUnit = u"{8f5c90c1-c516-487b-bd10-603583444346}"_s;
const QString kElaboration = u"{488e105b-5aac-427d-92d3-1de3f94f8c7f}"_s;

/// The lines of the page.
QStringList page()
{
    QFile file(QStringLiteral(DOCS "/content-ids.md"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n')
                                          : QStringList();
}

/// The cells of a table's row.
QStringList cells(const QString &line)
{
    QStringList cells = line.split(u'|').sliced(1);
    cells.removeLast();
    for (QString &cell : cells)
        cell = cell.remove(u'`').trimmed();
    return cells;
}

/// The rows of the table with exactly these columns; none when the page has no such table.
QList<QStringList> table(const QStringList &columns)
{
    const QStringList lines = page();
    QList<QStringList> rows;
    bool isInside = false;
    for (const QString &line : lines) {
        const bool isRow = line.startsWith(u'|') && line.endsWith(u'|');
        if (isInside && isRow && !line.startsWith("|-"_L1))
            rows.append(cells(line));
        isInside = isRow && (isInside || cells(line) == columns);
    }
    return rows;
}

/// The device id that the page calls by the letter.
QString deviceId(const QString &letter)
{
    const auto rows = table({u""_s, u"Device id"_s});
    for (const QStringList &row : rows) {
        if (row.at(0) == letter)
            return row.at(1);
    }
    return {};
}

/// The content id of a record as a program meets it: rebuilt from its JSON.
QString contentId(const QString &kind, const QString &device, const QJsonObject &config,
                  const QString &version)
{
    QJsonObject envelope{{u"id"_s, kind}, {u"deviceId"_s, device}, {u"config"_s, config}};
    if (!version.isEmpty())
        envelope.insert(u"version"_s, version);
    const std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> record(
        Hardware::VDeviceConfig::fromJson(QJsonDocument(envelope).toJson()));
    return record ? record->dataId().toString() : u"no record"_s;
}

QString idOfText(const QString &device, const QString &text)
{
    return QUuid::createUuidV5(QUuid(device), text).toString();
}

} // namespace

class tst_contentIdExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void printers_haveTheIdsOfTheExamples();
    void printUnits_haveTheIdsOfTheExamples();
    void elaborations_haveTheirDeviceIds();
    void theSteps_leadToTheId();
    void theOrderOfFormat10_isThatOfTheNumbers();
    void valuesWithoutAName_dependOnTheLocale_data();
    void valuesWithoutAName_dependOnTheLocale();
    void anUnnamedChannel_isNoneInFormat10();
};

void tst_contentIdExamples::printers_haveTheIdsOfTheExamples()
{
    const auto rows = table({u"Device id"_s, u"Faces mode"_s, u"Class"_s, u"Maximum faces"_s,
                             u"Joined text"_s, u"Content id"_s});
    QVERIFY(rows.size() >= 3);
    for (const QStringList &row : rows) {
        const QString device = deviceId(row.at(0));
        QCOMPARE(QUuid(device).toString(), device);
        const QJsonObject config{{u"facesMode"_s, row.at(1)},
                                 {u"printerClass"_s, row.at(2)},
                                 {u"maximumFaces"_s, row.at(3).toInt()}};
        QCOMPARE(idOfText(device, row.at(4)), row.at(5));
        QCOMPARE(contentId(kPrinter, device, config, u"1.2.1"_s), row.at(5));
    }
}

void tst_contentIdExamples::printUnits_haveTheIdsOfTheExamples()
{
    const auto rows =
        table({u"Device id"_s, u"Version"_s, u"Channels"_s, u"Joined text"_s, u"Content id"_s});
    QVERIFY(rows.size() >= 3);
    for (const QStringList &row : rows) {
        const QString device = deviceId(row.at(0));
        const QString version = row.at(1) == "(missing)"_L1 ? QString() : row.at(1);
        const QStringList names =
            row.at(2) == "(none)"_L1 ? QStringList() : row.at(2).split(u", "_s);
        const QString text = row.at(3) == "(empty)"_L1 ? QString() : row.at(3);
        const QJsonObject config{{u"channels"_s, QJsonArray::fromStringList(names)}};
        QCOMPARE(idOfText(device, text), row.at(4));
        QCOMPARE(contentId(kPrintUnit, device, config, version), row.at(4));
    }
}

void tst_contentIdExamples::elaborations_haveTheirDeviceIds()
{
    const auto rows = table({u"Device id"_s, u"Content id"_s});
    QVERIFY(!rows.isEmpty());
    for (const QStringList &row : rows)
        QCOMPARE(contentId(kElaboration, deviceId(row.at(0)), {}, u"1.0.0"_s), row.at(1));
}

// Bytes that anyone can follow with a hash program, without a library for UUIDs.
void tst_contentIdExamples::theSteps_leadToTheId()
{
    QHash<QString, QByteArray> steps;
    static const QRegularExpression form(u"^    (\\w[\\w -]*\\w) {2,}([0-9a-f]{20,})$"_s);
    const QStringList lines = page();
    for (const QString &line : lines) {
        const auto match = form.match(line);
        if (match.hasMatch())
            steps.insert(match.captured(1), QByteArray::fromHex(match.captured(2).toLatin1()));
    }
    const QStringList first = table({u"Device id"_s, u"Faces mode"_s, u"Class"_s,
                                     u"Maximum faces"_s, u"Joined text"_s, u"Content id"_s})
                                  .value(0);
    QCOMPARE(first.size(), 6);
    QCOMPARE(steps.value(u"device id"_s), QUuid(deviceId(first.at(0))).toRfc4122());
    QCOMPARE(steps.value(u"joined text"_s), first.at(4).toUtf8());
    const QByteArray digest = QCryptographicHash::hash(
        steps.value(u"device id"_s) + steps.value(u"joined text"_s), QCryptographicHash::Sha1);
    QCOMPARE(steps.value(u"SHA-1"_s), digest);
    QByteArray id = digest.first(16);
    id[6] = char((id[6] & 0x0f) | 0x50);
    id[8] = char((id[8] & 0x3f) | 0x80);
    QCOMPARE(steps.value(u"content id"_s), id);
    QCOMPARE(QUuid::fromRfc4122(id).toString(), first.at(5));
}

void tst_contentIdExamples::theOrderOfFormat10_isThatOfTheNumbers()
{
    const auto *channels = VEnumRegistry::find(u"Channel"_s);
    const auto *sort = VEnumRegistry::find(u"ChannelV100Sort"_s);
    QVERIFY(channels && sort);
    QMap<qint64, QString> expected;
    for (const qint64 channel : channels->names().numbers()) {
        const QString name = channels->names().names(channel).constFirst();
        const auto number = sort->names().find(name, Qt::CaseSensitive);
        QVERIFY2(number, qPrintable(name));
        expected.insert(*number, name);
    }

    QStringList listed;
    const QStringList lines = page();
    for (const QString &line : lines) {
        if (line.startsWith("      None "_L1)
            || (!listed.isEmpty() && line.startsWith("      "_L1)))
            listed += line.split(u' ', Qt::SkipEmptyParts);
        else if (!listed.isEmpty())
            break;
    }
    QCOMPARE(listed, expected.values());
}

void tst_contentIdExamples::valuesWithoutAName_dependOnTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("US English") << QLocale(QLocale::English, QLocale::UnitedStates) << u"12,345"_s;
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << u"12.345"_s;
}

void tst_contentIdExamples::valuesWithoutAName_dependOnTheLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, text);
    QVERIFY2(page().join(u' ').contains(u'`' + text + u'`'), qPrintable(text));
    QLocale::setDefault(locale);
    VPrinterDriver driver(QUuid(deviceId(u"A"_s)));
    driver.setFacesMode(PrinterFacesMode(12345));
    driver.setPrinterClass(PrinterClass::Inkjet);
    QCOMPARE(driver.dataId().toString(), idOfText(deviceId(u"A"_s), text + u";Inkjet;0"_s));
    VPrinterDriver stored;
    QVERIFY(stored.setJsonObject(driver.toJsonObject()));
    QCOMPARE(stored.facesMode(), PrinterFacesMode::None);
    QVERIFY(stored.dataId() != driver.dataId());
}

void tst_contentIdExamples::anUnnamedChannel_isNoneInFormat10()
{
    VPrintUnitDriver unit(QUuid(deviceId(u"B"_s)));
    unit.setVersion(VVersion(1, 0, 0));
    unit.setChannels({Channel::Cyan, Channel(12345)});
    QCOMPARE(unit.dataId().toString(), idOfText(deviceId(u"B"_s), u"None;Cyan"_s));
}

QTEST_GUILESS_MAIN(tst_contentIdExamples)
#include "tst_contentIdExamples.moc"
