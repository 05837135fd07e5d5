// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumNames.h>

namespace Norvane {

/// What every enumeration's process-wide runtime object offers, whatever its type.
///
/// Typed conversions are VEnumBase's; names() serves those who meet an enumeration only at run
/// time.
class VCORE_EXPORT IVEnum
{
public:
    IVEnum() = default;
    Q_DISABLE_COPY_MOVE(IVEnum)
    virtual ~IVEnum();

    /// The enumeration's short name, which is also the context of its display texts.
    virtual QString name() const = 0;
    /// True when values are combinations of flags.
    virtual bool isFlags() const = 0;

    /// The numbers and names. Only a run-time loader may change them, and only inside applyTo().
    const VEnumNames &names() const { return m_names; }
    /// The same, to be changed by a run-time loader.
    VEnumNames &names() { return m_names; }

private:
    VEnumNames m_names;
};

} // namespace Norvane
