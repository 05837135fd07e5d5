// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Every way in which a record would not be stored as it was written is a finding.

#include "RecordCheck.h"
#include "support/Drivers.h"
#include "support/RecordJson.h"
#include "support/Seed.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <algorithm>

using namespace Norvane::Kilnjet;
using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;

class tst_record_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundRecord_passes();
    void everySample_passes();
    void whatTheLibraryWrites_passes();
    void aWrongValue_isFound_data();
    void aWrongValue_isFound();
    void whatMeansTheSame_passes_data();
    void whatMeansTheSame_passes();
    void whatIsNoObject_isNoRecord();
    void findings_areAllNamedAtOnce();

private:
    static void addRow(const char *name, const char *pointer, const QJsonValue &value,
                       const char *reason, const char *hint = "");
};

namespace {

QJsonObject record()
{
    return Support::printerJson(u"Kiln line 4"_s);
}

QString textOf(const Findings &findings)
{
    QString text;
    for (const Finding &finding : findings)
        text += finding.toString() + u'\n';
    return text;
}

} // namespace

void tst_record_check::aSoundRecord_passes()
{
    const CheckedRecord checked = checkRecord(record());
    QCOMPARE(textOf(checked.findings), QString());
    QVERIFY(checked.driver);
    QCOMPARE(checked.driver->toJsonObject(), record());
}

void tst_record_check::everySample_passes()
{
    const QDir folder(QStringLiteral(CATALOGUE));
    const QStringList names = folder.entryList({u"*.json"_s});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const CheckedRecord checked = checkRecord(QJsonDocument::fromJson(file.readAll()).object());
        QCOMPARE(textOf(checked.findings), QString());
    }
}

// The tables of keys cannot drift from what the library writes.
void tst_record_check::whatTheLibraryWrites_passes()
{
    Support::RandomDrivers random(Support::seed());
    for (int i = 0; i < 300; ++i) {
        const VPrinterDriver driver = random.printer();
        const CheckedRecord checked = checkRecord(driver.toJsonObject());
        if (!driver.isValid()) {
            QVERIFY(hasErrors(checked.findings));
            continue;
        }
        QVERIFY2(checked.driver, qPrintable(textOf(checked.findings)));
        QCOMPARE(checked.driver->toJsonObject(), driver.toJsonObject());
        for (const Finding &finding : checked.findings)
            QVERIFY2(finding.reason.contains(u"is not valid"_s), qPrintable(finding.toString()));
    }
}

void tst_record_check::addRow(const char *name, const char *pointer, const QJsonValue &value,
                              const char *reason, const char *hint)
{
    QTest::newRow(name) << QString::fromUtf8(pointer) << value << QString::fromUtf8(reason)
                        << QString::fromUtf8(hint);
}

