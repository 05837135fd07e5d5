// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ElaborationGroup.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr ElaborationGroup kGroups[] = {
    {"Bilevel"_L1, "Bilevel elaborations (2 levels)"_L1},
    {"Tetralevel"_L1, "Tetralevel elaborations (4 levels)"_L1},
    {"Octalevel"_L1, "Octalevel elaborations (8 levels)"_L1},
    {"Dodelevel"_L1, "Dodelevel elaborations (12 levels)"_L1},
    {"Fiftlevel"_L1, "Fiftlevel elaborations (15 levels)"_L1},
    {"Hexalevel"_L1, "Hexalevel elaborations (16 levels)"_L1},
    {"Grayscale"_L1, "Grayscale elaborations (continuous tone)"_L1},
    {"HexaWithTetralevel"_L1, "HexaWithTetralevel elaborations"_L1},
    {"None"_L1, "Elaborations without a type"_L1},
};

} // namespace

std::span<const ElaborationGroup> elaborationGroups()
{
    return kGroups;
}

} // namespace Norvane::Kilnjet::Tool
