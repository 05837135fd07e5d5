// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ChannelColours.h"

namespace Norvane::Kilnjet::Tool {

namespace {

struct ChannelColour
{
    Channel channel;
    QRgb colour;
};

/// Fired inks are duller than those on paper.
constexpr ChannelColour kColours[] = {
    {Channel::Cyan, 0xFF00A3D9},        {Channel::Magenta, 0xFFC2187A},
    {Channel::Yellow, 0xFFF5D400},      {Channel::Black, 0xFF1E1E1E},
    {Channel::Red, 0xFFC8281E},         {Channel::Green, 0xFF2E8B45},
    {Channel::Blue, 0xFF1F3F94},        {Channel::Aquamarine, 0xFF5FC9B0},
    {Channel::Beige, 0xFFD9C19A},       {Channel::Brown, 0xFF7A4A28},
    {Channel::Ocher, 0xFFC48A2C},       {Channel::Orange, 0xFFE8761E},
    {Channel::Pink, 0xFFE79AB0},        {Channel::Purple, 0xFF7A2E8C},
    {Channel::SkyBlue, 0xFF7EC3EA},     {Channel::Violet, 0xFF5B3A9E},
    {Channel::Turquoise, 0xFF25B5B0},   {Channel::White, 0xFFF7F7F2},
    {Channel::LightCyan, 0xFF9AD9EE},   {Channel::LightMagenta, 0xFFE59CC4},
    {Channel::LightYellow, 0xFFFAEE9A}, {Channel::LightBlack, 0xFF8A8A8A},
    {Channel::DarkRed, 0xFF7A1512},     {Channel::DarkGreen, 0xFF1B5230},
    {Channel::DarkBlue, 0xFF14275E},
};

} // namespace

std::optional<QRgb> channelColour(Channel channel)
{
    for (const ChannelColour &row : kColours) {
        if (row.channel == channel)
            return row.colour;
    }
    return {};
}

} // namespace Norvane::Kilnjet::Tool
