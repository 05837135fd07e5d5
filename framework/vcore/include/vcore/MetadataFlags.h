// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// When a metadata entry of a record is to be dropped.
enum class MetadataFlags : int
{
    None = 0x00, ///< The entry stays.
    KillOnCopy = 0x01, ///< The entry does not travel with a copy of the record.
    KillOnSave = 0x02, ///< The entry is not written into the record's JSON.
    KillOnSpaceTransform = 0x04, ///< The entry goes when the space is transformed.
    KillOnChanges = 0x08, ///< The entry goes at any change.
    KillOnPhysicalChange = 0x10, ///< The entry goes at a physical change.
    Volatile = 0x1F, ///< All of the above at once; deliberately no bit of its own.
};
VCORE_DECLARE_FLAGS(MetadataFlags)

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, MetadataFlags, VEnumBaseFlags)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::MetadataFlags)
