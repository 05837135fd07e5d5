// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "resources/ScreeningFiles.h"

#include <QtCore/QList>
#include <QtCore/QRegularExpression>
#include <QtCore/QtEndian>

#include <array>

namespace Screening {

/// What the name of a cell says.
struct Name
{
    QString family;
    int size = 0;
    int angle = 0;
    QString dot;
    bool isForDiffusion = false;
    bool isForThreeDropSizes = false;

    explicit Name(const QString &path)
    {
        static const QRegularExpression form(
            u"^(diffusion/)?([A-Z]+\\d?)_C(\\d+)(?:_\\d)?_(\\d+)(?:_([A-Z]+))?\\.ht(3?)$"_s);
        const auto match = form.match(path);
        family = match.captured(2);
        size = match.captured(3).toInt();
        angle = match.captured(4).toInt();
        dot = match.captured(5).toLower();
        if (dot.isEmpty())
            dot = family == "UV"_L1                    ? u"line"_s
                : family == "H"_L1 || family == "F"_L1 ? u"ellipse"_s
                                                       : u"round"_s;
        isForDiffusion = match.capturedLength(1) > 0;
        isForThreeDropSizes = match.capturedLength(6) > 0;
    }
};

/// A cell as resources/data/README.md lays it out. Row 0 is on top, `q` counts upwards.
struct Cell
{
    int layout = 0;
    QString dot;
    int planes = 0;
    int bytes = 0;
    int size = 0;
    int angle = 0;
    int p = 0;
    int q = 0;
    int k = 0;
    int width = 0;
    int height = 0;
    int shift = 0;
    int levels = 0;
    QList<int> thresholds; ///< Plane by plane; none when their number is not what the head says.

    explicit Cell(const QByteArray &file)
    {
        constexpr qsizetype kHead = 26;
        if (file.size() < kHead)
            return;
        static const std::array dots{u"round"_s, u"diamond"_s, u"ellipse"_s, u"line"_s};
        const auto byte = [&file](qsizetype at) { return int(uchar(file.at(at))); };
        const auto word = [&file](qsizetype at) {
            return qFromLittleEndian<quint16>(file.constData() + at);
        };
        layout = byte(4);
        dot = byte(5) < int(dots.size()) ? dots.at(byte(5)) : QString();
        planes = byte(6);
        bytes = byte(7);
        size = word(8);
        angle = word(10);
        p = qint16(word(12));
        q = qint16(word(14));
        k = word(16);
        width = word(18);
        height = word(20);
        shift = word(22);
        levels = word(24);
        if (file.size() != kHead + qsizetype(planes) * area() * bytes)
            return;
        for (qsizetype at = kHead; at < file.size(); at += bytes)
            thresholds.append(bytes == 2 ? word(at) : byte(at));
    }

    /// Pixels of the brick.
    int area() const { return width * height; }

    /// Where in a plane the threshold of a pixel stands, anywhere on the plane.
    int index(int x, int y) const
    {
        const int row = modulo(y, height);
        const int brick = (y - row) / height;
        return row * width + modulo(x - shift * brick, width);
    }

    /// The sum of a pixel's thresholds for all drop sizes, for each pixel of the brick.
    QList<int> sums() const
    {
        QList<int> sums(area());
        for (qsizetype i = 0; i < thresholds.size(); ++i)
            sums[i % area()] += thresholds.at(i);
        return sums;
    }

private:
    static int modulo(int number, int divisor) { return (number % divisor + divisor) % divisor; }
};

} // namespace Screening
