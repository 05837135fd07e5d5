// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/SILengthUnit.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<SILengthUnit> kNames[] = {
    {SILengthUnit::YoctoMeter, "YoctoMeter"_L1}, {SILengthUnit::ZeptoMeter, "ZeptoMeter"_L1},
    {SILengthUnit::AttoMeter, "AttoMeter"_L1},   {SILengthUnit::FemtoMeter, "FemtoMeter"_L1},
    {SILengthUnit::PicoMeter, "PicoMeter"_L1},   {SILengthUnit::NanoMeter, "NanoMeter"_L1},
    {SILengthUnit::MicroMeter, "MicroMeter"_L1}, {SILengthUnit::MilliMeter, "MilliMeter"_L1},
    {SILengthUnit::CentiMeter, "CentiMeter"_L1}, {SILengthUnit::DeciMeter, "DeciMeter"_L1},
    {SILengthUnit::Meter, "Meter"_L1},           {SILengthUnit::DecaMeter, "DecaMeter"_L1},
    {SILengthUnit::HectoMeter, "HectoMeter"_L1}, {SILengthUnit::KiloMeter, "KiloMeter"_L1},
    {SILengthUnit::MegaMeter, "MegaMeter"_L1},   {SILengthUnit::GigaMeter, "GigaMeter"_L1},
    {SILengthUnit::TeraMeter, "TeraMeter"_L1},   {SILengthUnit::PetaMeter, "PetaMeter"_L1},
    {SILengthUnit::ExaMeter, "ExaMeter"_L1},     {SILengthUnit::ZettaMeter, "ZettaMeter"_L1},
    {SILengthUnit::YottaMeter, "YottaMeter"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(SILengthUnit, kNames)

} // namespace Norvane
