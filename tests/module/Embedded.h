// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "resources/DisplayTexts.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QStringList>

// The files that the library carries inside itself. Which ones these should be, the tests in
// tests/resources/ say of their sources. The tests define RESOURCES, the folder with those.

namespace Embedded {

using namespace Qt::StringLiterals;

inline const QStringList kCatalogues{u"ElaborationType"_s, u"LevelManagement"_s, u"PrinterClass"_s,
                                     u"vkilnjet"_s};

/// How many texts a catalogue has in a language.
inline int textCount(const QString &catalogue, const Texts::Language &language)
{
    if (catalogue == "ElaborationType"_L1)
        return language.elaborationTypes;
    if (catalogue == "LevelManagement"_L1)
        return language.levelManagement[7] == nullptr ? 11 : 12;
    if (catalogue == "PrinterClass"_L1)
        return language.tag == nullptr ? 7 : 6; // Klingon has one that no value carries.
    return 0;
}

/// The files below a folder that match a pattern, by their paths behind `root`, sorted.
inline QStringList files(const QString &root, const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator it(root + folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(it.next().sliced(root.size()));
    files.sort();
    return files;
}

/// The files below a folder of the resources: "data/L_C7_45_ROUND.ht".
inline QStringList filesIn(const QString &folder)
{
    return files(u":/"_s, folder, {u"*"_s});
}

/// The screening files that should be there.
inline QStringList screeningFiles()
{
    return files(QStringLiteral(RESOURCES) + u'/', u"data"_s, {u"*.ht3"_s, u"*.ht"_s, u"*.tif"_s});
}

/// The catalogues that should be there.
inline QStringList translationFiles()
{
    QStringList files;
    for (const QString &catalogue : kCatalogues) {
        for (const Texts::Language &language : Texts::kLanguages)
            files.append(u"translations/%1_%2.qm"_s.arg(catalogue, QLatin1String(language.suffix)));
    }
    files.sort();
    return files;
}

/// The bytes of a file; empty when it cannot be read.
inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace Embedded
