// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The sheet of a machine: units, swatches, elaborations by kind; colours only where they belong.

#include "ChannelColours.h"
#include "DisplayTexts.h"
#include "ElaborationGroup.h"
#include "MachineSheet.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <vcore/VEnumRegistry.h>

#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <algorithm>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::with;

class tst_sheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLimit_hasItsUnit_data();
    void aLimit_hasItsUnit();
    void elaborations_areGroupedByKind();
    void everyElaborationType_isInOneGroup();
    void children_areShownBelowTheirParents();
    void inks_haveSwatches_data();
    void inks_haveSwatches();
    void swatches_areOnlyForInks();
    void colours_areForTerminalsOnly_data();
    void colours_areForTerminalsOnly();
    void values_ofOneTextAreToldApart();
};

namespace {

QString sheetOf(const QJsonObject &record, Colour colour = Colour::Off)
{
    VPrinterDriver machine;
    return machine.setJsonObject(record) ? machineSheet(machine, DisplayTexts(), Paint(colour))
                                         : QString();
}

QJsonObject method(const QString &name, const QString &type)
{
    return with(Support::elaborationJson(name), u"/config/elaborationType"_s, type);
}

} // namespace

void tst_sheet::aLimit_hasItsUnit_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("line");
    const auto addRow = [](const char *name, const QString &key, const QJsonValue &value,
                           const QString &line) {
        QTest::newRow(name) << u"/config/"_s + key << value << line;
    };
    const QString bytes = u"maximumImageBytes"_s;
    const QString label = u"  Largest image       "_s;
    addRow("no bytes", bytes, u"0"_s, label + u"0 bytes"_s);
    addRow("one byte", bytes, u"1"_s, label + u"1 byte"_s);
    addRow("less than a KiB", bytes, u"1023"_s, label + u"1023 bytes"_s);
    addRow("a KiB", bytes, u"1024"_s, label + u"1024 bytes (1.00 KiB)"_s);
    addRow("MiB", bytes, u"3145728"_s, label + u"3145728 bytes (3.00 MiB)"_s);
    addRow("GiB", bytes, u"17179869184"_s, label + u"17179869184 bytes (16.00 GiB)"_s);
    addRow("below zero", bytes, u"-5"_s, label + u"-5 bytes"_s);
    addRow("one byte below no limit", bytes, u"9223372036854775806"_s,
           label + u"9223372036854775806 bytes (8.00 EiB)"_s);
    addRow("no limit", bytes, u"9223372036854775807"_s, label + u"no limit"_s);
    addRow("one face", u"maximumFaces"_s, 1, u"  Most faces          1 face"_s);
    addRow("faces", u"maximumFaces"_s, 64, u"  Most faces          64 faces"_s);
}

void tst_sheet::aLimit_hasItsUnit()
{
    QFETCH(QString, pointer);
    QFETCH(QJsonValue, value);
    QFETCH(QString, line);
    const QString sheet = sheetOf(with(printerJson(u"A"_s), pointer, value));
    QVERIFY2(sheet.split(u'\n').contains(line), qPrintable(sheet));
}

void tst_sheet::elaborations_areGroupedByKind()
{
    QJsonObject plain = method(u"b"_s, u"BilevelNearest"_s);
    plain = with(plain, u"/config/prefered"_s, false);
    plain = with(plain, u"/config/allowOnlineElaboration"_s, true);
    plain = with(plain, u"/config/magnificationMin"_s, 2);
    const QString sheet = sheetOf(with(
        printerJson(u"A"_s), u"/children"_s,
        QJsonArray{method(u"h"_s, u"HexaWithTetralevelStochastic"_s), method(u"n"_s, u"None"_s),
                   method(u"g"_s, u"Grayscale_8"_s), method(u"x"_s, u"HexalevelNearest"_s), plain,
                   Support::printUnitJson(u"unit"_s), method(u"c"_s, u"BilevelStandard"_s)}));
    QStringList titles;
    for (const QString &line : sheet.split(u'\n')) {
        if (line.contains(u'\'') || line.contains("laborations"_L1))
            titles.append(line.trimmed());
    }
    QCOMPARE(
        titles,
        QStringList({u"print unit 'unit'"_s, u"Bilevel elaborations (2 levels)"_s, u"'b', online"_s,
                     u"'c', preferred"_s, u"Hexalevel elaborations (16 levels)"_s,
                     u"'x', preferred"_s, u"Grayscale elaborations (continuous tone)"_s,
                     u"'g', preferred"_s, u"HexaWithTetralevel elaborations"_s, u"'h', preferred"_s,
                     u"Elaborations without a type"_s, u"'n', preferred"_s}));
    QVERIFY2(sheet.contains(u"Magnification       2x\n"_s), qPrintable(sheet));
}

void tst_sheet::everyElaborationType_isInOneGroup()
{
    const IVEnum *types = VEnumRegistry::find(u"ElaborationType"_s);
    QVERIFY(types != nullptr && !types->names().numbers().isEmpty());
    for (const qint64 number : types->names().numbers()) {
        const QString name = types->names().names(number).first();
        const auto groups = elaborationGroups();
        const auto count = std::count_if(groups.begin(), groups.end(),
                                         [&](const auto &group) { return group.contains(name); });
        QVERIFY2(count == 1, qPrintable(name));
    }
}

