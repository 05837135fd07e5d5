// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ClassSignature.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ClassSignature> kNames[] = {
    {ClassSignature::Input, "Input"_L1},           {ClassSignature::Display, "Display"_L1},
    {ClassSignature::Output, "Output"_L1},         {ClassSignature::Link, "Link"_L1},
    {ClassSignature::Abstract, "Abstract"_L1},     {ClassSignature::ColorSpace, "ColorSpace"_L1},
    {ClassSignature::NamedColor, "NamedColor"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ClassSignature, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
