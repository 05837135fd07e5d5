// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A validator that knows nothing of us reads the JSON Schemas in docs/schema/ and judges records:
// what the library writes of valid drivers passes, and what no writer should produce does not.

#include "support/Drivers.h"
#include "support/RecordJson.h"
#include "support/SchemaValidator.h"
#include "support/Seed.h"

#include <vcommon/IVDeviceConfig.h>
#include <vcore/VEnumRegistry.h>

#include <QtTest/QTest>

#include <limits>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

class tst_schema_records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void samples_pass_data();
    void samples_pass();
    void theCommandLine_isAsTheReadmeSays();
    void randomRecords_passExactlyWhenTheyAreValid();
    void everyName_passes_data();
    void everyName_passes();
    void flags_passInEveryCombination();
    void whatHasNoStoredForm_isRefused();
    void whatAWriterMayProduce_passes_data();
    void whatAWriterMayProduce_passes();
    void whatNoWriterShouldProduce_isRefused_data();
    void whatNoWriterShouldProduce_isRefused();
    void whatIsMissing_isRefused_data();
    void whatIsMissing_isRefused();

private:
    QString errors(const QJsonObject &record, const QString &name = u"record"_s)
    {
        return m_validator.errors(name, record).join(u'\n');
    }

    Support::SchemaValidator m_validator;
};

namespace {

QJsonObject record()
{
    return Support::printerJson(u"Kiln line 4"_s);
}

QJsonObject unknownRecord()
{
    return {{u"id"_s, u"{11111111-2222-4333-8444-555555555555}"_s},
            {u"config"_s, 5},
            {u"anything"_s, QJsonArray{QJsonValue::Null}}};
}

/// Whether the record and all beneath it can be used.
bool isValidThroughout(const Hardware::Interfaces::IVDeviceConfig &config)
{
    const auto children = config.values(QUuid());
    return config.isValid() && std::all_of(children.begin(), children.end(), [](const auto *child) {
               return isValidThroughout(*child);
           });
}

/// The row of a table: what is wrong, the JSON pointer of the value, and the value.
void addRow(const char *name, const char *pointer, const QJsonValue &value)
{
    QTest::newRow(name) << QString::fromLatin1(pointer) << value;
}

} // namespace

void tst_schema_records::initTestCase()
{
    QVERIFY2(m_validator.failure().isEmpty(), qPrintable(m_validator.failure()));
    QCOMPARE(errors(record()), QString());
}

void tst_schema_records::samples_pass_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = QDir(QStringLiteral(CATALOGUE)).entryList({u"*.json"_s}, QDir::Files);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_schema_records::samples_pass()
{
    QFETCH(QString, file);
    QFile source(QDir(QStringLiteral(CATALOGUE)).filePath(file));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QJsonObject sample = QJsonDocument::fromJson(source.readAll()).object();
    QCOMPARE(errors(sample, u"printer-driver"_s), QString());
}

