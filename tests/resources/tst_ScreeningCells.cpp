// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The generated cells are screens of the size, the angle and the dot that their names say, judged
// by their thresholds, and repeat without a seam.

#include "resources/ScreeningCell.h"

#include <QtTest/QTest>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

using namespace Screening;

namespace {

constexpr double kSizeTolerance = 0.02; // Of the named size.
constexpr double kAngleTolerance = 0.75; // Degrees.

double degrees(double radians)
{
    return radians * 180 / std::numbers::pi;
}

/// How far two angles are apart when a whole number of turns by `period` makes no difference.
double apart(double angle, double other, double period)
{
    return std::abs(std::remainder(angle - other, period));
}

/// A wave across the plane: how often it swings within a pixel to the right, and upwards.
struct Frequency
{
    double right = 0;
    double up = 0;
};

/// The wave that is strongest in the values of the cell's brick, a level tone left out.
Frequency strongest(const Cell &cell, const QList<int> &values)
{
    const int area = cell.area();
    QList<std::complex<double>> circle(area);
    for (int i = 0; i < area; ++i)
        circle[i] = std::polar(1.0, 2 * std::numbers::pi * i / area);

    // All waves that repeat with the bricks: a swings over a brick's width, and b from a brick to
    // that below it.
    Frequency found;
    double strength = 0;
    for (int a = 0; a < cell.width; ++a) {
        for (int b = 0; b < cell.height; ++b) {
            const qint64 across = qint64(a) * cell.height;
            const qint64 down = qint64(b) * cell.width - qint64(a) * cell.shift;
            std::complex<double> sum;
            for (int i = 0; i < area; ++i) {
                const qint64 phase = across * (i % cell.width) + down * (i / cell.width);
                sum += double(values.at(i)) * circle.at((phase % area + area) % area);
            }
            if ((a > 0 || b > 0) && std::abs(sum) > strength) {
                strength = std::abs(sum);
                found = {std::remainder(double(across) / area, 1),
                         -std::remainder(double(down) / area, 1)};
            }
        }
    }
    return found;
}

void addRows(const QStringList &paths)
{
    QTest::addColumn<QString>("path");
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path)) << path;
}

void addCells()
{
    addRows(cells());
}

} // namespace

class tst_ScreeningCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void head_saysWhatTheNameSays_data() { addCells(); }
    void head_saysWhatTheNameSays();
    void screenVector_isCloseToTheName_data() { addCells(); }
    void screenVector_isCloseToTheName();
    void thresholds_swingAtTheNamedSizeAndAngle_data() { addCells(); }
    void thresholds_swingAtTheNamedSizeAndAngle();
    void thresholds_areUsedEvenly_data() { addCells(); }
    void thresholds_areUsedEvenly();
    void brick_repeatsAlongTheScreenVectors_data() { addCells(); }
    void brick_repeatsAlongTheScreenVectors();
    void dropSizes_buildUpAsTheFamilyDoes_data();
    void dropSizes_buildUpAsTheFamilyDoes();
    void cellsForDiffusion_haveTheScreenOfTheirNamesakes();
};

void tst_ScreeningCells::head_saysWhatTheNameSays()
{
    QFETCH(QString, path);
    const Name name(path);
    const Cell cell(bytesOf(path));
    QVERIFY(!cell.thresholds.isEmpty());
    QCOMPARE(cell.layout, 1);
    QCOMPARE(cell.size, name.size);
    QCOMPARE(cell.angle, name.angle);
    QCOMPARE(cell.dot, name.dot);
    QCOMPARE(cell.planes, name.isForThreeDropSizes && !name.isForDiffusion ? 3 : 1);
    QCOMPARE(cell.bytes, name.isForDiffusion ? 1 : 2);
}

void tst_ScreeningCells::screenVector_isCloseToTheName()
{
    QFETCH(QString, path);
    const Name name(path);
    const Cell cell(bytesOf(path));
    QVERIFY(cell.k > 0);
    const double size = std::hypot(cell.p, cell.q) / cell.k;
    QVERIFY2(std::abs(size / name.size - 1) <= kSizeTolerance, qPrintable(QString::number(size)));
    const double angle = degrees(std::atan2(cell.q, cell.p));
    QVERIFY2(std::abs(angle - name.angle) <= kAngleTolerance, qPrintable(QString::number(angle)));
}

