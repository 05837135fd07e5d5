// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

// The tests define SCREENING_DATA, the folder with the screening files.

namespace Screening {

using namespace Qt::StringLiterals;

inline QDir folder()
{
    return QDir(QStringLiteral(SCREENING_DATA));
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(folder().filePath(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The paths of the files below the folder that match a pattern, in order; hidden ones, too.
inline QStringList files(const QDir &folder, const QStringList &patterns)
{
    QStringList paths;
    QDirIterator it(folder.path(), patterns, QDir::Files | QDir::Hidden,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        paths.append(folder.relativeFilePath(it.next()));
    paths.sort();
    return paths;
}

inline QStringList cells()
{
    return files(folder(), {u"*.ht3"_s, u"*.ht"_s});
}

inline QStringList patterns()
{
    return files(folder(), {u"*.tif"_s});
}

} // namespace Screening