void tst_schema_records::theCommandLine_isAsTheReadmeSays()
{
    QFile readme(Support::schemaFolder().filePath(u"README.md"_s));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    QStringList commands = QString::fromUtf8(readme.readAll()).split(u'\n');
    commands = commands.filter(u"    jsonschema "_s);
    QCOMPARE(commands.size(), 1);
    QProcess process;
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, u"/usr/bin:/bin"_s); // Debian's, whatever else there may be.
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QDir(QStringLiteral(DOCS)).filePath(u".."_s));
    process.start(u"/bin/sh"_s, {u"-c"_s, commands.constFirst()});
    QVERIFY(process.waitForFinished(120'000));
    QVERIFY2(process.exitCode() == 0, process.readAllStandardError().constData());
}

void tst_schema_records::randomRecords_passExactlyWhenTheyAreValid()
{
    Support::RandomDrivers random(Support::seed());
    int valid = 0;
    const auto judge = [&](const Hardware::VDeviceConfig &driver, const QString &name) {
        const QString found = errors(driver.toJsonObject(), name);
        valid += found.isEmpty() ? 1 : 0;
        QVERIFY2(found.isEmpty() == isValidThroughout(driver), qPrintable(found));
    };
    constexpr int kRounds = 100;
    for (int i = 0; i < kRounds; ++i) {
        judge(random.printer(), u"printer-driver"_s);
        judge(random.printUnit(), u"print-unit-driver"_s);
        judge(random.elaboration(), u"elaboration-driver"_s);
    }
    QVERIFY(valid > kRounds && valid < 3 * kRounds);
    judge(VPrinterDriver(), u"printer-driver"_s);
    judge(VPrintUnitDriver(), u"print-unit-driver"_s);
    judge(VElaborationDriver(), u"elaboration-driver"_s);
}

void tst_schema_records::everyName_passes_data()
{
    QTest::addColumn<QString>("enumeration");
    QTest::addColumn<QString>("pointer");
    QTest::newRow("classes") << u"PrinterClass"_s << u"/config/printerClass"_s;
    QTest::newRow("faces modes") << u"PrinterFacesMode"_s << u"/config/facesMode"_s;
    QTest::newRow("compressions") << u"PrinterFileCompression"_s << u"/config/fileCompression"_s;
    QTest::newRow("protections") << u"PrinterFileProtection"_s << u"/config/fileProtection"_s;
    QTest::newRow("channels") << u"Channel"_s << u"/children/0/config/channels/0"_s;
    QTest::newRow("screenings") << u"ElaborationType"_s << u"/children/1/config/elaborationType"_s;
    QTest::newRow("level managements")
        << u"LevelManagement"_s << u"/children/1/config/levelManagementList/0"_s;
    QTest::newRow("units") << u"ResolutionUnit"_s << u"/children/1/config/resolutionList/0/unit"_s;
    QTest::newRow("metadata flags") << u"MetadataFlags"_s << u"/metadata/0/flags"_s;
}

// And no other: so the field is that of the enumeration.
void tst_schema_records::everyName_passes()
{
    QFETCH(QString, enumeration);
    QFETCH(QString, pointer);
    const VEnumNames &names = VEnumRegistry::find(enumeration)->names();
    const QStringList refused{u"ElaborationType None"_s, u"MetadataFlags KillOnSave"_s,
                              u"MetadataFlags Volatile"_s};
    for (const qint64 number : names.numbers()) {
        const QString name = names.names(number).constFirst();
        const QString found = errors(Support::with(record(), pointer, name));
        QVERIFY2(found.isEmpty() != refused.contains(enumeration + u' ' + name),
                 qPrintable(name + u": "_s + found));
        QVERIFY2(!errors(Support::with(record(), pointer, name + u"X"_s)).isEmpty(),
                 qPrintable(name));
    }
    QVERIFY(!errors(Support::with(record(), pointer, u"Teapot"_s)).isEmpty());
    QVERIFY(!errors(Support::with(record(), pointer, 1)).isEmpty());
}

void tst_schema_records::flags_passInEveryCombination()
{
    VPrinterDriver driver = Support::validPrinter();
    for (int bits = 0; bits < 32; ++bits) {
        const int online = bits < 16 ? 0 : int(PrinterFileCompression::OnlineOnly);
        driver.setFileCompression(PrinterFileCompression((bits & 15) | online));
        driver.setFileProtection(PrinterFileProtection((bits & 1) | online));
        QCOMPARE(errors(driver.toJsonObject()), QString());
    }
}

void tst_schema_records::whatHasNoStoredForm_isRefused()
{
    VPrinterDriver unnamed = Support::validPrinter();
    unnamed.setFacesMode(PrinterFacesMode(12345));
    QVERIFY(!errors(unnamed.toJsonObject()).isEmpty());
    VElaborationDriver infinite = Support::elaboration();
    infinite.setScrollRatioList({std::numeric_limits<double>::infinity()});
    QVERIFY(!errors(infinite.toJsonObject()).isEmpty());
}

void tst_schema_records::whatAWriterMayProduce_passes_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QJsonValue>("value");
    addRow("an empty name", "/name", u""_s);
    addRow("an empty description", "/description", u""_s);
    addRow("another version", "/version", u"0.0.255"_s);
    addRow("whole faces as a fraction", "/config/maximumFaces", 4.0);
    addRow("the least number of faces", "/config/maximumFaces", -2147483648.0);
    addRow("the greatest number of faces", "/config/maximumFaces", 2147483647.0);
    addRow("the least image", "/config/maximumImageBytes", u"-9223372036854775808"_s);
    addRow("the greatest image", "/config/maximumImageBytes", u"9223372036854775807"_s);
    addRow("flags in another order", "/config/fileCompression", u"Lzw, Rle"_s);
    addRow("no channels", "/children/0/config/channels", QJsonArray());
    addRow("no scroll ratios", "/children/1/config/scrollRatioList", QJsonArray());
    addRow("large and small scroll ratios", "/children/1/config/scrollRatioList",
           QJsonArray{1e308, 5e-324, -1, 0});
    addRow("limits the wrong way round", "/children/1/config/magnificationMin", 1000);
    addRow("a child of a kind not known", "/children/2", unknownRecord());
    addRow("a printer beneath a printer", "/children/2", Support::printerJson(u"another"_s));
    addRow("children's children", "/children/0/children",
           QJsonArray{Support::elaborationJson(u"deeper"_s), unknownRecord()});
    addRow("an annotation of any value", "/metadata/0/value", QJsonValue::Null);
    addRow("annotations of children", "/children/0/metadata", record().value("metadata"_L1));
}

