// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Icons that are kept encoded must look and be stored exactly as if every image had been decoded
// into a QPixmap at once. The tests compare with that, done here the plain way.

#include "support/Drivers.h"
#include "support/Icons.h"
#include "support/Seed.h"

#include <QtGui/QColorSpace>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtTest/QTest>

using namespace Support;

namespace {

QIcon plainIcon(const QJsonArray &array)
{
    QIcon icon;
    for (const QJsonValue &element : array) {
        if (!element.isObject())
            continue;
        const QJsonObject object = element.toObject();
        const auto bytes = QByteArray::fromBase64(object.value("data"_L1).toString().toLatin1());
        const QByteArray format = object.value("format"_L1).toString().toLatin1();
        QPixmap pixmap;
        if (!bytes.isEmpty() && !format.isEmpty() && pixmap.loadFromData(bytes, format.constData()))
            icon.addPixmap(pixmap, QIcon::Normal, QIcon::Off);
    }
    return icon;
}

QList<QByteArray> plainBytes(const QIcon &icon)
{
    QList<QByteArray> list;
    for (const QSize &size : icon.availableSizes(QIcon::Normal, QIcon::Off)) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        if (icon.pixmap(size, QIcon::Normal, QIcon::Off).save(&buffer, "png", -1))
            list.append(bytes);
    }
    return list;
}

bool plainMatches(const QIcon &left, const QIcon &right)
{
    const auto sizes = left.availableSizes(QIcon::Normal, QIcon::Off);
    return std::all_of(sizes.begin(), sizes.end(), [&](const QSize &size) {
        return left.pixmap(size, QIcon::Normal, QIcon::Off).toImage()
            == right.pixmap(size, QIcon::Normal, QIcon::Off).toImage();
    });
}

VPrinterDriver driverWith(const QJsonArray &icon)
{
    VPrinterDriver driver;
    setInner(driver, innerWithIcon(icon));
    return driver;
}

VPrinterDriver driverWith(const QIcon &icon)
{
    VPrinterDriver driver = driverWith(QJsonArray());
    driver.setIcon(icon);
    return driver;
}

QJsonArray grayscale16()
{
    QImage image(5, 4, QImage::Format_Grayscale16);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 5; ++x)
            reinterpret_cast<quint16 *>(image.scanLine(y))[x] = quint16(x * 9999 + y * 777);
    }
    return {iconElement(encoded(image))};
}

QImage withColorSpace(QImage image)
{
    image.setColorSpace(QColorSpace::AdobeRgb);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(5906);
    image.setText(u"Title"_s, u"Küche"_s);
    return image;
}

QByteArray corrupted(QByteArray bytes)
{
    bytes[bytes.size() / 2] = char(~bytes.at(bytes.size() / 2));
    return bytes;
}

QImage opaqueIndexed()
{
    QImage image(8, 8, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3), qRgb(200, 100, 0), qRgba(9, 9, 9, 128)});
    image.fill(1); // The transparent colour stands in the table only.
    return image;
}

QImage almostOpaque16()
{
    QImage image(4, 4, QImage::Format_RGBA64);
    image.fill(QColor::fromRgba64(30000, 20000, 10000, 65534));
    return image;
}

} // namespace

class tst_icon_pixmaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void images_lookAndAreStoredAsPixmaps_data();
    void images_lookAndAreStoredAsPixmaps();
    void images_scaleAndMatchAsPixmaps_data();
    void images_scaleAndMatchAsPixmaps();
    void randomSetsOfSizes_behaveAsPixmaps();
    void iconOfTheHost_isStoredAndComparedAsItIs();
    void icon_isBuiltOnceAndKeepsItsCacheKey();
    void equality_looksAtTheSizesOfTheLeftOperandOnly();
};

