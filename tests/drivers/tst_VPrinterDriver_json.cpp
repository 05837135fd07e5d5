// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Drivers.h"

#include <QtTest/QTest>

using namespace Support;

namespace {

const QUuid kSpace(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);
constexpr qint64 kNoLimit = 9223372036854775807LL;

/// What a driver writes into which nothing was read.
QJsonObject fallbacks()
{
    return {{"fileProtection"_L1, u"None"_s},
            {"fileCompression"_L1, u"None"_s},
            {"printerClass"_L1, u"Inkjet"_s},
            {"facesMode"_L1, u"None"_s},
            {"maximumImageBytes"_L1, u"9223372036854775807"_s},
            {"maximumFaces"_L1, 0},
            {"experimental"_L1, false},
            {"onlineElaboration"_L1, false},
            {"onlineLinearization"_L1, false}};
}

VPrinterDriver full()
{
    VPrinterDriver driver(kSpace);
    driver.setFileProtection(PrinterFileProtection::ObfuscationOnline);
    driver.setFileCompression(PrinterFileCompression::Rle | PrinterFileCompression::Lzw);
    driver.setPrinterClass(PrinterClass::Dryjet);
    driver.setFacesMode(PrinterFacesMode::Advanced);
    driver.setMaximumImageBytes(-1);
    driver.setMaximumFaces(12345);
    driver.setExperimental(true);
    driver.setOnlineElaboration(true);
    driver.setOnlineLinearizations(true);
    return driver;
}

QString svgText(const QByteArray &svg)
{
    return QString::fromLatin1(qCompress(svg, -1).toBase64());
}

} // namespace

class tst_VPrinterDriver_json : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void json_holdsTheFields();
    void json_ofNothingTakesTheFallbacks();
    void json_takesFallbacks_data();
    void json_takesFallbacks();
    void imageBytes_surviveInFull_data();
    void imageBytes_surviveInFull();
    void svg_isWrittenCompressedAndInsteadOfImages();
    void svg_thatCannotBeDecodedIsNoIcon_data();
    void svg_thatCannotBeDecodedIsNoIcon();
    void svg_doesNotBelieveItsAnnouncedSize();
};

void tst_VPrinterDriver_json::json_holdsTheFields()
{
    const QJsonObject expected{{"fileProtection"_L1, u"ObfuscationOnline"_s},
                               {"fileCompression"_L1, u"Rle, Lzw"_s},
                               {"printerClass"_L1, u"Dryjet"_s},
                               {"facesMode"_L1, u"Advanced"_s},
                               {"maximumImageBytes"_L1, u"-1"_s},
                               {"maximumFaces"_L1, 12345},
                               {"experimental"_L1, true},
                               {"onlineElaboration"_L1, true},
                               {"onlineLinearization"_L1, true}};
    QLocale::setDefault(QLocale(u"it_IT"_s)); // No number is written the locale's way.
    QCOMPARE(innerOf(full()), expected);
    VPrinterDriver read(kSpace);
    QVERIFY(setInner(read, expected));
    QVERIFY(read == full());
}

void tst_VPrinterDriver_json::json_ofNothingTakesTheFallbacks()
{
    VPrinterDriver driver = full();
    QVERIFY(setInner(driver, {}));
    QCOMPARE(driver.printerClass(), PrinterClass::Inkjet);
    QCOMPARE(driver.facesMode(), PrinterFacesMode::None);
    QCOMPARE(driver.fileCompression(), PrinterFileCompression::None);
    QCOMPARE(driver.fileProtection(), PrinterFileProtection::None);
    QCOMPARE(driver.maximumImageBytes(), kNoLimit);
    QCOMPARE(driver.maximumFaces(), 0);
    QVERIFY(!driver.experimental());
    QVERIFY(!driver.onlineElaboration());
    QVERIFY(!driver.onlineLinearizations());
    QVERIFY(driver.icon().isNull());
    QCOMPARE(innerOf(driver), fallbacks());
}

