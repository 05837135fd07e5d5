// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// bench_plot RESULTS.json PLOT.png: draws the largest catalogue without icons, a panel a job and a
// bar a store. A bar that would dwarf the others is cut, and has a gap.

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct Bar
{
    QString store;
    double ms;
};

constexpr const char16_t *kJobs[] = {u"load",       u"load and read", u"commit 1",
                                     u"commit 100", u"commit all",    u"delete 10 %, compact"};
constexpr int kColumns = 3;
constexpr QSize kPanel(430, 270);
constexpr int kTop = 50;
constexpr int kLabelWidth = 150;
constexpr int kFigureWidth = 60;
constexpr int kBarHeight = 22;

int largestIn(const QJsonArray &results)
{
    int largest = 0;
    for (const QJsonValue &value : results) {
        const QJsonObject entry = value.toObject();
        if (entry.value("variant"_L1).toString() == u"plain")
            largest = std::max(largest, entry.value("drivers"_L1).toInt());
    }
    return largest;
}

QList<Bar> barsOf(const QJsonArray &results, int drivers, const QString &job)
{
    QList<Bar> bars;
    for (const QJsonValue &value : results) {
        const QJsonObject entry = value.toObject();
        if (entry.value("variant"_L1).toString() == u"plain"
            && entry.value("job"_L1).toString() == job
            && entry.value("drivers"_L1).toInt() == drivers)
            bars.append({entry.value("store"_L1).toString(), entry.value("median"_L1).toDouble()});
    }
    return bars;
}

QString figure(double ms)
{
    const int digits = std::clamp(2 - int(std::floor(std::log10(ms))), 0, 3);
    return QString::number(ms, 'f', digits);
}

/// What the width of a panel stands for: three times the middle one, when the longest is longer.
double limitOf(const QList<Bar> &bars)
{
    QList<double> lengths;
    for (const Bar &bar : bars)
        lengths.append(bar.ms);
    std::sort(lengths.begin(), lengths.end());
    return std::min(lengths.last(), 3 * lengths[lengths.size() / 2]);
}

void drawPanel(QPainter &painter, const QRect &panel, const QString &job, const QList<Bar> &bars)
{
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(panel.topLeft() + QPoint(kLabelWidth, 16), job + u", ms"_s);
    font.setBold(false);
    painter.setFont(font);
    if (bars.isEmpty())
        return;
    const int left = panel.left() + kLabelWidth;
    const int top = panel.top() + 26;
    const int width = panel.width() - kLabelWidth - kFigureWidth - 20;
    const double limit = limitOf(bars);
    for (int i = 0; i < int(bars.size()); ++i) {
        const int y = top + i * kBarHeight;
        const bool isCut = bars[i].ms > limit;
        const int length = int(std::min(bars[i].ms, limit) / limit * width);
        painter.fillRect(left, y + 3, length, kBarHeight - 6,
                         i ? QColor(0x8A, 0x9B, 0xA8) : QColor(0xC8, 0x55, 0x2B));
        if (isCut)
            painter.fillRect(left + length - 24, y + 3, 8, kBarHeight - 6, Qt::white);
        painter.setPen(Qt::black);
        painter.drawText(QRect(panel.left(), y, kLabelWidth - 8, kBarHeight),
                         Qt::AlignRight | Qt::AlignVCenter, bars[i].store);
        painter.drawText(QRect(left + length + 6, y, kFigureWidth, kBarHeight), Qt::AlignVCenter,
                         figure(bars[i].ms));
    }
}

QImage plot(const QJsonArray &results)
{
    const int drivers = largestIn(results);
    const int rows = (int(std::size(kJobs)) + kColumns - 1) / kColumns;
    QImage image(kPanel.width() * kColumns, kTop + kPanel.height() * rows, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(16);
    painter.setFont(font);
    painter.drawText(QPoint(20, 30),
                     u"%1 drivers: medians, shorter is better"_s.arg(QString::number(drivers)));
    font.setPixelSize(13);
    painter.setFont(font);
    for (int i = 0; i < int(std::size(kJobs)); ++i) {
        const QString job = QString::fromUtf16(kJobs[i]);
        const QPoint corner(i % kColumns * kPanel.width(), kTop + i / kColumns * kPanel.height());
        drawPanel(painter, QRect(corner, kPanel), job, barsOf(results, drivers, job));
    }
    return image;
}

} // namespace

int main(int argc, char **argv)
{
    // Drawing text takes a GUI, though no screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QFile file(arguments.value(1));
    if (arguments.size() != 3 || !file.open(QIODevice::ReadOnly)) {
        std::fputs("usage: bench_plot RESULTS.json PLOT.png\n", stderr);
        return 1;
    }
    const QJsonObject results = QJsonDocument::fromJson(file.readAll()).object();
    return plot(results.value("results"_L1).toArray()).save(arguments[2]) ? 0 : 1;
}
