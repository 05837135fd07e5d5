// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ImageUnusual.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ImageUnusual> kNames[] = {
    {ImageUnusual::None, "None"_L1},
    {ImageUnusual::TiffSepared, "TiffSepared"_L1},
    {ImageUnusual::TiffLab, "TiffLab"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ImageUnusual, kNames)

} // namespace Norvane::Imaging
