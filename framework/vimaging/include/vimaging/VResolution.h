// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vimaging/Export.h>
#include <vimaging/ResolutionUnit.h>

#include <QtCore/QJsonObject>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace Norvane::Imaging {

/// A resolution: a horizontal and a vertical value and their unit.
///
/// | JSON key | Accessor | JSON type | Fallback |
/// |----------|----------|-----------|----------|
/// | "x"      | x()      | number    | 0        |
/// | "y"      | y()      | number    | 0        |
/// | "unit"   | unit()   | string    | `PPM`, the value 0 |
class VIMAGING_EXPORT VResolution
{
public:
    /// 0 by 0 `PPM`.
    VResolution() = default;
    /// `x` horizontally and `y` vertically, both in `unit`. Nothing checks them.
    VResolution(double x, double y, ResolutionUnit unit = ResolutionUnit::DPI);

    /// The horizontal value, in unit().
    double x() const { return m_x; }
    /// Sets the horizontal value, in unit().
    void setX(double x) { m_x = x; }
    /// The vertical value, in unit().
    double y() const { return m_y; }
    /// Sets the vertical value, in unit().
    void setY(double y) { m_y = y; }
    /// The unit of both values.
    ResolutionUnit unit() const { return m_unit; }
    /// Sets the unit; the values stay as they are.
    void setUnit(ResolutionUnit unit) { m_unit = unit; }

    /// The resolution as JSON, with the keys of the table.
    QJsonObject toJsonObject() const;
    /// Reads a resolution; what is missing or ill-typed takes its fallback.
    static VResolution fromJsonObject(const QJsonObject &object) { return fromJson(object); }
    /// The same from any reader of JSON objects, and to any writer of them.
    template<typename Object>
    static VResolution fromJson(const Object &object)
    {
        return {object.value(QLatin1StringView("x")).toDouble(),
                object.value(QLatin1StringView("y")).toDouble(),
                ResolutionUnit_T::instance().valueOf(object.value(QLatin1StringView("unit")))};
    }
    /// Writes the keys of the table to a writer of JSON.
    template<typename Writer>
    void writeJson(Writer &object) const
    {
        object.insert(QLatin1StringView("unit"), ResolutionUnit_T::instance().textOf(m_unit));
        object.insert(QLatin1StringView("x"), m_x);
        object.insert(QLatin1StringView("y"), m_y);
    }

    /// "400 x 360 DPI", the numbers as `locale` writes them.
    QString toString(const QLocale &locale = QLocale()) const;

    /// Equal values and equal units; no conversion between units takes place.
    bool operator==(const VResolution &other) const;
    /// The contrary of `==`.
    bool operator!=(const VResolution &other) const { return !(*this == other); }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    ResolutionUnit m_unit = ResolutionUnit::PPM;
};

} // namespace Norvane::Imaging
