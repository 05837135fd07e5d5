// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QByteArray>

namespace Norvane::Interfaces {

/// An object with a digest of its content.
class VCORE_EXPORT IHashable
{
public:
    virtual ~IHashable();

    /// The digest, as raw bytes; equal content gives equal bytes.
    virtual QByteArray hash() const = 0;
};

} // namespace Norvane::Interfaces
