// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A process without a GUI, where any use of a pixmap would abort: records with icons are read,
// copied, compared, validated and written all the same, on any thread.

#include "support/Drivers.h"
#include "support/IcoFiles.h"
#include "support/Icons.h"
#include "support/Threads.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtTest/QTest>

#include <memory>
#include <vector>

using namespace Support;

namespace {

const QByteArray kSvg("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'>"
                      "<text x='1' y='15'>A</text></svg>");

VPrinterDriver driverWith(const QJsonArray &icon)
{
    VPrinterDriver driver = validPrinter(QUuid(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s));
    setInner(driver, innerWithIcon(icon));
    return driver;
}

QJsonArray twoImages()
{
    return {iconElement(encoded(testImage(16, 16))),
            iconElement(encoded(testImage(32, 32, QImage::Format_RGB32), "jpg"), u"jpg"_s)};
}

QImage decodedPng(const QByteArray &bytes)
{
    return QImage::fromData(bytes, "png");
}

QString written(const QTemporaryDir &dir, const QString &name, const QByteArray &bytes)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

/// An .ico of images that are PNGs themselves, as its format allows.
QByteArray icoOf(const QList<QImage> &images)
{
    QByteArray directory;
    QByteArray data;
    QDataStream out(&directory, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(images.size());
    for (const QImage &image : images) {
        const QByteArray png = encoded(image);
        out << quint8(image.width()) << quint8(image.height()) << quint8(0) << quint8(0);
        out << quint16(1) << quint16(32) << quint32(png.size());
        out << quint32(6 + 16 * images.size() + data.size());
        data += png;
    }
    return directory + data;
}

} // namespace

class tst_icon_without_gui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void records_areHandledWhole();
    void records_areHandledOnThePool();
    void copies_areUsedOnSeveralThreadsAtOnce();
    void images_areWrittenAsPngOfEachSize();
    void icon_isEmpty();
    void vectorImages_areKeptAsTheyCame();
    void imageFile_isRead();
    void imageFile_ofSeveralSizesIsReadWhole();
    void imageFile_givesTheDeepestImageOfASize_data();
    void imageFile_givesTheDeepestImageOfASize();
    void imageFile_thatIsNoneGivesNoIcon();
    void svgFile_isKept();
    void iconOfTheHost_isNotWritten();
};

void tst_icon_without_gui::records_areHandledWhole()
{
    const VPrinterDriver driver = driverWith(twoImages());
    QVERIFY(driver.isValid());
    QVERIFY(!driver.isEmpty());
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): copies are what is tested.
    const VPrinterDriver copy = driver;
    QVERIFY(copy == driver);
    QCOMPARE(copy.dataId(), driver.dataId());
    VPrinterDriver read;
    QVERIFY(read.setJsonObject(driver.toJsonObject()));
    QVERIFY(read == driver);
    QVERIFY(driver == read);
    QCOMPARE(read.toJsonObject(), driver.toJsonObject());
    QCOMPARE(read.hash(), driver.hash());
    QVERIFY(driver != driverWith({iconElement(encoded(testImage(16, 16)))}));
    QVERIFY(driverWith({}) == driver);
    QVERIFY(driver != driverWith({}));
}

void tst_icon_without_gui::records_areHandledOnThePool()
{
    bool done = false;
    onThePool([&] {
        records_areHandledWhole();
        images_areWrittenAsPngOfEachSize();
        done = true;
    });
    QVERIFY(done);
}

// Copies share their images and what has been made of them; run it under a thread sanitizer.
void tst_icon_without_gui::copies_areUsedOnSeveralThreadsAtOnce()
{
    const VPrinterDriver driver = driverWith(twoImages());
    const QJsonObject expected = innerOf(driverWith(twoImages()));
    std::vector<VPrinterDriver> copies(8, driver);
    std::atomic<int> good = 0;
    inThreads(8, [&](int i) {
        VPrinterDriver &copy = copies[size_t(i)];
        const VPrinterDriver second = copy;
        const bool same = innerOf(copy) == expected && second == copy;
        copy.setName(u"Another"_s);
        copy.setMaximumFaces(7);
        copy.setIcon(QIcon());
        good += same && second.maximumFaces() == 0 ? 1 : 0;
    });
    QCOMPARE(good.load(), 8);
    QVERIFY(innerOf(driver).contains("icon"_L1));
}

void tst_icon_without_gui::images_areWrittenAsPngOfEachSize()
{
    const QJsonObject inner = innerOf(driverWith(twoImages()));
    const QList<QByteArray> images = iconBytes(inner);
    QCOMPARE(images.size(), 2);
    QCOMPARE(inner.value("icon"_L1)[0]["format"_L1], QJsonValue(u"png"_s));
    QCOMPARE(inner.value("icon"_L1)[1]["format"_L1], QJsonValue(u"png"_s));
    QCOMPARE(decodedPng(images.at(0)).size(), QSize(16, 16));
    const QImage jpg = QImage::fromData(iconBytes(innerWithIcon(twoImages())).at(1), "jpg");
    QCOMPARE(decodedPng(images.at(1)).convertToFormat(QImage::Format_RGB32),
             jpg.convertToFormat(QImage::Format_RGB32));
    QVERIFY(!innerOf(driverWith({iconElement("no image")})).contains("icon"_L1));
}

