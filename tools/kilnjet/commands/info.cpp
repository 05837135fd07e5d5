// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "Console.h"
#include "DisplayTexts.h"
#include "Text.h"

#include <kilnjet/VKilnjetInfo.h>
#include <vcommon/VDBText.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QDirIterator>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// What the library carries inside itself.
struct Cargo
{
    QStringList languages;
    qsizetype catalogues = 0; ///< Of one language.
    qsizetype texts = 0; ///< Of all languages.
    qsizetype screeningFiles = 0;
    qint64 screeningBytes = 0;
};

Cargo cargo()
{
    Cargo cargo;
    cargo.languages = displayLanguages();
    cargo.catalogues = displayCatalogues().size();
    for (const QString &language : cargo.languages)
        cargo.texts += DisplayTexts(language).count();
    QDirIterator files(u":/data"_s, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        ++cargo.screeningFiles;
        cargo.screeningBytes += files.fileInfo().size();
    }
    return cargo;
}

QJsonObject asJson(const Cargo &cargo)
{
    return {{u"name"_s, VKilnjetInfo::moduleName()},
            {u"title"_s, VKilnjetInfo::title()},
            {u"description"_s, VKilnjetInfo::description()},
            {u"version"_s, VKilnjetInfo::version().toString()},
            {u"build"_s, qint64(VKilnjetInfo::build())},
            {u"company"_s, VKilnjetInfo::company()},
            {u"copyright"_s, VKilnjetInfo::copyright()},
            {u"qtVersion"_s, QString::fromLatin1(qVersion())},
            {u"fileFormat"_s, Database::VDBText::formatVersion()},
            {u"enumerations"_s, VEnumRegistry::names().size()},
            {u"languages"_s, QJsonArray::fromStringList(cargo.languages)},
            {u"catalogues"_s, cargo.catalogues},
            {u"texts"_s, cargo.texts},
            {u"screeningFiles"_s, cargo.screeningFiles},
            {u"screeningBytes"_s, cargo.screeningBytes}};
}

QString asText(const Cargo &cargo)
{
    QString text = u"%1 %2, build %3\n%4\n%5\n\n"_s.arg(
        VKilnjetInfo::title(), VKilnjetInfo::version().toString(),
        QString::number(VKilnjetInfo::build()), VKilnjetInfo::description(),
        VKilnjetInfo::copyright());
    const auto line = [&text](const QString &label, const QString &value) {
        text += u"  "_s + label.leftJustified(18) + value + u'\n';
    };
    line(u"Made by"_s, VKilnjetInfo::company());
    line(u"Qt"_s, QString::fromLatin1(qVersion()));
    line(u"File format"_s, QString::number(Database::VDBText::formatVersion()));
    line(u"Enumerations"_s, QString::number(VEnumRegistry::names().size()));
    line(u"Display texts"_s,
         u"%1, for %2 in %3"_s.arg(QString::number(cargo.texts),
                                   counted(cargo.catalogues, u"enumeration"_s),
                                   counted(cargo.languages.size(), u"language"_s)));
    line(u"Languages"_s, cargo.languages.join(u' '));
    line(u"Screening files"_s,
         u"%1 (%2)"_s.arg(QString::number(cargo.screeningFiles),
                          QLocale::c().formattedDataSize(cargo.screeningBytes)));
    return text;
}

} // namespace

ExitCode runInfo(const Invocation &, Console &console)
{
    if (console.isJson())
        console.write(asJson(cargo()));
    else
        console.write(asText(cargo()));
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
