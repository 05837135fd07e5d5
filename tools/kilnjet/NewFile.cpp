// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "NewFile.h"

#include "Failure.h"
#include "Text.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUuid>

#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// Makes the names in a folder survive a power cut, where a system does not see to that by itself.
bool syncFolder(const QString &path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path)
    return true;
#else
    const int handle =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool isSynced = syncFile(handle);
    ::close(handle);
    return isSynced;
#endif
}

} // namespace

bool syncFile(int handle)
{
#ifdef Q_OS_WIN
    return _commit(handle) == 0;
#else
    return ::fsync(handle) == 0;
#endif
}

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
    std::error_code error;
    std::filesystem::rename(QFile(m_path).filesystemFileName(), QFile(m_place).filesystemFileName(),
                            error);
    if (error)
        fail(QString::fromLocal8Bit(error.message().c_str()));
    m_path.clear();
    if (!syncFolder(target.absolutePath()))
        fail(qt_error_string());
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