void tst_schema_records::whatAWriterMayProduce_passes()
{
    QFETCH(QString, pointer);
    QFETCH(QJsonValue, value);
    QCOMPARE(errors(Support::with(record(), pointer, value)), QString());
}

void tst_schema_records::whatNoWriterShouldProduce_isRefused_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QJsonValue>("value");
    addRow("a kind without braces", "/id", u"06b1a6eb-628e-45e5-8d80-eb92a4f22e4e"_s);
    addRow("a kind in capitals", "/id", u"{06B1A6EB-628E-45E5-8D80-EB92A4F22E4E}"_s);
    addRow("a kind by number", "/id", 1);
    addRow("a device id that is none", "/deviceId", u"kiln"_s);
    addRow("the null device id", "/deviceId", u"{00000000-0000-0000-0000-000000000000}"_s);
    addRow("a device id in capitals", "/deviceId", u"{5F0C2A52-6F4E-4D6A-9D55-2A0C5C1B7A11}"_s);
    addRow("a version of two numbers", "/version", u"1.2"_s);
    addRow("a version that is a number", "/version", 1.2);
    addRow("a name that is null", "/name", QJsonValue::Null);
    addRow("a description that is a list", "/description", QJsonArray{u"one"_s});
    addRow("a date in another zone", "/dateTime", u"2026-11-21T09:30:00.000+01:00"_s);
    addRow("a date that is null", "/dateTime", QJsonValue::Null);
    addRow("a date in seconds", "/dateTime", 1795253400);
    addRow("a key not known", "/colour", u"blue"_s);
    addRow("a field not known", "/config/colour", u"blue"_s);
    addRow("the flag with the s of its accessor", "/config/onlineLinearizations", true);
    addRow("a config that is a list", "/config", QJsonArray());
    addRow("a class in the wrong case", "/config/printerClass", u"inkjet"_s);
    addRow("a class with blanks", "/config/printerClass", u" Inkjet "_s);
    addRow("a class by number in a text", "/config/printerClass", u"0"_s);
    addRow("an empty class", "/config/printerClass", u""_s);
    addRow("flags in the wrong case", "/config/fileCompression", u"Rle, lzw"_s);
    addRow("flags without a blank", "/config/fileCompression", u"Rle,Lzw"_s);
    addRow("flags with an empty part", "/config/fileCompression", u"Rle, "_s);
    addRow("None among flags", "/config/fileCompression", u"None, Rle"_s);
    addRow("no flags", "/config/fileProtection", u""_s);
    addRow("flags as a list", "/config/fileCompression", QJsonArray{u"Rle"_s});
    addRow("64 bits as a number", "/config/maximumImageBytes", 1048576);
    addRow("64 bits with groups", "/config/maximumImageBytes", u"1,048,576"_s);
    addRow("64 bits and one more", "/config/maximumImageBytes", u"9223372036854775808"_s);
    addRow("faces as a text", "/config/maximumFaces", u"4"_s);
    addRow("half a face", "/config/maximumFaces", 4.5);
    addRow("too many faces", "/config/maximumFaces", 2147483648.0);
    addRow("a flag as a text", "/config/experimental", u"false"_s);
    addRow("a flag as a number", "/config/onlineElaboration", 0);
    addRow("an icon without images", "/config/icon", QJsonArray());
    addRow("an image that is a text", "/config/icon/0", u"png"_s);
    addRow("an image of another format", "/config/icon/0/format", u"jpg"_s);
    addRow("an image without bytes", "/config/icon/0/data", u""_s);
    addRow("an image that is no Base64", "/config/icon/0/data", u"*PNG*"_s);
    addRow("an image of a size", "/config/icon/0/size", 16);
    addRow("images and a drawing", "/config/svgIcon", u"AAAA"_s);
    addRow("no children", "/children", QJsonArray());
    addRow("children that are an object", "/children", QJsonObject());
    addRow("a child that is a text", "/children/0", u"unit"_s);
    addRow("a child whose kind is no id", "/children/0/id", u"unit"_s);
    addRow("a child not known whose kind is no id", "/children/2", QJsonObject{{u"id"_s, 5}});
    addRow("a child with an empty list of children", "/children/0/children", QJsonArray());
    addRow("a broken child of a child", "/children/0/children",
           QJsonArray{Support::with(Support::printUnitJson(u"x"_s), u"/name"_s, 1)});
    addRow("a unit with a machine's field", "/children/0/config/maximumFaces", 4);
    addRow("a channel in the wrong case", "/children/0/config/channels/0", u"cyan"_s);
    addRow("a channel by number", "/children/0/config/channels/0", 1);
    addRow("a channel that only format 1.0 had", "/children/0/config/channels/0", u"Sinker2"_s);
    addRow("channels in one text", "/children/0/config/channels", u"Cyan, Black"_s);
    addRow("no screening", "/children/1/config/elaborationType", u"None"_s);
    addRow("no level managements", "/children/1/config/levelManagementList", QJsonArray());
    addRow("no resolutions", "/children/1/config/resolutionList", QJsonArray());
    addRow("a resolution by number", "/children/1/config/resolutionList/0", 400);
    addRow("a resolution as a text", "/children/1/config/resolutionList/0/x", u"400"_s);
    addRow("a unit in the wrong case", "/children/1/config/resolutionList/0/unit", u"dpi"_s);
    addRow("a third dimension", "/children/1/config/resolutionList/0/z", 400);
    addRow("a scroll ratio that is null", "/children/1/config/scrollRatioList/0", QJsonValue::Null);
    addRow("a magnification as a text", "/children/1/config/magnificationMax", u"2"_s);
    addRow("the other spelling", "/children/1/config/preferred", true);
    addRow("no annotations", "/metadata", QJsonArray());
    addRow("an annotation's key by number", "/metadata/0/key", 7);
    addRow("an annotation's key below zero", "/metadata/0/key", u"-1"_s);
    addRow("an annotation that saving drops", "/metadata/0/flags", u"KillOnCopy, KillOnSave"_s);
    addRow("an annotation with a field not known", "/metadata/0/text", u"x"_s);
}

