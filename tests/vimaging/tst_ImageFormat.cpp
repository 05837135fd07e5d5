// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ImageFormat.h>

#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Imaging;
using namespace Qt::StringLiterals;

namespace {

const VEnumNames &formats()
{
    return ImageFormat_T::instance().names();
}

/// What a format's name says about its pixels.
struct Shape
{
    int model = 0;
    int traits = 0;
    int channels = 0;
    int bits = 0;
};

Shape shapeFromName(const QString &name)
{
    static const QHash<QString, Shape> kColours = {
        {u"Indexed"_s, {1, 0, 1}}, {u"Gray"_s, {2, 0, 1}}, {u"GrayW"_s, {2, 4, 1}},
        {u"Rgb"_s, {3, 0, 3}},     {u"RgbX"_s, {3, 2, 4}}, {u"RgbA"_s, {3, 1, 4}},
        {u"Cmy"_s, {4, 0, 3}},     {u"Cmyk"_s, {5, 0, 4}}, {u"Lab"_s, {7, 0, 3}},
    };
    static const QRegularExpression kCounted(u"^(CmykX|MCh)(\\d)_(\\d+)bpp$"_s);
    if (const auto match = kCounted.match(name); match.hasMatch()) {
        const bool isCmyk = match.captured(1) == "CmykX"_L1;
        const int count = match.captured(2).toInt();
        return {isCmyk ? 5 : 6, 0, isCmyk ? 4 + count : count, match.captured(3).toInt()};
    }
    const QStringList parts = name.chopped(3).split(u'_');
    Shape shape = kColours.value(parts.value(0));
    shape.bits = parts.value(1).toInt();
    return shape;
}

} // namespace

// A format's number can be taken apart as the header says.
class tst_ImageFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats_areFortyNineBesideInvalid();
    void invalid_isZero();
    void code_saysWhatTheNameSays_data();
    void code_saysWhatTheNameSays();
    void channels_areEquallyWide();
    void families_areComplete_data();
    void families_areComplete();
};

void tst_ImageFormat::formats_areFortyNineBesideInvalid()
{
    QCOMPARE(formats().numbers().size(), 50);
    for (const qint64 number : formats().numbers())
        QCOMPARE(formats().names(number).size(), 1);
}

void tst_ImageFormat::invalid_isZero()
{
    QCOMPARE(int(ImageFormat::Invalid), 0);
    QCOMPARE(ImageFormat_T::instance().valueOf(u"Rgb_25bpp"_s), ImageFormat::Invalid);
}

void tst_ImageFormat::code_saysWhatTheNameSays_data()
{
    QTest::addColumn<int>("code");
    for (const qint64 number : formats().numbers()) {
        if (number != 0)
            QTest::newRow(qPrintable(formats().names(number).first())) << int(number);
    }
}

void tst_ImageFormat::code_saysWhatTheNameSays()
{
    QFETCH(const int, code);
    const Shape shape = shapeFromName(formats().names(code).first());
    QVERIFY(shape.model != 0);
    QCOMPARE(code & 0xFF, shape.bits);
    QCOMPARE((code >> 8) & 0xFF, shape.channels);
    QCOMPARE((code >> 16) & 0xF, shape.traits);
    QCOMPARE(code >> 20, shape.model);
}

void tst_ImageFormat::channels_areEquallyWide()
{
    for (const qint64 code : formats().numbers()) {
        if (code == 0)
            continue;
        const int bits = int(code & 0xFF);
        const int channels = int((code >> 8) & 0xFF);
        QCOMPARE(bits % channels, 0);
        QVERIFY(QList<int>({1, 2, 4, 8, 16, 32}).contains(bits / channels));
    }
}

void tst_ImageFormat::families_areComplete_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<int>("count");
    QTest::newRow("palettes") << u"^Indexed_"_s << 4;
    QTest::newRow("gray") << u"^Gray_"_s << 4;
    QTest::newRow("gray from white") << u"^GrayW_"_s << 4;
    QTest::newRow("RGB") << u"^Rgb[XA]?_"_s << 6;
    QTest::newRow("CMY and CMYK") << u"^Cmyk?_"_s << 4;
    QTest::newRow("CMYK with one to four more, two depths") << u"^CmykX[1-4]_"_s << 8;
    QTest::newRow("one to eight channels, two depths") << u"^MCh[1-8]_"_s << 16;
    QTest::newRow("Lab") << u"^Lab_"_s << 3;
}

void tst_ImageFormat::families_areComplete()
{
    QFETCH(const QString, pattern);
    const QRegularExpression expression(pattern);
    int count = 0;
    for (const qint64 number : formats().numbers())
        count += expression.match(formats().names(number).first()).hasMatch() ? 1 : 0;
    QTEST(count, "count");
}

QTEST_GUILESS_MAIN(tst_ImageFormat)
#include "tst_ImageFormat.moc"