void tst_record_check::aWrongValue_isFound_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("hint");

    addRow("a class in another case", "/config/printerClass", u"inkjet"_s,
           "'inkjet' is no value of PrinterClass", "did you mean 'Inkjet'?");
    addRow("a class of a few wrong letters", "/config/printerClass", u"Enbraver"_s,
           "'Enbraver' is no value of PrinterClass", "did you mean 'Engraver'?");
    addRow("a class like nothing known", "/config/printerClass", u"Teapot"_s,
           "'Teapot' is no value of PrinterClass");
    addRow("an empty class", "/config/printerClass", u""_s, "'' is no value of PrinterClass");
    addRow("a class by number", "/config/printerClass", 0,
           "0 stands where the name of a value of PrinterClass belongs");
    addRow("a class by number in a text", "/config/printerClass", u"9"_s,
           "'9' is no value of PrinterClass");
    addRow("a faces mode of another enumeration", "/config/facesMode", u"Inkjet"_s,
           "'Inkjet' is no value of PrinterFacesMode");
    addRow("one flag of several wrong", "/config/fileCompression", u"Rle, Lz"_s,
           "'Lz' is no value of PrinterFileCompression", "did you mean 'Lzw'?");
    addRow("flags with an empty part", "/config/fileCompression", u"Rle,"_s,
           "'' is no value of PrinterFileCompression");
    addRow("flags by number", "/config/fileCompression", 3, "3 stands where the name");
    addRow("a protection that is null", "/config/fileProtection", QJsonValue::Null,
           "null stands where the name");
    addRow("64 bits as a number", "/config/maximumImageBytes", 1048576,
           "1048576 is a JSON number, which loses digits of 64 bits", "write it in quotes");
    addRow("64 bits with letters", "/config/maximumImageBytes", u"1 GiB"_s,
           "'1 GiB' is no whole number of 64 bits");
    addRow("64 bits with groups", "/config/maximumImageBytes", u"1,048,576"_s,
           "'1,048,576' is no whole number of 64 bits");
    addRow("64 bits with blanks", "/config/maximumImageBytes", u" 1"_s, "is no whole number");
    addRow("64 bits with a plus", "/config/maximumImageBytes", u"+1"_s, "is no whole number");
    addRow("64 bits and one more", "/config/maximumImageBytes", u"9223372036854775808"_s,
           "is no whole number of 64 bits");
    addRow("64 bits that are empty", "/config/maximumImageBytes", u""_s, "is no whole number");
    addRow("64 bits as a flag", "/config/maximumImageBytes", true,
           "true stands where a text of digits belongs");
    addRow("faces as a text", "/config/maximumFaces", u"4"_s, "'4' stands where a number belongs");
    addRow("half a face", "/config/maximumFaces", 4.5, "4.5 is no whole number of 32 bits");
    addRow("too many faces", "/config/maximumFaces", 3000000000.0, "is no whole number of 32 bits");
    addRow("far too many faces", "/config/maximumFaces", 1e300, "is no whole number of 32 bits");
    addRow("a flag as a text", "/config/experimental", u"false"_s,
           "'false' stands where true or false belongs");
    addRow("a flag as a number", "/config/onlineElaboration", 1,
           "1 stands where true or false belongs");
    addRow("a config that is an array", "/config", QJsonArray(), "an array stands where an object");
    addRow("a name that is a number", "/name", 4, "4 stands where a text belongs");
    addRow("a description that is null", "/description", QJsonValue::Null,
           "null stands where a text belongs");
    addRow("a device id that is none", "/deviceId", u"kiln"_s, "'kiln' is no id",
           "an id looks like");
    addRow("a device id with a tail", "/deviceId", u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}x"_s,
           "is no id");
    addRow("a device id with half its braces", "/deviceId",
           u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e"_s, "is no id");
    addRow("a version of two numbers", "/version", u"1.2"_s, "'1.2' is no version");
    addRow("a version that is a number", "/version", 1.2, "1.2 stands where a text belongs");
    addRow("a date that is none", "/dateTime", u"yesterday"_s, "'yesterday' is no date and time");
    addRow("a date without a time zone", "/dateTime", u"2026-11-21T09:30:00"_s, "has no time zone");
    addRow("children that are an object", "/children", QJsonObject(),
           "an object stands where an array belongs");
    addRow("a child that is a text", "/children/0", u"unit"_s,
           "'unit' stands where a record belongs");
    addRow("a child without a kind", "/children/0/id", u"unit"_s, "'unit' is no id");
    addRow("a channel in lower case", "/children/0/config/channels/1", u"brown"_s,
           "'brown' is no value of Channel", "did you mean 'Brown'?");
    addRow("a channel by number", "/children/0/config/channels/0", 5, "5 stands where the name");
    addRow("channels that are a text", "/children/0/config/channels", u"Cyan"_s,
           "'Cyan' stands where an array belongs");
    addRow("an unknown screening", "/children/1/config/elaborationType", u"BilevelStandart"_s,
           "'BilevelStandart' is no value of ElaborationType", "did you mean 'BilevelStandard'?");
    addRow("an unknown level mode", "/children/1/config/levelManagementList/0", u"Binry"_s,
           "'Binry' is no value of LevelManagement", "did you mean 'Binary'?");
    addRow("a resolution that is a number", "/children/1/config/resolutionList/0", 400,
           "400 stands where an object belongs");
    addRow("a resolution in an unknown unit", "/children/1/config/resolutionList/0/unit", u"dpi"_s,
           "'dpi' is no value of ResolutionUnit", "did you mean 'DPI'?");
    addRow("a resolution as a text", "/children/1/config/resolutionList/0/x", u"400"_s,
           "'400' stands where a number belongs");
    addRow("a scroll ratio that is null", "/children/1/config/scrollRatioList/1", QJsonValue::Null,
           "null stands where a number belongs");
    addRow("a magnification as a text", "/children/1/config/magnificationMin", u"0.5"_s,
           "'0.5' stands where a number belongs");
    addRow("an image that is a text", "/config/icon/0", u"png"_s, "'png' stands where an object");
    addRow("an image without bytes", "/config/icon/0/data", u""_s, "there are no bytes");
    addRow("an image that is no Base64", "/config/icon/0/data", u"*PNG*"_s,
           "the text is no Base64");
    addRow("an image that does not decode", "/config/icon/0",
           QJsonObject{{u"format"_s, u"png"_s}, {u"data"_s, u"AAAA"_s}},
           "the image does not decode as 'png'");
    addRow("an image of another format than it says", "/config/icon/0",
           Support::with(Support::pngJson(), u"/format"_s, u"jpg"_s),
           "the image does not decode as 'jpg'");
    addRow("an image without a format", "/config/icon/0",
           Support::with(Support::pngJson(), u"/format"_s, u""_s), "the format is empty");
    addRow("an icon that is an object", "/config/icon", QJsonObject(), "an object stands where");
    addRow("an SVG that is no Base64", "/config/svgIcon", u"<svg/>"_s, "the text is no Base64");
    addRow("an SVG that is not compressed", "/config/svgIcon",
           QString::fromLatin1(QByteArray("<svg/>").toBase64()), "the bytes do not decompress");
    addRow("an SVG of another language", "/config/svgIcon",
           QString::fromLatin1(qCompress("<html/>").toBase64()), "the document is no SVG");
    addRow("an SVG cut short", "/config/svgIcon",
           QString::fromLatin1(qCompress("<svg><g>").toBase64()), "the document is no SVG");
    addRow("a metadata entry that is a number", "/metadata/0", 1,
           "1 stands where an object belongs");
    addRow("a metadata key as a number", "/metadata/0/key", 7, "7 is a JSON number");
    addRow("a metadata key below zero", "/metadata/0/key", u"-1"_s,
           "is no whole number of 64 bits");
    addRow("an unknown metadata flag", "/metadata/0/flags", u"KillOnSight"_s,
           "'KillOnSight' is no value of MetadataFlags");
    addRow("a long text is shortened", "/config/facesMode", QString(1000, u'x'),
           "x...' is no value");
}

