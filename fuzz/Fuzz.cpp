// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Fuzz.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHashFunctions>
#include <QtCore/QLocale>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static int noArguments = 0;
    // The same input does the same in every process, and says nothing on its way: Qt warns of
    // damaged images and streams.
    QHashSeed::setDeterministicGlobalSeed();
    QLocale::setDefault(QLocale::c());
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Q_UNUSED(argc)
    // Databases have timers. The application stays until the process ends, as a host's does.
    static const QCoreApplication application(noArguments, *argv);
    return 0;
}

namespace Fuzz {

void require(bool holds, const char *rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "BROKEN RULE: %s\n", rule);
    std::abort();
}

} // namespace Fuzz
