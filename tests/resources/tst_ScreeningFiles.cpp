// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Which screening files the library carries, and how they begin: what holds for any set of them.

#include "resources/ScreeningFiles.h"

#include <QtTest/QTest>

using namespace Screening;

namespace {

/// The names of the cells in the folder, separated by spaces, with the folder and extension.
QStringList paths(const QString &folder, const QString &names, const QString &extension)
{
    QStringList paths;
    const QStringList bases = names.simplified().split(u' ');
    for (const QString &base : bases)
        paths.append(folder + base + extension);
    return paths;
}

QStringList expectedCells()
{
    return paths({},
                 u"H_C2_26 H_C2_63 H_C2_90 H_C2_116 H_C2_153 "
                 "H_C3_18 H_C3_72 H_C3_90 H_C3_108 H_C3_162 "
                 "H_C4_18 H_C4_45 H_C4_72 H_C4_90 H_C5_14 H_C5_45 H_C5_75 H_C5_90 "
                 "F_C2_26 F_C2_45 F_C2_63 F_C2_90 "
                 "UV_C2_1_33 UV_C2_2_56 UV_C2_3_45 UV_C2_4_108 "
                 "WP1_C8_15 WP1_C8_45 WP1_C8_75 WP1_C8_90 "
                 "WP2_C8_15 WP2_C8_45 WP2_C8_75 WP2_C8_90 "
                 "WP1_C08_45_DIAMOND WP1_C10_45_DIAMOND "
                 "WP1_C12_45_DIAMOND WP1_C14_45_DIAMOND CG_C12_14"_s,
                 u".ht3"_s)
        + paths({},
                u"L_C5_45_DIAMOND L_C7_45_DIAMOND L_C9_45_DIAMOND L_C11_45_DIAMOND "
                "L_C7_45_ROUND"_s,
                u".ht"_s);
}

QStringList expectedDiffusionCells()
{
    const QString diffusion = u"diffusion/"_s;
    return paths(diffusion,
                 u"H_C2_26 H_C2_63 H_C2_90 H_C2_116 H_C2_153 "
                 "H_C3_18 H_C3_72 H_C3_90 H_C3_108 H_C3_162 "
                 "H_C4_18 H_C4_45 H_C4_72 H_C4_90 "
                 "F_C2_26 F_C2_45 F_C2_63 F_C2_90"_s,
                 u".ht3"_s)
        + paths(diffusion, u"L_C5_45_DIAMOND L_C7_45_DIAMOND L_C9_45_DIAMOND L_C7_45_ROUND"_s,
                u".ht"_s);
}

QStringList expectedPatterns()
{
    return paths(u"patterns/781.5/"_s,
                 u"Aom_S32M11P11_A Aom_S32M13P3_A Aom_S32M15P3_A "
                 "Aom_S32M15P11_A Aom_S32M17P3_A Aom_S32M21P11_A"_s,
                 u".tif"_s);
}

} // namespace

class tst_ScreeningFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFolder_holdsTheseFilesAndNothingBesides();
    void cells_beginWithTheBytesOfTheirKind();
    void cellsForDiffusion_areOthersAndShorter();
};

void tst_ScreeningFiles::theFolder_holdsTheseFilesAndNothingBesides()
{
    QStringList expected = expectedCells() + expectedDiffusionCells() + expectedPatterns();
    QCOMPARE(expected.size(), 44 + 22 + 6);
    expected += {u"README.md"_s, u"generate.py"_s};
    expected.sort();
    QCOMPARE(files(folder(), {u"*"_s}), expected);
}

void tst_ScreeningFiles::cells_beginWithTheBytesOfTheirKind()
{
    const QStringList cells = expectedCells() + expectedDiffusionCells();
    for (const QString &path : cells) {
        const QByteArray magic = path.endsWith(".ht3"_L1) ? "ab56aa55" : "aa55aa55";
        QVERIFY2(bytesOf(path).first(4).toHex() == magic, qPrintable(path));
    }
}

void tst_ScreeningFiles::cellsForDiffusion_areOthersAndShorter()
{
    const QStringList cells = expectedDiffusionCells();
    for (const QString &path : cells) {
        const qsizetype size = bytesOf(path).size();
        const qsizetype other = bytesOf(path.sliced(path.indexOf(u'/') + 1)).size();
        QVERIFY2(size > 4 && size < other, qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(tst_ScreeningFiles)
#include "tst_ScreeningFiles.moc"
