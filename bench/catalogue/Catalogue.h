// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>

#include <optional>

// The catalogue that the benchmarks keep: as many drivers as one likes, the same ones for the same
// seed on every machine.

namespace Bench {

using Norvane::Kilnjet::VPrinterDriver;
using Drivers = QList<VPrinterDriver>;

/// What kind of icon every driver has.
enum class Variant
{
    Plain, ///< None.
    Png, ///< Four images, of 16 to 64 pixels.
    Svg, ///< A vector document.
};

/// The stored name of a variant: "plain", "png", "svg".
QString nameOf(Variant variant);
std::optional<Variant> variantFrom(const QString &name);

/// The first `count` drivers of the seed's catalogue: a longer catalogue begins with a shorter one.
/// Each is valid, has two print units and six elaborations, and is about 5.0 KB of compact JSON
/// without its icon.
Drivers catalogue(int count, Variant variant, quint32 seed = 1);

} // namespace Bench
