// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QLocale>

namespace Norvane {

/// A locale made from its name and its number options in one step.
///
/// An empty or unknown name gives the C locale, never the user's.
class VCORE_EXPORT VLocale : public QLocale
{
public:
    /// The locale called `name` ("en-US", "it_IT"), which writes and reads numbers with `options`.
    explicit VLocale(const QString &name, NumberOptions options = DefaultNumberOptions);
};

} // namespace Norvane
