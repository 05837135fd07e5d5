// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VVariantConvert.h>

#include "FunctionRegistry.h"

namespace Norvane {

namespace {

using Registry = FunctionRegistry<int, VVariantConvert::Converter>;

/// Never destroyed: libraries register and unregister while the process is going down.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

} // namespace

void VVariantConvert::sVariantToStringRegister(int metaTypeId, Converter converter)
{
    registry().insert(metaTypeId, converter);
}

void VVariantConvert::sVariantToStringUnregister(int metaTypeId, Converter converter)
{
    registry().remove(metaTypeId, converter);
}

VVariantConvert::Converter VVariantConvert::converter(int metaTypeId)
{
    return registry().find(metaTypeId);
}

} // namespace Norvane
