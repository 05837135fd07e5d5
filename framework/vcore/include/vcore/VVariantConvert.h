// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace Norvane {

/// The process-wide registry of functions that turn variants of a type into text.
///
/// Threads: every operation from any thread.
class VCORE_EXPORT VVariantConvert
{
public:
    /// Writes the value in `value`, whose type is the one registered, as `locale` writes it.
    using Converter = QString (*)(const QVariant &value, const QString &format,
                                  const QLocale &locale);

    /// Registers `converter` for the meta-type `metaTypeId`; a later registration replaces it.
    static void sVariantToStringRegister(int metaTypeId, Converter converter);

    /// Takes `converter` out again, as often as it was registered, unless another one has replaced
    /// it since: libraries that registered the same one do not take it away from each other.
    static void sVariantToStringUnregister(int metaTypeId, Converter converter);

    /// The converter of the meta-type, or null.
    static Converter converter(int metaTypeId);
};

} // namespace Norvane