void tst_schema_records::whatNoWriterShouldProduce_isRefused()
{
    QFETCH(QString, pointer);
    QFETCH(QJsonValue, value);
    const QString found = errors(Support::with(record(), pointer, value), u"printer-driver"_s);
    QVERIFY(!found.isEmpty());
    // The complaint is about this value, or about what holds it.
    const QString holder = pointer.left(pointer.lastIndexOf(u'/'));
    for (const QString &error : found.split(u'\n'))
        QVERIFY2(error.startsWith(holder), qPrintable(error));
}

void tst_schema_records::whatIsMissing_isRefused_data()
{
    QTest::addColumn<QString>("pointer");
    for (const char *pointer : {"/id",
                                "/deviceId",
                                "/version",
                                "/name",
                                "/description",
                                "/config",
                                "/children",
                                "/config/printerClass",
                                "/config/facesMode",
                                "/config/fileCompression",
                                "/config/fileProtection",
                                "/config/maximumFaces",
                                "/config/maximumImageBytes",
                                "/config/experimental",
                                "/config/onlineElaboration",
                                "/config/onlineLinearization",
                                "/config/icon/0/format",
                                "/config/icon/0/data",
                                "/children/0/id",
                                "/children/0/version",
                                "/children/0/config/channels",
                                "/children/0/config/customHorizontalResolution",
                                "/children/0/config/customVerticalResolution",
                                "/children/1/config/elaborationType",
                                "/children/1/config/levelManagementList",
                                "/children/1/config/resolutionList",
                                "/children/1/config/scrollRatioList",
                                "/children/1/config/magnificationMin",
                                "/children/1/config/magnificationMax",
                                "/children/1/config/prefered",
                                "/children/1/config/allowOnlineElaboration",
                                "/children/1/config/resolutionList/0/unit",
                                "/metadata/0/key",
                                "/metadata/0/flags",
                                "/metadata/0/value"})
        QTest::newRow(pointer) << QString::fromLatin1(pointer);
}

void tst_schema_records::whatIsMissing_isRefused()
{
    QFETCH(QString, pointer);
    const qsizetype slash = pointer.lastIndexOf(u'/');
    QCOMPARE(
        errors(Support::without(record(), pointer), u"printer-driver"_s),
        u"%1: '%2' is a required property"_s.arg(pointer.first(slash), pointer.sliced(slash + 1)));
}

QTEST_GUILESS_MAIN(tst_schema_records)
#include "tst_schema_records.moc"
