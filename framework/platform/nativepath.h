// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QFile>

#include <filesystem>

namespace Norvane::Platform {

/// The path as the system wants it: the very bytes or characters that Qt would use, which need not
/// be valid Unicode.
inline std::filesystem::path nativePath(const QString &path)
{
#ifdef Q_OS_WIN
    return std::filesystem::path(path.toStdWString());
#else
    return std::filesystem::path(QFile::encodeName(path).toStdString());
#endif
}

} // namespace Norvane::Platform
