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

double medianStart(const QString &program)
{
    QList<double> times;
    for (int i = 0; i < 21; ++i) {
        const auto start = std::chrono::steady_clock::now();
        if (!outputOf(program, {}))
            return 0;
        times.append(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                .count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
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
    QJsonObject startup;
    for (const QString &name : {u"core"_s, u"gui"_s, u"library"_s}) {
        const QString program = programs + u"/bench_start_"_s + name;
        startup.insert(name + u"Ms"_s, medianStart(program));
        if (hasValgrind)
            startup.insert(name + u"MillionInstructions"_s, instructionsOf(program));
    }
    return startup;
}

} // namespace Bench
