// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "catalogue/Catalogue.h"

#include <optional>

class QCoreApplication;

namespace Bench {

/// What a run is asked for.
struct Options
{
    QList<int> sizes{100, 1'000, 10'000}; ///< Of the catalogue without icons.
    QList<int> iconSizes{1'000}; ///< Of those with icons.
    QList<Variant> variants{Variant::Plain, Variant::Png, Variant::Svg};
    QStringList contenders; ///< Parts of names; empty means all.
    int runs = 5;
    quint32 seed = 1;
    QString output; ///< The folder for the results and, while it runs, for the stores.
};

/// Reads the command line; nothing when it makes no sense, which is then said.
std::optional<Options> optionsFrom(const QCoreApplication &application);

} // namespace Bench
