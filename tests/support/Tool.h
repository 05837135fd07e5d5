// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

// Runs the command-line tool as its users do: as a process, without a display. The tests define
// KILNJET_TOOL, its path.

namespace Support {

using namespace Qt::StringLiterals;

/// What a run of the tool gave.
struct ToolRun
{
    int code = -1; ///< -1 when the process crashed or hung.
    QByteArray out;
    QByteArray err;

    QString text() const { return QString::fromUtf8(out); }
    QString messages() const { return QString::fromUtf8(err); }
    QJsonObject object() const { return QJsonDocument::fromJson(out).object(); }
    QJsonArray array() const { return QJsonDocument::fromJson(out).array(); }
    /// The error of a run with --json; empty when standard error is anything but one JSON line.
    QJsonObject error() const
    {
        return QJsonDocument::fromJson(err).object().value("error"_L1).toObject();
    }
};

/// A temporary folder in which the tool runs.
class ToolFolder
{
public:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// Writes a file; its name, to be used as an argument.
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        const bool ok = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        return ok ? name : u"cannot be written"_s;
    }
    QString write(const QString &name, const QJsonObject &object) const
    {
        return write(name, QJsonDocument(object).toJson());
    }
    QString write(const QString &name, const QJsonArray &array) const
    {
        return write(name, QJsonDocument(array).toJson());
    }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Sets a variable of the environment of all runs to come; they begin without a language.
    void setEnvironment(const QString &name, const QString &value)
    {
        m_environment.insert(name, value);
    }

    /// Runs the tool in the folder; `output` takes its standard output instead of the result.
    ToolRun run(const QStringList &arguments, const QByteArray &input = {},
                const QString &output = {}) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto &name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        for (const auto &name : {u"LC_MESSAGES"_s, u"LANG"_s, u"LANGUAGE"_s})
            environment.remove(name);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.insert(m_environment);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        if (!output.isEmpty())
            process.setStandardOutputFile(output);
        process.start(QStringLiteral(KILNJET_TOOL), arguments);
        process.write(input);
        process.closeWriteChannel();
        const bool ended =
            process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit;
        return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};

} // namespace Support

/// Fails, showing the tool's messages, unless `run` ended with the exit code.
#define VERIFY_CODE(run, expected)                                                                 \
    QVERIFY2((run).code == (expected),                                                             \
             qPrintable(u"exit code %1: %2%3"_s.arg(QString::number((run).code), (run).messages(), \
                                                    (run).text())))
