// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/ICloneable.h>

#include <utility>

namespace Norvane {

/// A `std::pair` that can be cloned.
template<typename First, typename Second>
class VPair : public std::pair<First, Second>, public Interfaces::ICloneable
{
public:
    VPair()
        : std::pair<First, Second>()
    { }
    VPair(const First &firstValue, const Second &secondValue)
        : std::pair<First, Second>(firstValue, secondValue)
    { }

    Interfaces::ICloneable *clone() const override { return new VPair(*this); }
};

} // namespace Norvane
