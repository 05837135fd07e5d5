// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "JsonFile.h"
#include "KeyValueContender.h"

namespace Bench {

/// A file that is one JSON array, which a load parses as one document.
class JsonArray : public KeyValueContender
{
public:
    explicit JsonArray(const QString &name);

    std::optional<Drivers> load() override;
};

} // namespace Bench
