// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/VImageHelper.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QPixmap>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Norvane::Imaging::VImageHelper;

namespace {

/// A red left half and a half transparent blue right half, twice as wide as high.
const QByteArray kDrawing("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 10'>"
                          "<rect width='10' height='10' fill='#ff0000'/>"
                          "<rect x='10' width='10' height='10' fill='#0000ff' fill-opacity='.5'/>"
                          "</svg>");
const QColor kOwnColours = QColor::fromRgba(0);

QImage imageOf(const QIcon &icon, int size)
{
    return icon.pixmap(QSize(size, size), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class tst_VImageHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void icon_hasASquareImageOfEachSizeInOrder();
    void drawing_keepsItsProportionsInTheMiddle();
    void drawing_keepsItsColoursWhenTheColourIsTransparent();
    void drawing_isTintedByAnyOtherColour();
    void size_belowOneIsSkipped();
    void drawing_mayBeCompressed();
    void drawing_mayHoldText();
    void drawing_withoutAViewBoxFillsItsSize();
    void file_thatIsNoDrawingGivesAnEmptyIcon_data();
    void file_thatIsNoDrawingGivesAnEmptyIcon();

private:
    QString file(const QByteArray &bytes)
    {
        const QString path = m_dir.filePath(u"%1.svg"_s.arg(++m_files));
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path
                                                                                    : QString();
    }

    QTemporaryDir m_dir;
    int m_files = 0;
};

void tst_VImageHelper::icon_hasASquareImageOfEachSizeInOrder()
{
    const QIcon icon = VImageHelper::iconFromSvg(file(kDrawing), kOwnColours, {64, 16, 32});
    QCOMPARE(icon.availableSizes(), (QList{QSize(64, 64), QSize(16, 16), QSize(32, 32)}));
    QVERIFY(VImageHelper::iconFromSvg(file(kDrawing), kOwnColours, {}).isNull());
}

void tst_VImageHelper::drawing_keepsItsProportionsInTheMiddle()
{
    const QImage image = imageOf(VImageHelper::iconFromSvg(file(kDrawing), kOwnColours, {40}), 40);
    for (const int x : {0, 10, 20, 39}) {
        QCOMPARE(qAlpha(image.pixel(x, 5)), 0);
        QCOMPARE(qAlpha(image.pixel(x, 34)), 0);
        QVERIFY(qAlpha(image.pixel(x, 20)) != 0);
    }
}

void tst_VImageHelper::drawing_keepsItsColoursWhenTheColourIsTransparent()
{
    for (const QColor &color : {kOwnColours, QColor(Qt::transparent), QColor(0, 255, 0, 0)}) {
        const QImage image = imageOf(VImageHelper::iconFromSvg(file(kDrawing), color, {40}), 40);
        QCOMPARE(image.pixelColor(5, 20), QColor(Qt::red));
        QVERIFY(image.pixelColor(35, 20).blue() > 250);
        QVERIFY(qAbs(image.pixelColor(35, 20).alpha() - 128) < 3);
    }
}

void tst_VImageHelper::drawing_isTintedByAnyOtherColour()
{
    const QColor green(0, 255, 0);
    const QImage image = imageOf(VImageHelper::iconFromSvg(file(kDrawing), green, {40}), 40);
    QCOMPARE(image.pixelColor(5, 20), green);
    QVERIFY(qAbs(image.pixelColor(35, 20).alpha() - 128) < 3); // The shape stays.
    QVERIFY(image.pixelColor(35, 20).green() > 250 && image.pixelColor(35, 20).blue() < 5);
    QCOMPARE(qAlpha(image.pixel(5, 2)), 0);
}

void tst_VImageHelper::size_belowOneIsSkipped()
{
    const QIcon icon = VImageHelper::iconFromSvg(file(kDrawing), kOwnColours, {0, -16, 16});
    QCOMPARE(icon.availableSizes(), QList{QSize(16, 16)});
    QVERIFY(VImageHelper::iconFromSvg(file(kDrawing), kOwnColours, {0, -1}).isNull());
}

void tst_VImageHelper::drawing_mayBeCompressed()
{
    // A drawing of a square, as gzip.
    const QByteArray gzip =
        QByteArray::fromBase64("H4sIAAAAAAACA7MpLktXqMjNySu2Vc8oKSmw0tcvLy/XKzfWyy9K1zcyMDDQB6"
                               "pQVyjPTCnJsFW3VFfISM1MzygBMe1silKTS7BK6dvZgPTZAQAweXKDXwAAAA==");
    const QIcon icon = VImageHelper::iconFromSvg(file(gzip), kOwnColours, {16});
    QCOMPARE(imageOf(icon, 16).pixelColor(8, 8), QColor(Qt::black));
}

void tst_VImageHelper::drawing_mayHoldText()
{
    const QByteArray drawing("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'>"
                             "<text x='1' y='15'>A</text></svg>");
    QVERIFY(!VImageHelper::iconFromSvg(file(drawing), kOwnColours, {16}).isNull());
}

void tst_VImageHelper::drawing_withoutAViewBoxFillsItsSize()
{
    const QByteArray drawing("<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
                             "<rect width='8' height='8' fill='#ff0000'/></svg>");
    const QImage image = imageOf(VImageHelper::iconFromSvg(file(drawing), kOwnColours, {32}), 32);
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::red));
    QCOMPARE(image.pixelColor(30, 30), QColor(Qt::red));
}

void tst_VImageHelper::file_thatIsNoDrawingGivesAnEmptyIcon_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << m_dir.filePath(u"missing.svg"_s);
    QTest::newRow("a folder") << m_dir.path();
    QTest::newRow("no name") << QString();
    QTest::newRow("empty") << file("");
    QTest::newRow("no XML") << file("this is no drawing");
    QTest::newRow("other XML") << file("<html><body/></html>");
    QTest::newRow("cut off") << file(kDrawing.first(kDrawing.size() / 2));
}

void tst_VImageHelper::file_thatIsNoDrawingGivesAnEmptyIcon()
{
    QFETCH(const QString, path);
    QVERIFY(VImageHelper::iconFromSvg(path, kOwnColours, {16, 32}).isNull());
}

QTEST_MAIN(tst_VImageHelper)
#include "tst_VImageHelper.moc"
