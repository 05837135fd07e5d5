// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DurableFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace Bench {

namespace {

bool syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isSynced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return isSynced;
}

} // namespace

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    const QString beside = path + QLatin1String(".new");
    QFile file(beside);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return false;
    if (file.write(bytes) != bytes.size() || ::fsync(file.handle()) != 0)
        return false;
    file.close();
    return renameDurably(beside, path);
}

bool renameDurably(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0
        && syncFolderOf(to);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.readAll() : QByteArray();
}

} // namespace Bench
