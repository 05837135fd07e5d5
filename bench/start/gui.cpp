// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// With the libraries of Qt that ours needs, and without ours: what is left then is our own.

#include <QtCore/QCoreApplication>
#include <QtGui/QIcon>
#include <QtSvg/QSvgRenderer>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // Neither needs a display, and a linker that drops unused libraries keeps both.
    const QIcon icon;
    return icon.isNull() && QSvgRenderer::staticMetaObject.className() != nullptr ? 0 : 1;
}