void tst_VPrinterDriver_json::json_takesFallbacks_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("read");
    QTest::addColumn<QJsonValue>("written");
    const auto row = [](const char *name, const char *key, const QJsonValue &read,
                        const QJsonValue &written) {
        QTest::newRow(name) << QString::fromLatin1(key) << read << written;
    };
    const QJsonValue none = u"None"_s;
    const QJsonValue noLimit = QString::number(kNoLimit);
    row("class in the wrong case", "printerClass", u"plotter"_s, u"Inkjet"_s);
    row("class that is no name", "printerClass", u"Loom"_s, u"Inkjet"_s);
    row("class as digits", "printerClass", u"1"_s, u"Inkjet"_s);
    row("class as a number", "printerClass", 1, u"Inkjet"_s);
    row("class with outer blanks", "printerClass", u" Plotter\t"_s, u"Plotter"_s);
    row("faces mode in the wrong case", "facesMode", u"basic"_s, none);
    row("faces mode is null", "facesMode", QJsonValue::Null, none);
    row("compression with an unknown part", "fileCompression", u"Rle, Magic"_s, u"Rle"_s);
    row("compression without blanks", "fileCompression", u"OnlineOnly,Rle"_s, u"RleOnline"_s);
    row("compression is an array", "fileCompression", QJsonArray{u"Rle"_s}, none);
    row("protection as a number", "fileProtection", 1, none);
    row("faces with a fraction", "maximumFaces", 4.5, 0);
    row("faces out of range", "maximumFaces", 3000000000.0, 0);
    row("faces as a text", "maximumFaces", u"4"_s, 0);
    row("faces written 4.0", "maximumFaces", 4.0, 4);
    row("faces below 0", "maximumFaces", -4, -4);
    row("image bytes as digits", "maximumImageBytes", u"1048576"_s, u"1048576"_s);
    row("image bytes as a number", "maximumImageBytes", 1048576, noLimit);
    row("image bytes is null", "maximumImageBytes", QJsonValue::Null, noLimit);
    row("image bytes is a boolean", "maximumImageBytes", true, noLimit);
    row("image bytes is no number", "maximumImageBytes", u"a lot"_s, u"0"_s);
    row("image bytes is empty", "maximumImageBytes", u""_s, u"0"_s);
    row("image bytes with a fraction", "maximumImageBytes", u"1.5"_s, u"0"_s);
    row("image bytes beyond 64 bits", "maximumImageBytes", u"9223372036854775808"_s, u"0"_s);
    row("experimental is a number", "experimental", 1, false);
    row("online elaboration is a text", "onlineElaboration", u"true"_s, false);
    row("online linearisation", "onlineLinearization", true, true);
    row("online linearisation is null", "onlineLinearization", QJsonValue::Null, false);
    row("online linearisations with the s is no key", "onlineLinearizations", true,
        QJsonValue::Undefined);
    row("an unknown key is dropped", "colour", u"red"_s, QJsonValue::Undefined);
    row("icon is no array", "icon", u"png"_s, QJsonValue::Undefined);
    row("icon is an object", "icon", QJsonObject{{"format"_L1, u"png"_s}}, QJsonValue::Undefined);
    row("svg icon is no text", "svgIcon", QJsonArray(), QJsonValue::Undefined);
    row("svg icon is empty", "svgIcon", u""_s, QJsonValue::Undefined);
}

void tst_VPrinterDriver_json::json_takesFallbacks()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, read);
    QFETCH(const QJsonValue, written);
    VPrinterDriver driver = full();
    QVERIFY(setInner(driver, QJsonObject{{key, read}}));
    QJsonObject expected = fallbacks();
    expected.insert(key, written); // An undefined value is no entry.
    QCOMPARE(innerOf(driver), expected);
}

void tst_VPrinterDriver_json::imageBytes_surviveInFull_data()
{
    QTest::addColumn<qint64>("bytes");
    for (const qint64 bytes : {qint64(0), qint64(-1), (qint64(1) << 53) + 1,
                               std::numeric_limits<qint64>::min(), kNoLimit})
        QTest::addRow("%lld", static_cast<long long>(bytes)) << bytes;
}

