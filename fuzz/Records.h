// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDeviceConfig.h>

#include <memory>

// What targets ask about records.

namespace Fuzz {

using Norvane::Hardware::Interfaces::IVDeviceConfig;
using ConfigPtr = std::unique_ptr<IVDeviceConfig>;

/// The record as compact JSON.
QByteArray compact(const IVDeviceConfig &config);

/// The record that `json` describes, or null.
ConfigPtr fromJson(const QByteArray &json);

/// A copy of the record.
ConfigPtr cloneOf(const IVDeviceConfig &config);

/// Ends the process unless every answer of `actual` is that of `wanted`: ids, fields, metadata,
/// children, JSON and equality. `of` says what `actual` is.
void requireSame(const IVDeviceConfig &actual, const IVDeviceConfig &wanted, const char *of);

/// False when the record holds what has no JSON: a negative zero among the scroll ratios, or a
/// moment outside the years 0 to 9999, which a time zone can lead to.
bool hasJsonForm(const IVDeviceConfig &config);

} // namespace Fuzz
