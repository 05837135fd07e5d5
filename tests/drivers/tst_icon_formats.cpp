// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Icons.h"

#include "drivers/IconImages.h"

#include <QtGui/QPixmap>
#include <QtTest/QTest>

using namespace Support;
using Norvane::Kilnjet::IconImages;

/// Whatever a decoder gives, an image is kept as a pixmap would keep it.
class tst_icon_formats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormat_isKeptAsByAPixmap_data();
    void everyFormat_isKeptAsByAPixmap();
    void aNullImage_isIgnored();
};

void tst_icon_formats::everyFormat_isKeptAsByAPixmap_data()
{
    QTest::addColumn<QImage>("image");
    // Qt looks at the bytes behind a row, too, where rows are no whole words; these are chance.
    QImage opaque(8, 5, QImage::Format_ARGB32);
    opaque.fill(qRgba(200, 100, 50, 255));
    for (int number = QImage::Format_Invalid + 1; number < QImage::NImageFormats; ++number) {
        const auto format = QImage::Format(number);
        QTest::addRow("transparent, format %d", number) << testImage(8, 5, format);
        // Qt takes opaque images of these two for transparent ones.
        if (format != QImage::Format_ARGB8565_Premultiplied
            && format != QImage::Format_ARGB8555_Premultiplied)
            QTest::addRow("opaque, format %d", number) << opaque.convertToFormat(format);
    }
}

void tst_icon_formats::everyFormat_isKeptAsByAPixmap()
{
    QFETCH(const QImage, image);
    IconImages images;
    images.add(image);
    QCOMPARE(images.sizes(), QList<QSize>{image.size()});
    const QImage kept = images.image(image.size());
    const QImage expected = QPixmap::fromImage(image).toImage();
    QCOMPARE(kept.format(), expected.format());
    QCOMPARE(kept, expected);
}

void tst_icon_formats::aNullImage_isIgnored()
{
    IconImages images;
    images.add(QImage());
    QVERIFY(images.sizes().isEmpty());
    QVERIFY(images.image(QSize(16, 16)).isNull());
}

QTEST_MAIN(tst_icon_formats)
#include "tst_icon_formats.moc"
