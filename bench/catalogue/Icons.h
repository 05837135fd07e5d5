// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

// Icons such as a maker of machines delivers them. Nothing here needs a GUI.

namespace Bench {

/// Different icons there are; a driver takes one of them.
constexpr int kIcons = 8;

/// The images of an icon as PNG files, 16, 32, 48 and 64 pixels wide. Decoding one and encoding it
/// again gives the same bytes: so do the images that a driver has once been saved with.
QList<QByteArray> pngIcon(int number);

/// An SVG document of about 4 KB.
QByteArray svgIcon(int number);

} // namespace Bench
