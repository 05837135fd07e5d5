// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VLocale.h>

namespace Norvane {

VLocale::VLocale(const QString &name, NumberOptions options)
    // A null or empty name must not fall back to the user's locale: stored text is read with it.
    : QLocale(name.isEmpty() ? QStringLiteral("C") : name)
{
    setNumberOptions(options);
}

} // namespace Norvane