void tst_record_check::aWrongValue_isFound()
{
    QFETCH(QString, pointer);
    QFETCH(QJsonValue, value);
    QFETCH(QString, reason);
    QFETCH(QString, hint);
    const CheckedRecord checked = checkRecord(Support::with(record(), pointer, value));
    QVERIFY(!checked.driver);
    const auto found =
        std::find_if(checked.findings.begin(), checked.findings.end(), [&](const Finding &finding) {
            return finding.severity == Severity::Error && finding.pointer == pointer
                && finding.reason.contains(reason) && finding.hint.contains(hint);
        });
    QVERIFY2(found != checked.findings.end(), qPrintable(textOf(checked.findings)));
}

void tst_record_check::whatMeansTheSame_passes_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::addColumn<QJsonValue>("value");
    const auto addRow = [](const char *name, const QString &pointer, const QJsonValue &value) {
        QTest::newRow(name) << pointer << value;
    };
    addRow("ids without braces", u"/deviceId"_s, u"5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11"_s);
    addRow("ids in capitals", u"/deviceId"_s, u"{5F0C2A52-6F4E-4D6A-9D55-2A0C5C1B7A11}"_s);
    addRow("flags in another order", u"/config/fileCompression"_s, u"Lzw,Rle"_s);
    addRow("a combination with a name", u"/config/fileCompression"_s, u"RleOnline"_s);
    addRow("blanks around a name", u"/config/printerClass"_s, u" Inkjet "_s);
    addRow("whole faces written as a fraction", u"/config/maximumFaces"_s, 4.0);
    addRow("the least number of faces", u"/config/maximumFaces"_s, -2147483648.0);
    addRow("the greatest number of faces", u"/config/maximumFaces"_s, 2147483647.0);
    addRow("the least image", u"/config/maximumImageBytes"_s, u"-9223372036854775808"_s);
    addRow("the greatest image", u"/config/maximumImageBytes"_s, u"9223372036854775807"_s);
    addRow("another time zone", u"/dateTime"_s, u"2026-11-21T10:30:00+01:00"_s);
    addRow("no images", u"/config/icon"_s, QJsonArray());
    addRow("no SVG", u"/config/svgIcon"_s, u""_s);
    addRow("no metadata", u"/metadata"_s, QJsonArray());
    addRow("an empty name", u"/name"_s, u""_s);
    addRow("a large scroll ratio", u"/children/1/config/scrollRatioList/0"_s, 1e308);
}

void tst_record_check::whatMeansTheSame_passes()
{
    QFETCH(QString, pointer);
    QFETCH(QJsonValue, value);
    const CheckedRecord checked = checkRecord(Support::with(record(), pointer, value));
    QCOMPARE(textOf(checked.findings), QString());
    QVERIFY(checked.driver);
}

void tst_record_check::whatIsNoObject_isNoRecord()
{
    for (const QJsonValue &value :
         {QJsonValue(), QJsonValue(true), QJsonValue(5), QJsonValue(u"x"_s),
          QJsonValue(QJsonArray{record()}), QJsonValue(QJsonObject())}) {
        const CheckedRecord checked = checkRecord(value);
        QVERIFY(!checked.driver);
        QVERIFY(hasErrors(checked.findings));
    }
}

void tst_record_check::findings_areAllNamedAtOnce()
{
    QJsonObject broken = Support::with(record(), u"/config/printerClass"_s, u"inkjet"_s);
    broken = Support::with(broken, u"/children/0/config/channels/0"_s, u"cyan"_s);
    broken = Support::without(broken, u"/name"_s);
    const CheckedRecord checked = checkRecord(broken);
    QCOMPARE(countErrors(checked.findings), 3);
}

QTEST_GUILESS_MAIN(tst_record_check)
#include "tst_record_check.moc"
