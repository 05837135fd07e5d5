// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Channel.h>

#include <QtGui/QRgb>

#include <optional>

namespace Norvane::Kilnjet::Tool {

/// About how a print of the channel looks on a screen; nothing for effects, materials and channels
/// whose ink is up to the plant.
std::optional<QRgb> channelColour(Channel channel);

} // namespace Norvane::Kilnjet::Tool
