// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace Norvane {

/// Conversions between numbers, variants and text. All are thread-safe and never fail loudly.
class VCORE_EXPORT VConvert
{
public:
    /// The number as `locale` writes integers.
    static QString toString(int value, const QLocale &locale);
    /// The same for 64 bits.
    static QString toString(qint64 value, const QLocale &locale);

    /// The number as `locale` writes it in `format`: one of QLocale's letters (e, E, f, F, g, G)
    /// and a precision of 0 to 99, such as "f2" or "g6". An empty or unknown format gives the
    /// shortest text that reads back as the same number.
    static QString toString(const double &value, const QString &format, const QLocale &locale);

    /// The value as text: through the converter registered for its type (VVariantConvert), as
    /// `locale` writes integers and doubles, else as QVariant does. A null variant gives an empty
    /// text.
    static QString toString(const QVariant &value, const QLocale &locale);

    /// The integer that `text` shows; 0 when it is no number or does not fit. Base 10 is read as
    /// `locale` writes it, any other base (2 to 36) in plain digits; there is no other base.
    static qint64 toInt64(const QString &text, const QLocale &locale, int base = 10);
};

} // namespace Norvane
