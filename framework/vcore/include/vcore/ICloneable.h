// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

namespace Norvane::Interfaces {

/// An object that can make a copy of itself without its caller knowing its class.
class VCORE_EXPORT ICloneable
{
public:
    virtual ~ICloneable();

    /// A new copy of this object; the caller owns it. Never null.
    virtual ICloneable *clone() const = 0;
};

} // namespace Norvane::Interfaces
