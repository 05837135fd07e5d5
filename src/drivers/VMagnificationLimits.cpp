// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VMagnificationLimits.h>

#include <vcore/VConvert.h>

#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

VMagnificationLimits::VMagnificationLimits(double minimum, double maximum)
    : VPair(minimum, maximum)
{ }

VMagnificationLimits::VMagnificationLimits(const VMagnificationLimits &other) = default;
VMagnificationLimits &VMagnificationLimits::operator=(const VMagnificationLimits &other) = default;
VMagnificationLimits::~VMagnificationLimits() = default;

Interfaces::ICloneable *VMagnificationLimits::clone() const
{
    return new VMagnificationLimits(*this);
}

QString VMagnificationLimits::toString(const QString &format, const QLocale &locale) const
{
    const QStringList formats = format.split(u'\n', Qt::KeepEmptyParts);
    return u"%1; %2"_s.arg(VConvert::toString(first, formats.value(0), locale),
                           VConvert::toString(second, formats.value(1), locale));
}

} // namespace Norvane::Kilnjet
