// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace Norvane::Interfaces {

/// An object with a text form for people.
///
/// Implementations override the first form; the short ones always end in it. A class that overrides
/// it hides the short ones unless it says `using IFormattable::toString;`.
class VCORE_EXPORT IFormattable
{
public:
    /// The text of this object; what `format` means is the implementation's, empty is its default.
    virtual QString toString(const QString &format, const QLocale &locale) const = 0;

    /// The default text, as `locale` writes it.
    virtual QString toString(const QLocale &locale) const { return toString(QString(), locale); }

    /// The text for `format`, as the default locale writes it.
    virtual QString toString(const QString &format) const { return toString(format, QLocale()); }

    /// The default text, as the default locale writes it.
    virtual QString toString() const { return toString(QString(), QLocale()); }

    virtual ~IFormattable();
};

} // namespace Norvane::Interfaces