void tst_icon_without_gui::icon_isEmpty()
{
    QVERIFY(driverWith(twoImages()).icon().isNull());
    VPrinterDriver svg;
    const QString text = QString::fromLatin1(qCompress(kSvg, -1).toBase64());
    QVERIFY(setInner(svg, {{"svgIcon"_L1, text}}));
    QVERIFY(svg.icon().isNull());
    QCOMPARE(innerOf(svg).value("svgIcon"_L1), QJsonValue(text));
}

// A drawing may hold text, which needs fonts, which need a GUI: it waits for a process that has
// one.
void tst_icon_without_gui::vectorImages_areKeptAsTheyCame()
{
    for (const QString &hint : {u"svg"_s, u"SVG"_s, u"xyz"_s}) {
        const QJsonArray icon{iconElement(kSvg, hint), iconElement(encoded(testImage(16, 16)))};
        const VPrinterDriver driver = driverWith(icon);
        QCOMPARE(innerOf(driver).value("icon"_L1), QJsonValue(icon));
        QVERIFY(driver == driverWith(icon));
        QVERIFY(driver != driverWith({}));
    }
}

void tst_icon_without_gui::imageFile_isRead()
{
    const QTemporaryDir dir;
    const QImage image = testImage(24, 24, QImage::Format_RGB32);
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"printer.bmp"_s, encoded(image, "bmp")));
    const QList<QByteArray> images = iconBytes(innerOf(driver));
    QCOMPARE(images.size(), 1);
    QCOMPARE(decodedPng(images.first()).convertToFormat(QImage::Format_RGB32), image);
    // The suffix decides only about SVG.
    VPrinterDriver other;
    other.setIcon(written(dir, u"printer.dat"_s, encoded(image, "bmp")));
    QVERIFY(innerOf(other) == innerOf(driver));
    QVERIFY(driver == other);
}

void tst_icon_without_gui::imageFile_ofSeveralSizesIsReadWhole()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"printer.ico"_s,
                           icoOf({testImage(16, 16), testImage(32, 32), testImage(16, 16)})));
    QList<QSize> sizes;
    for (const QByteArray &bytes : iconBytes(innerOf(driver)))
        sizes.append(decodedPng(bytes).size());
    QCOMPARE(sizes, (QList{QSize(16, 16), QSize(32, 32)}));
}

void tst_icon_without_gui::imageFile_givesTheDeepestImageOfASize_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("the deeper one comes last") << icoWith({1, 32}) << QColor(Qt::red);
    QTest::newRow("the deeper one comes first") << icoWith({32, 1}) << QColor(Qt::red);
    QTest::newRow("the deeper one is cut off")
        << icoWith({1, 32}).chopped(1000) << QColor(Qt::black);
}

void tst_icon_without_gui::imageFile_givesTheDeepestImageOfASize()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QColor, colour);
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"printer.ico"_s, content));
    const QList<QByteArray> images = iconBytes(innerOf(driver));
    QCOMPARE(images.size(), 1);
    const QImage image = QImage::fromData(images.first(), "png");
    QCOMPARE(image.size(), QSize(16, 16));
    QCOMPARE(image.pixelColor(8, 8), colour);
}

void tst_icon_without_gui::imageFile_thatIsNoneGivesNoIcon()
{
    const QTemporaryDir dir;
    for (const QString &path :
         {dir.filePath(u"missing.png"_s), dir.path(), written(dir, u"text.png"_s, "no image"),
          written(dir, u"empty.png"_s, ""), QString()}) {
        VPrinterDriver driver = driverWith(twoImages());
        driver.setIcon(path);
        QVERIFY(!innerOf(driver).contains("icon"_L1));
    }
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"drawing.dat"_s, kSvg));
    QCOMPARE(iconBytes(innerOf(driver)), QList{kSvg}); // Kept for a process that can draw it.
}

void tst_icon_without_gui::svgFile_isKept()
{
    const QTemporaryDir dir;
    VPrinterDriver driver = driverWith(twoImages());
    driver.setIcon(written(dir, u"Printer.SVG"_s, kSvg));
    QVERIFY(!innerOf(driver).contains("icon"_L1));
    QCOMPARE(qUncompress(
                 QByteArray::fromBase64(innerOf(driver).value("svgIcon"_L1).toString().toLatin1())),
             kSvg);
    const QJsonObject before = innerOf(driver);
    driver.setIcon(dir.filePath(u"missing.svg"_s)); // Changes nothing.
    QCOMPARE(innerOf(driver), before);
    driver.setIcon(dir.filePath(u"missing.png"_s)); // An image file that is missing does.
    QVERIFY(!innerOf(driver).contains("svgIcon"_L1));
}

void tst_icon_without_gui::iconOfTheHost_isNotWritten()
{
    VPrinterDriver driver = driverWith(twoImages());
    driver.setIcon(QIcon(u":/no/such/image.png"_s));
    const VPrinterDriver copy = driver;
    QVERIFY(!innerOf(copy).contains("icon"_L1));
    QVERIFY(copy.icon().isNull());
    QVERIFY(copy == driverWith(twoImages()));
    driver.setIcon(QIcon());
    QVERIFY(!innerOf(driver).contains("icon"_L1));
}

QTEST_GUILESS_MAIN(tst_icon_without_gui)
#include "tst_icon_without_gui.moc"
