// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IVEnum.h>

namespace Norvane {

/// A host's addition to an enumeration's names, made when its runtime object is built.
class VCORE_EXPORT IVEnumRuntimeLoader
{
public:
    virtual ~IVEnumRuntimeLoader();

    /// The short name of the enumeration that this loader is for.
    virtual QString name() const = 0;

    /// Adds names to `object`, which the library has just filled. Called once, in whichever thread
    /// uses the enumeration first, while other threads that need it wait: it must not convert
    /// values of this enumeration itself.
    virtual void applyTo(IVEnum *object) = 0;
};

/// The process-wide registry of run-time loaders, by the enumeration's short name.
///
/// A loader must be registered before the enumeration is used for the first time. It stays its
/// owner's, who removes it before deleting it, and not while the enumeration may be built.
/// Threads: every operation from any thread.
class VCORE_EXPORT VEnumRuntimeLoader
{
public:
    /// The loader registered for the short name, or null, which is the normal case.
    static IVEnumRuntimeLoader *loader(const QString &name);

    /// Registers `loader` under its own name(); false when it is null or the name is taken.
    [[nodiscard]] static bool insert(IVEnumRuntimeLoader *loader);

    /// Takes `loader` out again; nothing happens when it is not registered.
    static void remove(IVEnumRuntimeLoader *loader);
};

} // namespace Norvane
