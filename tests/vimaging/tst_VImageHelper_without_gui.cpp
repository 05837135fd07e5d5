// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/VImageHelper.h>

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Norvane::Imaging::VImageHelper;

class tst_VImageHelper_without_gui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void icon_isEmptyWhereAPixmapWouldAbort();
};

void tst_VImageHelper_without_gui::icon_isEmptyWhereAPixmapWouldAbort()
{
    const QTemporaryDir dir;
    QFile file(dir.filePath(u"drawing.svg"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("<svg xmlns='http://www.w3.org/2000/svg' width='20' height='20'>"
                       "<text x='1' y='15'>A</text></svg>")
            > 0);
    file.close();
    QVERIFY(VImageHelper::iconFromSvg(file.fileName(), QColor::fromRgba(0), {16}).isNull());
}

QTEST_GUILESS_MAIN(tst_VImageHelper_without_gui)
#include "tst_VImageHelper_without_gui.moc"
