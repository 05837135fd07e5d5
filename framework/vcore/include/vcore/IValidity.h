// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

namespace Norvane::Interfaces {

/// An object that can be valid or not.
class VCORE_EXPORT IValidity
{
public:
    virtual ~IValidity();

    /// True when the object can be used for its purpose.
    virtual bool isValid() const = 0;
};

} // namespace Norvane::Interfaces
