// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// As the other programs of this folder, with our library loaded.

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    // A call, so that a linker that drops unused libraries keeps it.
    return Norvane::Kilnjet::VPrintersDb::defaultFilename().isEmpty();
}