void tst_icon_pixmaps::images_lookAndAreStoredAsPixmaps_data()
{
    QTest::addColumn<QJsonArray>("icon");
    const auto row = [](const char *name, const QJsonArray &icon) { QTest::newRow(name) << icon; };
    const auto one = [](const QImage &image, const char *format = "png") {
        return QJsonArray{iconElement(encoded(image, format), QString::fromLatin1(format))};
    };
    const QByteArray png = encoded(testImage(16, 16));
    row("no image", {});
    row("png with alpha", one(testImage(16, 16)));
    row("png without alpha", one(testImage(16, 16, QImage::Format_RGB32)));
    row("png with an alpha channel that is opaque everywhere",
        one(testImage(9, 9, QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32)));
    row("png of 16 bits with alpha", one(testImage(16, 16, QImage::Format_RGBA64)));
    row("png of 16 bits, opaque", one(testImage(16, 16, QImage::Format_RGBX64)));
    row("png of 16 bits, opaque but for the last bit", one(almostOpaque16()));
    row("png with a palette", one(testImage(16, 16, QImage::Format_Indexed8)));
    row("png with an unused transparent colour in its palette", one(opaqueIndexed()));
    row("png with gray of 8 bits", one(testImage(16, 16, QImage::Format_Grayscale8)));
    row("png with gray of 16 bits", grayscale16());
    row("png of one bit", one(testImage(17, 5, QImage::Format_Mono)));
    row("png of one bit, the other way round", one(testImage(17, 5, QImage::Format_MonoLSB)));
    row("png with a colour space, a resolution and a text", one(withColorSpace(testImage(8, 8))));
    row("jpg", one(testImage(16, 16, QImage::Format_RGB32), "jpg"));
    row("jpg in gray", one(testImage(16, 16, QImage::Format_Grayscale8), "jpg"));
    row("bmp", one(testImage(16, 16, QImage::Format_RGB32), "bmp"));
    row("bmp of one bit", one(testImage(16, 16, QImage::Format_Mono), "bmp"));
    row("xpm", one(testImage(8, 8, QImage::Format_ARGB32), "xpm"));
    row("xbm", one(testImage(8, 8, QImage::Format_Mono), "xbm"));
    row("ppm", one(testImage(8, 8, QImage::Format_RGB32), "ppm"));
    row("ico", one(testImage(16, 16), "ico"));
    row("an svg as an image",
        {iconElement("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'>"
                     "<circle cx='9' cy='9' r='7' fill='red'/></svg>",
                     u"svg"_s)});
    row("hint in capitals", {iconElement(png, u"PNG"_s)});
    row("hint that names no format", {iconElement(png, u"xyz"_s)});
    row("hint of another format", {iconElement(png, u"jpg"_s)});
    row("hint outside Latin-1", {iconElement(png, u"中文"_s)});
    row("hint with a NUL in it", {iconElement(png, u"png\u0000jpg"_s)});
    row("hint that starts with a NUL", {iconElement(png, u"\u0000"_s)});
    row("empty hint", {iconElement(png, u""_s)});
    row("no bytes", {iconElement("")});
    row("bytes that are no image", {iconElement("this is no image")});
    row("corrupted", {iconElement(corrupted(png))});
    row("cut off", {iconElement(png.first(png.size() / 2))});
    row("elements of other types", {1, u"png"_s, true, QJsonArray{iconElement(png)}, {}});
    row("format and data of other types",
        {QJsonObject{{"format"_L1, 1}, {"data"_L1, u"AAAA"_s}},
         QJsonObject{{"format"_L1, u"png"_s}, {"data"_L1, true}}, iconElement(png)});
    row("several sizes",
        {iconElement(encoded(testImage(32, 32))), iconElement(png),
         iconElement(encoded(testImage(64, 20)))});
    row("a size twice",
        {iconElement(png), iconElement(encoded(testImage(24, 24))),
         iconElement(encoded(testImage(16, 16, QImage::Format_ARGB32, 99)))});
    row("sizes of equal area",
        {iconElement(encoded(testImage(8, 2))), iconElement(encoded(testImage(4, 4))),
         iconElement(encoded(testImage(8, 2, QImage::Format_ARGB32, 5)))});
    row("a good one between bad ones",
        {iconElement("x"), iconElement(png), iconElement(corrupted(png))});
    row("a line of pixels beside a square",
        {iconElement(encoded(testImage(100, 1))), iconElement(encoded(testImage(10, 10)))});
}

void tst_icon_pixmaps::images_lookAndAreStoredAsPixmaps()
{
    QFETCH(const QJsonArray, icon);
    const QIcon expected = plainIcon(icon);
    const VPrinterDriver driver = driverWith(icon);

    const QIcon shown = driver.icon();
    QCOMPARE(shown.isNull(), expected.isNull());
    QCOMPARE(shown.availableSizes(), expected.availableSizes());
    QVERIFY(plainMatches(shown, expected) && plainMatches(expected, shown));

    QCOMPARE(iconBytes(innerOf(driver)), plainBytes(expected));
    QCOMPARE(innerOf(driver).contains("icon"_L1), !plainBytes(expected).isEmpty());
    // What a reader has written twice is read and written without a change.
    VPrinterDriver second;
    VPrinterDriver third;
    QVERIFY(setInner(second, innerOf(driver)));
    QVERIFY(setInner(third, innerOf(second)));
    QCOMPARE(innerOf(third), innerOf(second));
}

