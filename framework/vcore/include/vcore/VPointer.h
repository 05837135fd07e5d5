// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IValidity.h>

#include <utility>

namespace Norvane {

/// An owning pointer: valid while it holds an object, which it deletes at its own destruction.
///
/// Moves, does not copy.
template<typename T>
class VPointer final : public Interfaces::IValidity
{
public:
    /// An invalid pointer.
    VPointer() = default;
    /// Takes over `pointer`; null gives an invalid pointer.
    explicit VPointer(T *pointer)
        : m_pointer(pointer)
    { }
    /// Takes over what `other` holds, which is invalid from now on.
    VPointer(VPointer &&other) noexcept
        : m_pointer(other.release())
    { }
    /// Deletes what this holds and takes over what `other` holds.
    VPointer &operator=(VPointer &&other) noexcept
    {
        reset(other.release());
        return *this;
    }
    Q_DISABLE_COPY(VPointer)
    ~VPointer() override { delete m_pointer; }

    bool isValid() const override { return m_pointer != nullptr; }
    /// The same as isValid().
    explicit operator bool() const { return m_pointer != nullptr; }

    /// The object, which stays this pointer's; null when there is none.
    T *get() const { return m_pointer; }
    /// The object; there must be one.
    T *operator->() const { return m_pointer; }
    /// The object; there must be one.
    T &operator*() const { return *m_pointer; }

    /// Gives the object up to the caller, who owns it from now on.
    [[nodiscard]] T *release() { return std::exchange(m_pointer, nullptr); }

    /// Deletes the object held, if it is another one, and takes over `pointer`.
    void reset(T *pointer = nullptr)
    {
        if (pointer != m_pointer)
            delete std::exchange(m_pointer, pointer);
    }

private:
    T *m_pointer = nullptr;
};

} // namespace Norvane
