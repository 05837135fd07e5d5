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
    VResolution() = default;
    VResolution(double x, double y, ResolutionUnit unit = ResolutionUnit::DPI);

    /// The horizontal value, in unit().
    double x() const { return m_x; }
    void setX(double x) { m_x = x; }
    /// The vertical value, in unit().
    double y() const { return m_y; }
    void setY(double y) { m_y = y; }
    ResolutionUnit unit() const { return m_unit; }
    void setUnit(ResolutionUnit unit) { m_unit = unit; }

    QJsonObject toJsonObject() const;
    static VResolution fromJsonObject(const QJsonObject &object) { return fromJson(object); }
    /// The same from any reader of JSON objects, and to any writer of them.
    template<typename Object>
    static VResolution fromJson(const Object &object)
    {
        return {object.value(QLatin1StringView("x")).toDouble(),
                object.value(QLatin1StringView("y")).toDouble(),
                ResolutionUnit_T::instance().valueOf(object.value(QLatin1StringView("unit")))};
    }
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
    bool operator!=(const VResolution &other) const { return !(*this == other); }

private:
    double m_x = 0.0;
    double m_y = 0.0;
    ResolutionUnit m_unit = ResolutionUnit::PPM;
};

} // namespace Norvane::Imaging
