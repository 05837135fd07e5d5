// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>
#include <QtGui/QRgb>

namespace Norvane::Kilnjet::Tool {

/// Whether text for people is coloured.
enum class Colour
{
    Off,
    On
};

/// Puts colours around text that is printable() already, or leaves it alone.
class Paint
{
public:
    explicit Paint(Colour colour)
        : m_colour(colour)
    { }

    QString heading(const QString &text) const { return painted(kBold, text); }
    QString before(const QString &text) const { return painted(kRed, text); }
    QString after(const QString &text) const { return painted(kGreen, text); }

    bool hasSwatches() const { return m_colour == Colour::On; }
    /// Two columns in the colour, in 24 bits; plain blanks without colours.
    QString swatch(QRgb colour) const;

private:
    QString painted(int code, const QString &text) const;

    static constexpr int kBold = 1;
    static constexpr int kRed = 31;
    static constexpr int kGreen = 32;

    Colour m_colour;
};

} // namespace Norvane::Kilnjet::Tool
