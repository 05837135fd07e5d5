// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "GuiCheck.h"

#include <QtGui/QGuiApplication>

namespace Norvane::Kilnjet {

bool isGuiRunning()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

} // namespace Norvane::Kilnjet
