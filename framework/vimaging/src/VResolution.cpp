// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/VResolution.h>

#include <vcore/VConvert.h>
#include <vcore/VJsonWriter.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

VResolution::VResolution(double x, double y, ResolutionUnit unit)
    : m_x(x)
    , m_y(y)
    , m_unit(unit)
{ }

QJsonObject VResolution::toJsonObject() const
{
    VJsonTreeWriter writer;
    writeJson(writer);
    return writer.members();
}

QString VResolution::toString(const QLocale &locale) const
{
    return u"%1 x %2 %3"_s.arg(VConvert::toString(m_x, QString(), locale),
                               VConvert::toString(m_y, QString(), locale),
                               ResolutionUnit_T::instance().textOf(m_unit));
}

bool VResolution::operator==(const VResolution &other) const
{
    return m_x == other.m_x && m_y == other.m_y && m_unit == other.m_unit;
}

} // namespace Norvane::Imaging
