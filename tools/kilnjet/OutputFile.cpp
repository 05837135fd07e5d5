// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "OutputFile.h"

#include "Failure.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

[[noreturn]] void fail(const QString &path, const QString &why)
{
    throw Failure{
        .code = ExitCode::Io, .where = path, .what = u"cannot write the file"_s, .why = why};
}

bool syncFile(QFile &file)
{
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return ::fsync(file.handle()) == 0;
#endif
}

bool writeAll(QFile &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

/// Removes the file unless it has been moved away.
class Leftover
{
public:
    explicit Leftover(QFile &file)
        : m_file(file)
    { }
    Q_DISABLE_COPY_MOVE(Leftover)
    ~Leftover() { m_file.remove(); }

private:
    QFile &m_file;
};

void writeInPlace(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, bytes))
        fail(path, file.errorString());
}

} // namespace

void writeFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo target(path);
    if (target.isDir())
        fail(path, u"it is a folder"_s);
    if (target.exists() && !target.isFile())
        return writeInPlace(path, bytes);

    // Behind a symbolic link the file itself is replaced, not the link.
    const QString place = target.exists() ? target.canonicalFilePath() : path;
    QFile file(place + u'.' + QUuid::createUuid().toString(QUuid::Id128));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        fail(path, file.errorString());
    const Leftover leftover(file);
    if (target.exists())
        file.setPermissions(target.permissions());
    if (!writeAll(file, bytes))
        fail(path, file.errorString());
    if (!syncFile(file))
        fail(path, qt_error_string());
    file.close();
    std::error_code error;
    std::filesystem::rename(file.filesystemFileName(), QFile(place).filesystemFileName(), error);
    if (error)
        fail(path, QString::fromLocal8Bit(error.message().c_str()));
}

} // namespace Norvane::Kilnjet::Tool
