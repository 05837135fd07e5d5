// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "OutputFile.h"

#include "Failure.h"
#include "NewFile.h"

#include <platform/filesystem.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

[[noreturn]] void fail(const QString &path, const QString &why)
{
    throw Failure{
        .code = ExitCode::Io, .where = path, .what = u"cannot write the file"_s, .why = why};
}

bool writeAll(QFile &file, const QByteArray &bytes)
{
    return file.write(bytes) == bytes.size() && file.flush();
}

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
    if (target.exists() && !target.isFile() && !target.isDir())
        return writeInPlace(path, bytes);

    NewFile fresh(path);
    QFile file(fresh.path());
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)
        || !writeAll(file, bytes))
        fail(path, file.errorString());
    if (!Platform::syncFile(file.handle()))
        fail(path, qt_error_string(Platform::lastError()));
    file.close();
    fresh.takePlace();
}

} // namespace Norvane::Kilnjet::Tool
