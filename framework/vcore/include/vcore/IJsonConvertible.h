// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QJsonObject>

namespace Norvane::Interfaces {

/// An object with a JSON form.
class VCORE_EXPORT IJsonConvertible
{
public:
    virtual ~IJsonConvertible();

    /// The whole object as JSON.
    virtual QJsonObject toJsonObject() const = 0;
};

} // namespace Norvane::Interfaces
