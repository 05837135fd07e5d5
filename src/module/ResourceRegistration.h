// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "module/EmbeddedFiles.h"

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
// Qt exports these for the code that its resource compiler writes, and declares them nowhere else.
bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                           const unsigned char *data);
bool qUnregisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                             const unsigned char *data);
QT_END_NAMESPACE

namespace Norvane::Kilnjet {

/// While it lives, Qt's resource system knows the files.
class ResourceRegistration
{
public:
    explicit ResourceRegistration(const EmbeddedFiles &files)
        : m_files(files)
    {
        qRegisterResourceData(kFormat, m_files.tree, m_files.names, m_files.data);
    }
    ~ResourceRegistration()
    {
        qUnregisterResourceData(kFormat, m_files.tree, m_files.names, m_files.data);
    }
    Q_DISABLE_COPY_MOVE(ResourceRegistration)

private:
    static constexpr int kFormat = 3;
    const EmbeddedFiles &m_files;
};

} // namespace Norvane::Kilnjet
