// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/FilterOptions.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging::Filters {

namespace {
constexpr VEnumEntry<FilterOptions> kNames[] = {
    {FilterOptions::None, "None"_L1},
    {FilterOptions::ApplyInPlace, "ApplyInPlace"_L1},
    {FilterOptions::Progressive, "Progressive"_L1},
    {FilterOptions::MultiImageConcurrence, "MultiImageConcurrence"_L1},
    {FilterOptions::NoopNotPermitted, "NoopNotPermitted"_L1},
    {FilterOptions::All, "All"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(FilterOptions, kNames)

} // namespace Norvane::Imaging::Filters
