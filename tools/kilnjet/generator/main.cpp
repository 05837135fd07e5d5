// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Writes, at build time, what is installed beside the tool: the pages of its manual, and what makes
// shells complete its command lines. All of it comes from the tool's own table.

#include "Writer.h"

#include "DisplayTexts.h"

#include <kilnjet/VKilnjetInfo.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdio>

using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

QStringList wordList(const Words &words)
{
    QStringList list;
    switch (words.kind) {
    case Words::Kind::Enumeration:
        if (const IVEnum *values = VEnumRegistry::find(words.names)) {
            for (const qint64 number : values->names().numbers())
                list.append(values->names().names(number).constFirst());
        }
        break;
    case Words::Kind::Enumerations:
        list = VEnumRegistry::names();
        break;
    case Words::Kind::Languages:
        list = displayLanguages();
        break;
    case Words::Kind::Commands:
        list = commandNames();
        break;
    case Words::Kind::Listed:
        list = QString(words.names).split(u'|');
        break;
    default:
        break;
    }
    return list;
}

} // namespace Norvane::Kilnjet::Tool

namespace {

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (QDir().mkpath(path.section(u'/', 0, -2)) && file.open(QIODevice::WriteOnly)
        && file.write(bytes) == bytes.size() && file.flush())
        return true;
    std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
    return false;
}

bool writePages(const QString &folder, const QString &format, const Tool::Edition &edition)
{
    const QString section1 = folder + u"/man1/"_s;
    bool ok = write(section1 + u"kilnjet.1"_s, Tool::manPage(nullptr, edition));
    for (const Tool::Command &command : Tool::commandTable())
        ok = write(section1 + u"kilnjet-%1.1"_s.arg(command.name), Tool::manPage(&command, edition))
            && ok;
    QFile file(format);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString page = Tool::formatPage(u"kilnjet-format"_s, u"the database files of kilnjet"_s,
                                          QString::fromUtf8(file.readAll()), edition);
    return write(folder + u"/man5/kilnjet-format.5"_s, page) && ok;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("usage: kilnjet_generator FOLDER FORMAT.md DATE\n", stderr);
        return 2;
    }
    const QString &folder = arguments.at(1);
    const Tool::Edition edition{VKilnjetInfo::version().toString(), arguments.at(3)};
    bool ok = writePages(folder + u"/man"_s, arguments.at(2), edition);
    ok = write(folder + u"/bash/kilnjet"_s, Tool::bashCompletion()) && ok;
    ok = write(folder + u"/zsh/_kilnjet"_s, Tool::zshCompletion()) && ok;
    ok = write(folder + u"/fish/kilnjet.fish"_s, Tool::fishCompletion()) && ok;
    return ok ? 0 : 1;
}
