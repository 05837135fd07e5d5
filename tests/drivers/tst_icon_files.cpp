// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Icons from files and from SVG documents, in a process with a GUI.

#include "support/Drivers.h"
#include "support/IcoFiles.h"
#include "support/Icons.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtTest/QTest>

using namespace Support;

namespace {

const QByteArray kSvg("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'>"
                      "<rect width='20' height='20' fill='#ff0000'/></svg>");

QString written(const QTemporaryDir &dir, const QString &name, const QByteArray &bytes)
{
    const QString path = dir.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
}

QByteArray svgOf(const VPrinterDriver &driver)
{
    const QString text = innerOf(driver).value("svgIcon"_L1).toString();
    return text.isEmpty() ? QByteArray() : qUncompress(QByteArray::fromBase64(text.toLatin1()));
}

const QList<QSize> &svgSizes()
{
    static const QList<QSize> kSizes{{16, 16},   {24, 24},   {32, 32},    {48, 48},
                                     {64, 64},   {72, 72},   {96, 96},    {128, 128},
                                     {256, 256}, {512, 512}, {1024, 1024}};
    return kSizes;
}

} // namespace

class tst_icon_files : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void svgFile_isKnownByItsSuffixInAnyCase_data();
    void svgFile_isKnownByItsSuffixInAnyCase();
    void svgFile_thatCannotBeOpenedChangesNothing();
    void svgIcon_isDrawnInItsOwnColoursAtEverySize();
    void svgIcon_thatIsNoDrawingIsAnEmptyIcon();
    void svgIcon_leavesNoFileBehind();
    void svgIcon_withoutATemporaryFileIsAnEmptyIcon();
    void imageFile_isWhatQIconReadsFromIt();
    void icoFile_isWhatQIconReadsFromIt_data();
    void icoFile_isWhatQIconReadsFromIt();
    void imageFile_isStoredAsItWasWhenItWasSet();
    void settingOneIcon_clearsTheOther();
};

void tst_icon_files::svgFile_isKnownByItsSuffixInAnyCase_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isSvg");
    const QByteArray png = encoded(testImage(16, 16));
    QTest::newRow("svg") << u"a.svg"_s << kSvg << true;
    QTest::newRow("SVG") << u"a.SVG"_s << kSvg << true;
    QTest::newRow("Svg after other dots") << u"a.png.b.Svg"_s << kSvg << true;
    QTest::newRow("svg whatever it holds") << u"b.svg"_s << png << true;
    QTest::newRow("png") << u"a.png"_s << png << false;
    QTest::newRow("png of that name in a folder with a dot") << u"c.png"_s << png << false;
    QTest::newRow("no suffix") << u"svg"_s << png << false;
}

void tst_icon_files::svgFile_isKnownByItsSuffixInAnyCase()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    QFETCH(const bool, isSvg);
    const QTemporaryDir dir(QDir::tempPath() + u"/icons.svg-XXXXXX"_s);
    VPrinterDriver driver;
    driver.setIcon(written(dir, name, content));
    QCOMPARE(svgOf(driver), isSvg ? content : QByteArray());
    QCOMPARE(innerOf(driver).contains("icon"_L1), !isSvg);
}

void tst_icon_files::svgFile_thatCannotBeOpenedChangesNothing()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(QIcon(QPixmap::fromImage(testImage(16, 16))));
    const QJsonObject before = innerOf(driver);
    driver.setIcon(dir.filePath(u"missing.svg"_s));
    QVERIFY(QDir(dir.path()).mkdir(u"folder.svg"_s));
    driver.setIcon(dir.filePath(u"folder.svg"_s));
    QCOMPARE(innerOf(driver), before);
    QVERIFY(!driver.icon().isNull());
}

void tst_icon_files::svgIcon_isDrawnInItsOwnColoursAtEverySize()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"a.svg"_s, kSvg));
    const QIcon icon = driver.icon();
    QCOMPARE(icon.availableSizes(), svgSizes());
    const QImage image = icon.pixmap(QSize(48, 48), 1.0).toImage();
    QCOMPARE(image.pixelColor(24, 24), QColor(Qt::red));
    QVERIFY(driver.icon().cacheKey() != icon.cacheKey()); // Drawn anew: nothing is kept.
    // The document is in the record: its file may go.
    QVERIFY(QFile::remove(dir.filePath(u"a.svg"_s)));
    QCOMPARE(driver.icon().availableSizes(), svgSizes());
}