void tst_icon_pixmaps::images_scaleAndMatchAsPixmaps_data()
{
    images_lookAndAreStoredAsPixmaps_data();
}

void tst_icon_pixmaps::images_scaleAndMatchAsPixmaps()
{
    QFETCH(const QJsonArray, icon);
    QJsonArray others[] = {{},
                           {iconElement(encoded(testImage(16, 16)))},
                           {iconElement(encoded(testImage(40, 30)))},
                           {iconElement(encoded(testImage(3, 2, QImage::Format_RGB32)))},
                           icon};
    for (const QJsonArray &other : others) {
        const bool expected = plainMatches(plainIcon(icon), plainIcon(other));
        const bool reversed = plainMatches(plainIcon(other), plainIcon(icon));
        QCOMPARE(driverWith(icon) == driverWith(other), expected);
        QCOMPARE(driverWith(other) == driverWith(icon), reversed);
        // The same with one or both of the icons given by the host.
        QCOMPARE(driverWith(icon) == driverWith(plainIcon(other)), expected);
        QCOMPARE(driverWith(plainIcon(icon)) == driverWith(other), expected);
        QCOMPARE(driverWith(plainIcon(icon)) == driverWith(plainIcon(other)), expected);
    }
}

// Right operands whose images must be picked and scaled; half of them show the picture of the left.
void tst_icon_pixmaps::randomSetsOfSizes_behaveAsPixmaps()
{
    RandomDrivers random(seed());
    const auto randomIcon = [&random] {
        QJsonArray icon;
        for (int i = random.number(5); i > 0; --i) {
            const auto format = random.flag() ? QImage::Format_RGB32 : QImage::Format_ARGB32;
            icon.append(iconElement(encoded(
                testImage(1 + random.number(6), 1 + random.number(6), format, random.number(2)))));
        }
        return icon;
    };
    int equal = 0;
    for (int run = 0; run < 400; ++run) {
        const QJsonArray left = randomIcon();
        QJsonArray right = left;
        if (random.flag())
            right = {iconElement(encoded(testImage(1, 1)))};
        else
            right.append(iconElement(encoded(testImage(2, 1 + random.number(6)))));
        const bool expected = plainMatches(plainIcon(left), plainIcon(right));
        equal += expected ? 1 : 0;
        QCOMPARE(driverWith(left) == driverWith(right), expected);
        QCOMPARE(iconBytes(innerOf(driverWith(left))), plainBytes(plainIcon(left)));
    }
    QVERIFY2(equal > 20 && equal < 380, "the run must see both answers");
}

void tst_icon_pixmaps::iconOfTheHost_isStoredAndComparedAsItIs()
{
    QIcon icon;
    icon.addPixmap(QPixmap::fromImage(testImage(16, 16)));
    icon.addPixmap(QPixmap::fromImage(testImage(48, 48)));
    icon.addPixmap(QPixmap::fromImage(testImage(20, 20)), QIcon::Disabled, QIcon::On);
    VPrinterDriver driver = driverWith(icon);

    QCOMPARE(driver.icon().cacheKey(), icon.cacheKey());
    QCOMPARE(iconBytes(innerOf(driver)), plainBytes(icon));
    VPrinterDriver read;
    QVERIFY(setInner(read, innerOf(driver)));
    read.setVersion(driver.version());
    QVERIFY(driver == read);
    driver.setIcon(QIcon());
    QVERIFY(driver.icon().isNull());
    QVERIFY(!innerOf(driver).contains("icon"_L1));
}

void tst_icon_pixmaps::icon_isBuiltOnceAndKeepsItsCacheKey()
{
    const VPrinterDriver driver = driverWith({iconElement(encoded(testImage(16, 16)))});
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): copies are what is tested.
    const VPrinterDriver copy = driver;
    QCOMPARE(driver.icon().cacheKey(), driver.icon().cacheKey());
    QCOMPARE(copy.icon().cacheKey(), driver.icon().cacheKey());
}

void tst_icon_pixmaps::equality_looksAtTheSizesOfTheLeftOperandOnly()
{
    const QJsonArray small{iconElement(encoded(testImage(16, 16)))};
    QJsonArray both = small;
    both.append(iconElement(encoded(testImage(32, 32))));
    QVERIFY(driverWith(QJsonArray()) == driverWith(small));
    QVERIFY(driverWith(small) != driverWith(QJsonArray()));
    QVERIFY(driverWith(small) == driverWith(both));
    QVERIFY(driverWith(both) != driverWith(small));
}

QTEST_MAIN(tst_icon_pixmaps)
#include "tst_icon_pixmaps.moc"
