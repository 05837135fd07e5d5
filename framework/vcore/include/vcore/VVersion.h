// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QString>

#include <compare>

namespace Norvane {

/// A version of three numbers, 0 to 255 each, packed into 32 bits as 0x00MMmmpp.
class VCORE_EXPORT VVersion
{
public:
    /// The version packed as 0x00MMmmpp; 0.0.0 by default. The top byte is ignored.
    constexpr explicit VVersion(quint32 packed = 0)
        : m_packed(packed & 0x00FFFFFFU)
    { }
    /// The version `major`.`minor`.`patch`; only the low eight bits of each number count.
    constexpr VVersion(int majorNumber, int minorNumber, int patchNumber)
        : m_packed((quint32(majorNumber & 0xFF) << 16) | (quint32(minorNumber & 0xFF) << 8)
                   | quint32(patchNumber & 0xFF))
    { }

    /// The first number.
    constexpr int majorNumber() const { return int((m_packed >> 16) & 0xFF); }
    /// The second number.
    constexpr int minorNumber() const { return int((m_packed >> 8) & 0xFF); }
    /// The third number.
    constexpr int patchNumber() const { return int(m_packed & 0xFF); }
    /// The packed form, 0x00MMmmpp.
    constexpr quint32 packed() const { return m_packed; }

    /// The three numbers, joined by dots: "1.2.1".
    QString toString() const;
    /// Reads what toString() writes; anything else gives 0.0.0 and `*ok` false. `ok` may be null.
    static VVersion fromString(const QString &text, bool *ok = nullptr);

    /// True when all three numbers are equal.
    friend constexpr bool operator==(VVersion, VVersion) = default;
    /// Compares the first numbers that differ.
    friend constexpr auto operator<=>(VVersion, VVersion) = default;

private:
    quint32 m_packed;
};

} // namespace Norvane

Q_DECLARE_TYPEINFO(Norvane::VVersion, Q_PRIMITIVE_TYPE);