void tst_VPrinterDriver_json::imageBytes_surviveInFull()
{
    QFETCH(const qint64, bytes);
    QLocale::setDefault(QLocale(u"de_DE"_s));
    VPrinterDriver driver(kSpace);
    driver.setMaximumImageBytes(bytes);
    QCOMPARE(innerOf(driver).value("maximumImageBytes"_L1), QJsonValue(QString::number(bytes)));
    VPrinterDriver read(kSpace);
    QVERIFY(setInner(read, innerOf(driver)));
    QCOMPARE(read.maximumImageBytes(), bytes);
}

void tst_VPrinterDriver_json::svg_isWrittenCompressedAndInsteadOfImages()
{
    const QByteArray svg("<svg xmlns='http://www.w3.org/2000/svg' width='4' height='4'/>");
    const QJsonArray images{QJsonObject{{"format"_L1, u"png"_s}, {"data"_L1, u"AAAA"_s}}};
    VPrinterDriver driver;
    QVERIFY(setInner(driver, {{"svgIcon"_L1, svgText(svg)}, {"icon"_L1, images}}));
    QJsonObject expected = fallbacks();
    expected.insert("svgIcon"_L1, svgText(svg));
    QCOMPARE(innerOf(driver), expected);
    // Equality looks at the document's bytes.
    VPrinterDriver other;
    QVERIFY(setInner(other, {{"svgIcon"_L1, svgText(svg + ' ')}}));
    QVERIFY(other != driver);
    QVERIFY(setInner(other, {{"svgIcon"_L1, svgText(svg)}}));
    QVERIFY(other == driver);
    QVERIFY(setInner(other, {}));
    QVERIFY(other != driver);
    QVERIFY(driver != other);
}

void tst_VPrinterDriver_json::svg_thatCannotBeDecodedIsNoIcon_data()
{
    QTest::addColumn<QString>("text");
    const QByteArray good = qCompress(QByteArray("<svg/>"), -1);
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << QString::fromLatin1(bytes.toBase64());
    };
    QTest::newRow("no Base64") << u"!!!"_s;
    QTest::newRow("outside Latin-1") << u"中文"_s;
    row("too short for a header", "abc");
    row("only a header", good.first(4));
    row("cut off", good.chopped(3));
    row("no stream", QByteArray(4, '\0') + "no stream at all");
    row("an empty document", qCompress(QByteArray(), -1));
}

void tst_VPrinterDriver_json::svg_thatCannotBeDecodedIsNoIcon()
{
    QFETCH(const QString, text);
    const QJsonArray images{QJsonObject{{"format"_L1, u"png"_s}, {"data"_L1, u"AAAA"_s}}};
    VPrinterDriver driver;
    // The images are not looked at either: there was a text.
    QVERIFY(setInner(driver, {{"svgIcon"_L1, text}, {"icon"_L1, images}}));
    QCOMPARE(innerOf(driver), fallbacks());
    QVERIFY(driver.icon().isNull());
}

void tst_VPrinterDriver_json::svg_doesNotBelieveItsAnnouncedSize()
{
    const QByteArray svg("<svg xmlns='http://www.w3.org/2000/svg'/>");
    for (const char *header : {"\x00\x00\x00\x00", "\x00\x00\x00\x01", "\xff\xff\xff\xff"}) {
        const QByteArray bytes = QByteArray(header, 4) + qCompress(svg, -1).sliced(4);
        VPrinterDriver driver;
        QVERIFY(setInner(driver, {{"svgIcon"_L1, QString::fromLatin1(bytes.toBase64())}}));
        QCOMPARE(innerOf(driver).value("svgIcon"_L1), QJsonValue(svgText(svg)));
    }
}

QTEST_GUILESS_MAIN(tst_VPrinterDriver_json)
#include "tst_VPrinterDriver_json.moc"
