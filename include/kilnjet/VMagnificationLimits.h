// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Export.h>
#include <vcore/IFormattable.h>
#include <vcore/VPair.h>

namespace Norvane::Kilnjet {

/// The magnifications between which an elaboration may scale: `first` the smallest, `second` the
/// largest, 0.0 each by default.
///
/// Any two numbers are kept as they are: nothing swaps or checks them.
/// Threads: one at a time for one object. Failures: none.
class VKILNJET_EXPORT VMagnificationLimits : public VPair<double, double>,
                                             public Interfaces::IFormattable
{
public:
    using Interfaces::IFormattable::toString;

    /// 0.0 and 0.0.
    VMagnificationLimits() = default;
    /// `minimum` as `first`, `maximum` as `second`.
    VMagnificationLimits(double minimum, double maximum);
    /// A copy.
    VMagnificationLimits(const VMagnificationLimits &other);
    /// Takes both numbers over.
    VMagnificationLimits &operator=(const VMagnificationLimits &other);
    ~VMagnificationLimits() override;

    Interfaces::ICloneable *clone() const override;

    /// "minimum; maximum", as VConvert writes numbers: the minimum in the format that the first
    /// line of `format` gives, the maximum in that of the second line. A missing line is an empty
    /// format.
    QString toString(const QString &format, const QLocale &locale) const override;
};

} // namespace Norvane::Kilnjet
