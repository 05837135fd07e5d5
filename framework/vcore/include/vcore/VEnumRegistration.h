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
/// variants to text. Its destruction, when a library is unloaded, undoes that in reverse and leaves
/// nothing behind that points into the library. No runtime object is built by it.
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
    static constexpr bool kIsMetaType = QMetaTypeId<typename Runtime::Enum>::Defined;

    template<typename Runtime>
    static void add()
    {
        if constexpr (kIsMetaType<Runtime>) {
            const QMetaType type = QMetaType::fromType<typename Runtime::Enum>();
            VVariantConvert::sVariantToStringRegister(type.id(), &Runtime::convert);
        }
        VEnumRegistry::insert(Runtime::shortName(), &Runtime::object);
    }
    template<typename Runtime>
    static void remove()
    {
        VEnumRegistry::remove(Runtime::shortName(), &Runtime::object);
        if constexpr (kIsMetaType<Runtime>) {
            const QMetaType type = QMetaType::fromType<typename Runtime::Enum>();
            VVariantConvert::sVariantToStringUnregister(type.id(), &Runtime::convert);
            // Each library has its own description of a type, and Qt knows the first that came. If
            // that is this library's, looking the type up after the unload would crash.
            if (QMetaType(type.id()).iface() == type.iface())
                QMetaType::unregisterMetaType(type);
        }
    }
};

} // namespace Norvane
