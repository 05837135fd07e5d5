// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QRandomGenerator>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <cstdio>

namespace Support {

/// The seed of a random test: that of the environment, to repeat a run, or a new one. Printed.
inline quint32 seed()
{
    bool isGiven = false;
    const uint given = qEnvironmentVariable("KILNJET_SEED").toUInt(&isGiven);
    const quint32 seed = isGiven ? given : QRandomGenerator::global()->generate();
    std::printf("KILNJET_SEED=%u\n", seed);
    std::fflush(stdout);
    return seed;
}

} // namespace Support