void tst_icon_files::svgIcon_thatIsNoDrawingIsAnEmptyIcon()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"a.svg"_s, "this is no drawing"));
    QVERIFY(driver.icon().isNull());
    QCOMPARE(svgOf(driver), QByteArray("this is no drawing"));
}

void tst_icon_files::svgIcon_leavesNoFileBehind()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"a.svg"_s, kSvg));
    const QTemporaryDir temporary;
    const QByteArray usual = qgetenv("TMPDIR");
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    const bool isDrawn = !driver.icon().isNull();
    usual.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", usual);
    QVERIFY(isDrawn);
    QVERIFY(QDir(temporary.path()).isEmpty());
}

void tst_icon_files::svgIcon_withoutATemporaryFileIsAnEmptyIcon()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"a.svg"_s, kSvg));
    const QString usual = QCoreApplication::applicationName();
    QCoreApplication::setApplicationName(u"no/such/folder"_s); // Temporary files are called so.
    const bool isDrawn = !driver.icon().isNull();
    QCoreApplication::setApplicationName(usual);
    QVERIFY(!isDrawn);
    QVERIFY(!driver.icon().isNull());
}

void tst_icon_files::imageFile_isWhatQIconReadsFromIt()
{
    const QTemporaryDir dir;
    const QString path = written(dir, u"a.png"_s, encoded(testImage(40, 30)));
    VPrinterDriver driver;
    driver.setIcon(path);
    QCOMPARE(driver.icon().availableSizes(), QIcon(path).availableSizes());
    QCOMPARE(driver.icon().pixmap(QSize(40, 30), 1.0).toImage(),
             QIcon(path).pixmap(QSize(40, 30), 1.0).toImage());
    driver.setIcon(dir.filePath(u"missing.png"_s));
    QVERIFY(driver.icon().availableSizes().isEmpty());
    QVERIFY(!innerOf(driver).contains("icon"_L1));
}

void tst_icon_files::icoFile_isWhatQIconReadsFromIt_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QColor>("colour");
    QTest::newRow("one image") << icoWith({32}) << QColor(Qt::red);
    QTest::newRow("the deeper one comes last") << icoWith({1, 32}) << QColor(Qt::red);
    QTest::newRow("the deeper one comes first") << icoWith({32, 1}) << QColor(Qt::red);
    QTest::newRow("two of one depth") << icoWith({1, 1}) << QColor(Qt::black);
    QTest::newRow("the second is cut off") << icoWith({1, 32}).chopped(1000) << QColor(Qt::black);
}

void tst_icon_files::icoFile_isWhatQIconReadsFromIt()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QColor, colour);
    const QTemporaryDir dir;
    const QString path = written(dir, u"a.ico"_s, content);
    VPrinterDriver driver;
    driver.setIcon(path);
    QCOMPARE(driver.icon().availableSizes(), QList<QSize>{QSize(16, 16)});
    const QImage image = driver.icon().pixmap(QSize(16, 16), 1.0).toImage();
    QCOMPARE(image.pixelColor(8, 8), colour);
    QCOMPARE(image, QIcon(path).pixmap(QSize(16, 16), 1.0).toImage());
}

void tst_icon_files::imageFile_isStoredAsItWasWhenItWasSet()
{
    const QTemporaryDir dir;
    const QString path = written(dir, u"a.png"_s, encoded(testImage(40, 30)));
    VPrinterDriver driver;
    driver.setIcon(path);
    QVERIFY(QFile::remove(path));
    QCOMPARE(iconBytes(innerOf(driver)).size(), 1);
}

void tst_icon_files::settingOneIcon_clearsTheOther()
{
    const QTemporaryDir dir;
    VPrinterDriver driver;
    driver.setIcon(written(dir, u"a.svg"_s, kSvg));
    driver.setIcon(QIcon(QPixmap::fromImage(testImage(16, 16))));
    QVERIFY(svgOf(driver).isEmpty());
    QVERIFY(innerOf(driver).contains("icon"_L1));
    driver.setIcon(dir.filePath(u"a.svg"_s));
    QCOMPARE(svgOf(driver), kSvg);
    QVERIFY(!innerOf(driver).contains("icon"_L1));
    driver.setIcon(written(dir, u"a.png"_s, encoded(testImage(16, 16))));
    QVERIFY(svgOf(driver).isEmpty());
    driver.setIcon(dir.filePath(u"a.svg"_s));
    driver.setIcon(QIcon());
    QVERIFY(svgOf(driver).isEmpty());
    QVERIFY(driver.icon().isNull());
}

QTEST_MAIN(tst_icon_files)
#include "tst_icon_files.moc"