// Nothing but the thresholds and the brick is asked. The strongest wave runs across the lines and
// the long sides of the ellipses; round dots and diamonds have two, of which either will do.
void tst_ScreeningCells::thresholds_swingAtTheNamedSizeAndAngle()
{
    QFETCH(QString, path);
    const Name name(path);
    const Cell cell(bytesOf(path));
    QVERIFY(!cell.thresholds.isEmpty());
    const Frequency wave = strongest(cell, cell.sums());
    const double size = 1 / std::hypot(wave.right, wave.up);
    QVERIFY2(std::abs(size / name.size - 1) <= kSizeTolerance, qPrintable(QString::number(size)));
    const double angle = degrees(std::atan2(wave.up, wave.right)) + 90;
    const bool isSymmetric = name.dot == "round"_L1 || name.dot == "diamond"_L1;
    QVERIFY2(apart(angle, name.angle, isSymmetric ? 90 : 180) <= kAngleTolerance,
             qPrintable(QString::number(angle)));
}

void tst_ScreeningCells::thresholds_areUsedEvenly()
{
    QFETCH(QString, path);
    const Cell cell(bytesOf(path));
    QVERIFY(cell.levels > 0 && !cell.thresholds.isEmpty());
    QList<int> counts(cell.levels);
    for (const int threshold : cell.thresholds) {
        QVERIFY(threshold < cell.levels);
        ++counts[threshold];
    }
    const auto [least, most] = std::minmax_element(counts.cbegin(), counts.cend());
    QVERIFY(*least > 0);
    QVERIFY(*most - *least <= (Name(path).isForDiffusion ? 1 : 0));
    if (!Name(path).isForDiffusion)
        QVERIFY(cell.levels >= 256);
}

void tst_ScreeningCells::brick_repeatsAlongTheScreenVectors()
{
    QFETCH(QString, path);
    const Cell cell(bytesOf(path));
    QCOMPARE(cell.area(), cell.p * cell.p + cell.q * cell.q);
    for (int y = -cell.height; y < 2 * cell.height; ++y) {
        for (int x = -cell.width; x < 2 * cell.width; ++x) {
            const int here = cell.index(x, y);
            QCOMPARE(cell.index(x + cell.p, y - cell.q), here);
            QCOMPARE(cell.index(x - cell.q, y - cell.p), here);
        }
    }
}

void tst_ScreeningCells::dropSizes_buildUpAsTheFamilyDoes_data()
{
    addRows(folder().entryList({u"*.ht3"_s}, QDir::Files, QDir::Name));
}

void tst_ScreeningCells::dropSizes_buildUpAsTheFamilyDoes()
{
    QFETCH(QString, path);
    const Name name(path);
    const Cell cell(bytesOf(path));
    QCOMPARE(cell.planes, 3);
    const bool isFullField = name.family == "F"_L1 || name.family == "CG"_L1;
    const int step = name.family == "WP2"_L1 ? 0 : isFullField ? cell.area() : 1;
    const int area = cell.area();
    for (int i = 0; i < area; ++i) {
        const int smallest = cell.thresholds.at(i);
        QCOMPARE(cell.thresholds.at(area + i), smallest + step);
        QCOMPARE(cell.thresholds.at(2 * area + i), smallest + 2 * step);
    }
}

void tst_ScreeningCells::cellsForDiffusion_haveTheScreenOfTheirNamesakes()
{
    const QStringList paths = files(folder().filePath(u"diffusion"_s), {u"*"_s});
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths) {
        const Cell cell(bytesOf(u"diffusion/"_s + path));
        const Cell other(bytesOf(path));
        QCOMPARE(cell.p, other.p);
        QCOMPARE(cell.q, other.q);
        QCOMPARE(cell.k, other.k);
        QCOMPARE(cell.dot, other.dot);
    }
}

QTEST_GUILESS_MAIN(tst_ScreeningCells)
#include "tst_ScreeningCells.moc"
