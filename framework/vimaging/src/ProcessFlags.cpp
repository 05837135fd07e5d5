// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ProcessFlags.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ProcessFlags> kNames[] = {
    {ProcessFlags::None, "None"_L1},
    {ProcessFlags::NoCache, "NoCache"_L1},
    {ProcessFlags::NoOptimize, "NoOptimize"_L1},
    {ProcessFlags::NullTransform, "NullTransform"_L1},
    {ProcessFlags::GamutCheck, "GamutCheck"_L1},
    {ProcessFlags::SoftProofing, "SoftProofing"_L1},
    {ProcessFlags::BlackPointCompensation, "BlackPointCompensation"_L1},
    {ProcessFlags::NoWhiteOnWhiteFixup, "NoWhiteOnWhiteFixup"_L1},
    {ProcessFlags::HighResPrecalc, "HighResPrecalc"_L1},
    {ProcessFlags::LowResPrecalc, "LowResPrecalc"_L1},
    {ProcessFlags::_8BitsDeviceLink, "_8BitsDeviceLink"_L1},
    {ProcessFlags::GuessDeviceClass, "GuessDeviceClass"_L1},
    {ProcessFlags::KeepSequence, "KeepSequence"_L1},
    {ProcessFlags::ForceClut, "ForceClut"_L1},
    {ProcessFlags::ClutPostLinearization, "ClutPostLinearization"_L1},
    {ProcessFlags::ClutPreLinearization, "ClutPreLinearization"_L1},
    {ProcessFlags::NonNegatives, "NonNegatives"_L1},
    {ProcessFlags::CopyAlpha, "CopyAlpha"_L1},
    {ProcessFlags::NoDefaultSourceDef, "NoDefaultSourceDef"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ProcessFlags, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
