// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Machine.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QStorageInfo>
#include <QtCore/QSysInfo>
#include <QtCore/QThread>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// What follows "NAME :" in one of the kernel's lists.
QString lineOf(const QString &path, const QString &name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The kernel's files have no size: read until there is no more.
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        const QString text = QString::fromUtf8(line);
        if (text.startsWith(name))
            return text.section(u':', 1).trimmed();
    }
    return {};
}

/// The time that a process of `program` takes, in milliseconds; nothing when it fails.
std::optional<double> startOnce(const QString &program)
{
    const auto start = std::chrono::steady_clock::now();
    if (!outputOf(program, {}))
        return std::nullopt;
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// The medians of many starts of each program, in turns; 0 for one that fails.
QList<double> medianStarts(const QStringList &programs)
{
    constexpr int kRounds = 101;
    QList<QList<double>> times(programs.size());
    for (int round = 0; round < kRounds; ++round) {
        for (qsizetype i = 0; i < programs.size(); ++i)
            times[i].append(startOnce(programs[i]).value_or(0));
    }
    QList<double> medians;
    for (QList<double> &each : times) {
        std::sort(each.begin(), each.end());
        medians.append(each[each.size() / 2]);
    }
    return medians;
}

/// In millions; 0 when they cannot be counted.
double instructionsOf(const QString &program)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(u"valgrind"_s,
                  {u"--tool=callgrind"_s, u"--callgrind-out-file=/dev/null"_s, program});
    if (!process.waitForFinished(120'000) || process.exitCode() != 0)
        return 0;
    static const QRegularExpression collected(u"Collected : (\\d+)"_s);
    const QRegularExpressionMatch match =
        collected.match(QString::fromUtf8(process.readAllStandardOutput()));
    return match.captured(1).toDouble() / 1e6;
}

} // namespace

QJsonObject describeMachine(const QString &folder)
{
    return {{"processor"_L1, lineOf(u"/proc/cpuinfo"_s, u"model name"_s)},
            {"cores"_L1, QThread::idealThreadCount()},
            {"system"_L1, QSysInfo::prettyProductName()},
            {"kernel"_L1, QSysInfo::kernelVersion()},
            {"fileSystem"_L1, QString::fromUtf8(QStorageInfo(folder).fileSystemType())},
            {"qt"_L1, QString::fromLatin1(qVersion())},
            {"compiler"_L1, u"GCC "_s + QLatin1StringView(__VERSION__)},
            {"time"_L1, QDateTime::currentDateTimeUtc().toString(Qt::ISODate)}};
}

qint64 peakMemory()
{
    return lineOf(u"/proc/self/status"_s, u"VmHWM"_s).section(u' ', 0, 0).toLongLong();
}

std::optional<QByteArray> outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(600'000) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

QJsonObject measureStartup(const QString &programs)
{
    const bool hasValgrind = !QStandardPaths::findExecutable(u"valgrind"_s).isEmpty();
    const QStringList names = {u"core"_s, u"gui"_s, u"library"_s};
    QStringList paths;
    for (const QString &name : names)
        paths.append(programs + u"/bench_start_"_s + name);
    const QList<double> times = medianStarts(paths);
    QJsonObject startup;
    for (qsizetype i = 0; i < names.size(); ++i) {
        startup.insert(names[i] + u"Ms"_s, times[i]);
        if (hasValgrind)
            startup.insert(names[i] + u"MillionInstructions"_s, instructionsOf(paths[i]));
    }
    return startup;
}

} // namespace Bench
