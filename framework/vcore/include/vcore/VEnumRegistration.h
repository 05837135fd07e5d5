// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vcore/VEnumRegistry.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// While it lives, the enumerations of these runtime classes are known, in this order, to the
/// directory of enumerations and, if they are declared to the meta-type system, as converters of
/// variants to text. Its destruction undoes that in reverse. No runtime object is built by it.
template<typename... Runtimes>
class VEnumRegistration
{
public:
    VEnumRegistration() { (add<Runtimes>(), ...); }
    ~VEnumRegistration()
    {
        // A fold over assignments runs from the last one to the first.
        int order = 0;
        ((remove<Runtimes>(), order) = ... = 0);
    }
    Q_DISABLE_COPY_MOVE(VEnumRegistration)

private:
    template<typename Runtime>
    static void add()
    {
        using Enum = typename Runtime::Enum;
        if constexpr (bool(QMetaTypeId<Enum>::Defined))
            VVariantConvert::sVariantToStringRegister(qMetaTypeId<Enum>(), &Runtime::convert);
        VEnumRegistry::insert(Runtime::shortName(), &Runtime::object);
    }
    template<typename Runtime>
    static void remove()
    {
        using Enum = typename Runtime::Enum;
        VEnumRegistry::remove(Runtime::shortName(), &Runtime::object);
        if constexpr (bool(QMetaTypeId<Enum>::Defined))
            VVariantConvert::sVariantToStringUnregister(qMetaTypeId<Enum>(), &Runtime::convert);
    }
};

} // namespace Norvane
