// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <typeinfo>

namespace Norvane::Interfaces {

/// An object that can be compared with another one without the caller knowing their classes.
class VCORE_EXPORT IEquatable
{
public:
    virtual ~IEquatable();

    /// True when `other` is of the same class and has equal content; false for null.
    virtual bool equalsTo(const IEquatable *other) const = 0;

    /// True when `other` has the same dynamic type as this object; false for null.
    virtual bool sameTypeAs(const IEquatable *other) const
    {
        return other != nullptr && typeid(*this) == typeid(*other);
    }
};

} // namespace Norvane::Interfaces
