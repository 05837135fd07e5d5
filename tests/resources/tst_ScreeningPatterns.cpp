// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The patterns are images that a stranger's reader opens, and grey as their names say.

#include "resources/ScreeningFiles.h"

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <array>
#include <cstdarg>
#include <cstdint>
#include <memory>
#include <tiffio.h>

using namespace Screening;

namespace {

constexpr int kSide = 20;

using Image = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

Image open(const QString &path)
{
    return {TIFFOpen(QFile::encodeName(folder().filePath(path)).constData(), "r"), &TIFFClose};
}

int complaints = 0;

void complain(const char *, const char *, std::va_list)
{
    ++complaints;
}

void addPatterns()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = patterns();
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path)) << path;
}

/// How many pixels have each grey value.
QMap<int, int> histogram(TIFF *image)
{
    QMap<int, int> counts;
    for (uint32_t y = 0; y < kSide; ++y) {
        std::array<uchar, kSide> row{};
        if (TIFFReadScanline(image, row.data(), y) != 1)
            return {};
        for (const uchar grey : row)
            ++counts[grey];
    }
    return counts;
}

} // namespace

class tst_ScreeningPatterns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPattern_is20By20PixelsOf8Bits_data() { addPatterns(); }
    void everyPattern_is20By20PixelsOf8Bits();
    void everyPattern_tellsTheResolutionOfItsFolder_data() { addPatterns(); }
    void everyPattern_tellsTheResolutionOfItsFolder();
    void everyPattern_usesItsStepsEvenly_data() { addPatterns(); }
    void everyPattern_usesItsStepsEvenly();
    void noPattern_equalsAnother();
};

void tst_ScreeningPatterns::initTestCase()
{
    TIFFSetWarningHandler(complain);
    TIFFSetErrorHandler(complain);
}

void tst_ScreeningPatterns::everyPattern_is20By20PixelsOf8Bits()
{
    QFETCH(QString, path);
    complaints = 0;
    const Image image = open(path);
    QVERIFY(image);
    uint32_t width = 0;
    uint32_t height = 0;
    uint16_t bits = 0;
    uint16_t samples = 0;
    uint16_t photometric = 0;
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_IMAGEWIDTH, &width), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_IMAGELENGTH, &height), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_BITSPERSAMPLE, &bits), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_SAMPLESPERPIXEL, &samples), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_PHOTOMETRIC, &photometric), 1);
    QCOMPARE(width, uint32_t(kSide));
    QCOMPARE(height, uint32_t(kSide));
    QCOMPARE(bits, uint16_t(8));
    QCOMPARE(samples, uint16_t(1));
    QCOMPARE(photometric, uint16_t(PHOTOMETRIC_MINISBLACK));
    QVERIFY(!histogram(image.get()).isEmpty());
    QCOMPARE(TIFFReadDirectory(image.get()), 0);
    QCOMPARE(complaints, 0);
}

void tst_ScreeningPatterns::everyPattern_tellsTheResolutionOfItsFolder()
{
    QFETCH(QString, path);
    const Image image = open(path);
    QVERIFY(image);
    uint16_t unit = 0;
    float across = 0;
    float down = 0;
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_RESOLUTIONUNIT, &unit), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_XRESOLUTION, &across), 1);
    QCOMPARE(TIFFGetField(image.get(), TIFFTAG_YRESOLUTION, &down), 1);
    QCOMPARE(unit, uint16_t(RESUNIT_INCH));
    QCOMPARE(across, path.section(u'/', 1, 1).toFloat());
    QCOMPARE(down, across);
}

void tst_ScreeningPatterns::everyPattern_usesItsStepsEvenly()
{
    QFETCH(QString, path);
    static const QRegularExpression form(u"_S(\\d+)M\\d+P\\d+_"_s);
    const int steps = form.match(path).captured(1).toInt();
    QVERIFY(steps > 1);
    const Image image = open(path);
    QVERIFY(image);
    const QMap<int, int> counts = histogram(image.get());
    QCOMPARE(counts.size(), steps);
    QCOMPARE(counts.firstKey(), 0);
    QCOMPARE(counts.lastKey(), 255);
    for (const int count : counts)
        QVERIFY(count == kSide * kSide / steps || count == kSide * kSide / steps + 1);
}

void tst_ScreeningPatterns::noPattern_equalsAnother()
{
    QMap<QByteArray, QString> seen;
    const QStringList paths = patterns();
    for (const QString &path : paths) {
        const QByteArray bytes = bytesOf(path);
        QVERIFY2(!seen.contains(bytes), qPrintable(path + u" equals "_s + seen.value(bytes)));
        seen.insert(bytes, path);
    }
    QVERIFY(!seen.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ScreeningPatterns)
#include "tst_ScreeningPatterns.moc"
