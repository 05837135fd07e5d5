// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Paths.h"

#include "Failure.h"
#include "Nearest.h"
#include "Text.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

QString fileMeantBy(const QString &operand, const QString &database)
{
    if (!QFileInfo(operand).isDir())
        return operand;
    const QString folder = operand.endsWith(u'/') ? operand : operand + u'/';
    return folder + QFileInfo(database).fileName();
}

bool isSameFile(const QString &a, const QString &b)
{
    // Unlike a comparison of paths this sees through hard links, too.
    std::error_code error;
    return std::filesystem::equivalent(QFile(a).filesystemFileName(), QFile(b).filesystemFileName(),
                                       error);
}

QString nearbyFile(const QString &path)
{
    const QFileInfo file(path);
    const QString folder = path.first(path.size() - file.fileName().size());
    const QString name = nearestName(file.fileName(), file.dir().entryList(QDir::Files));
    return name.isEmpty() ? QString() : u"did you mean %1?"_s.arg(quoted(folder + name));
}

void refuseDatabase(const QString &path, const QString &database)
{
    if (isSameFile(path, database)) {
        throw Failure{
            .code = ExitCode::Usage, .where = path, .what = u"this is the database itself"_s};
    }
}

} // namespace Norvane::Kilnjet::Tool
