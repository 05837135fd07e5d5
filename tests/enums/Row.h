// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

namespace Tables {

/// A number of an enumeration and one of its names.
struct Row
{
    qint64 number;
    const char *name;
};

} // namespace Tables
