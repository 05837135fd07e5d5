// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The destructors of the interfaces stand here, so that each has one home for its virtual table.

#include <vcore/ICloneable.h>
#include <vcore/IEquatable.h>
#include <vcore/IFormattable.h>
#include <vcore/IHashable.h>
#include <vcore/IJsonConvertible.h>
#include <vcore/IMetadata.h>
#include <vcore/IMetadatable.h>
#include <vcore/IVEnum.h>
#include <vcore/IValidity.h>
#include <vcore/VEnumRuntimeLoader.h>

namespace Norvane {

IVEnum::~IVEnum() = default;
IVEnumRuntimeLoader::~IVEnumRuntimeLoader() = default;

namespace Interfaces {

ICloneable::~ICloneable() = default;
IEquatable::~IEquatable() = default;
IFormattable::~IFormattable() = default;
IHashable::~IHashable() = default;
IJsonConvertible::~IJsonConvertible() = default;
IMetadata::~IMetadata() = default;
IMetadatable::~IMetadatable() = default;
IValidity::~IValidity() = default;

} // namespace Interfaces
} // namespace Norvane