void tst_sheet::children_areShownBelowTheirParents()
{
    QJsonObject other = Support::envelopeJson(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s,
                                              u"1.0.0"_s, u"other"_s, {});
    QJsonObject unit = with(Support::printUnitJson(u"unit"_s), u"/config/channels"_s, QJsonArray());
    unit.insert(u"children"_s, QJsonArray{Support::printUnitJson(u"inner"_s)});
    const QString sheet =
        sheetOf(with(printerJson(u"A"_s), u"/children"_s, QJsonArray{other, unit}));
    const qsizetype outer = sheet.indexOf(u"\n  print unit 'unit'\n"_s);
    const qsizetype inner = sheet.indexOf(u"\n    print unit 'inner'\n"_s);
    const qsizetype last = sheet.indexOf(u"\n  unknown kind 'other'\n"_s);
    QVERIFY2(outer > 0 && inner > outer && last > inner, qPrintable(sheet));
    QVERIFY2(sheet.contains(u"    Channels            none\n"_s), qPrintable(sheet));
}

void tst_sheet::inks_haveSwatches_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("line");
    QTest::newRow("a process colour")
        << u"Cyan"_s << u"       1  \u001b[48;2;0;163;217m  \u001b[0m Cyan"_s;
    QTest::newRow("a spot colour")
        << u"Brown"_s << u"       1  \u001b[48;2;122;74;40m  \u001b[0m Brown"_s;
    QTest::newRow("an effect") << u"Sinker"_s << u"       1     Sinker"_s;
    QTest::newRow("a channel of no fixed ink") << u"C1"_s << u"       1     C1"_s;
}

void tst_sheet::inks_haveSwatches()
{
    QFETCH(QString, channel);
    QFETCH(QString, line);
    const QJsonObject record =
        with(printerJson(u"A"_s), u"/children/0/config/channels"_s, QJsonArray{channel});
    const QString painted = sheetOf(record, Colour::On);
    QVERIFY2(painted.split(u'\n').contains(line), qPrintable(painted));
    const QString plain = sheetOf(record, Colour::Off);
    QVERIFY2(plain.split(u'\n').contains(u"       1  "_s + channel), qPrintable(plain));
    QVERIFY(!plain.contains(u'\u001b'));
}

void tst_sheet::swatches_areOnlyForInks()
{
    QSet<QRgb> colours;
    for (int number = 0; number <= int(Channel::Unknown); ++number) {
        const bool isInk = number >= int(Channel::Cyan) && number <= int(Channel::DarkBlue);
        const auto colour = channelColour(Channel(number));
        QVERIFY2(colour.has_value() == isInk, qPrintable(QString::number(number)));
        if (!colour)
            continue;
        QCOMPARE(qAlpha(*colour), 255);
        QVERIFY2(!colours.contains(*colour), qPrintable(QString::number(number)));
        colours.insert(*colour);
    }
}

void tst_sheet::colours_areForTerminalsOnly_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<bool>("isColoured");
    QTest::newRow("show on a terminal") << u"kilnjet show A"_s << true;
    QTest::newRow("diff on a terminal") << u"kilnjet --db Printers.tdb diff A B"_s << true;
    QTest::newRow("NO_COLOR without a value") << u"NO_COLOR= kilnjet show A"_s << true;
    QTest::newRow("NO_COLOR") << u"NO_COLOR=1 kilnjet show A"_s << false;
    QTest::newRow("diff with NO_COLOR")
        << u"NO_COLOR=1 kilnjet --db Printers.tdb diff A B"_s << false;
    QTest::newRow("a dumb terminal") << u"TERM=dumb kilnjet show A"_s << false;
    QTest::newRow("a pipe") << u"kilnjet show A | cat"_s << false;
    QTest::newRow("JSON on a terminal") << u"kilnjet show A --json"_s << false;
}

void tst_sheet::colours_areForTerminalsOnly()
{
    QFETCH(QString, command);
    QFETCH(bool, isColoured);
    const QString script = QStandardPaths::findExecutable(u"script"_s);
    if (script.isEmpty())
        QSKIP("there is no 'script' to lend a terminal");
    const Support::ToolFolder folder;
    const QJsonArray records{printerJson(u"A"_s), printerJson(u"B"_s)};
    VERIFY_CODE(folder.run({u"import"_s, folder.write(u"in.json"_s, records)}), 0);

    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"NO_COLOR"_s);
    environment.insert(u"TERM"_s, u"xterm"_s);
    environment.insert(u"SHELL"_s, u"/bin/sh"_s);
    const QString folderOfTool = QFileInfo(QStringLiteral(KILNJET_TOOL)).absolutePath();
    environment.insert(u"PATH"_s, folderOfTool + u':' + environment.value(u"PATH"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path(QString()));
    process.start(script, {u"-qec"_s, command, u"/dev/null"_s});
    QVERIFY(process.waitForFinished(120'000));
    const QByteArray out = process.readAllStandardOutput();
    QVERIFY2(out.contains("Cyan") || out.contains("/name"), out.constData());
    QVERIFY2(out.contains("\x1b[") == isColoured, out.constData());
}

void tst_sheet::values_ofOneTextAreToldApart()
{
    const QJsonObject record =
        with(printerJson(u"A"_s), u"/children/1/config/levelManagementList"_s,
             QJsonArray{u"Binary"_s, u"HexaGrayscale"_s});
    VPrinterDriver machine;
    QVERIFY(machine.setJsonObject(record));
    const QString sheet = machineSheet(machine, DisplayTexts(u"it"_s), Paint(Colour::Off));
    QVERIFY2(sheet.contains(u" Binario, Scala di grigio (HexaGrayscale)\n"_s), qPrintable(sheet));
    QVERIFY2(sheet.contains(u" Industriali a getto d'inchiostro\n"_s), qPrintable(sheet));
}

QTEST_GUILESS_MAIN(tst_sheet)
#include "tst_sheet.moc"
