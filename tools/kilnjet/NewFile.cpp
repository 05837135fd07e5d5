// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "NewFile.h"

#include "Failure.h"
#include "Text.h"

#include <platform/filesystem.h>
#include <platform/nativepath.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

NewFile::NewFile(const QString &place)
    : m_name(place)
    , m_place(place)
{
    const QFileInfo target(place);
    if (target.isDir())
        fail(u"it is a folder"_s);
    if (target.exists() && !target.isFile())
        fail(u"it is no ordinary file"_s);
    const QString folder = target.absolutePath();
    if (!QFileInfo(folder).isDir()) {
        fail(u"there is no folder %1"_s.arg(quoted(folder)),
             u"create it, or make sure that its disk is connected"_s);
    }
    if (target.exists())
        m_place = target.canonicalFilePath();
    m_path = m_place + u'.' + QUuid::createUuid().toString(QUuid::Id128);
}

NewFile::~NewFile()
{
    if (!m_path.isEmpty())
        QFile::remove(m_path);
}

void NewFile::takePlace()
{
    const QFileInfo target(m_place);
    if (target.exists())
        QFile::setPermissions(m_path, target.permissions());
    const std::filesystem::path place = Platform::nativePath(m_place);
    if (!Platform::replaceFile(Platform::nativePath(m_path), place))
        fail(qt_error_string(Platform::lastError()));
    m_path.clear();
    if (!Platform::syncFolderOf(place))
        fail(qt_error_string(Platform::lastError()));
}

void NewFile::fail(const QString &why, const QString &hint) const
{
    throw Failure{.code = ExitCode::Io,
                  .where = m_name,
                  .what = u"cannot write the file"_s,
                  .why = why,
                  .hint = hint};
}

} // namespace Norvane::Kilnjet::Tool
