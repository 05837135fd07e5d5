// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDeviceConfig.h>

#include <QtCore/QSharedData>
#include <QtCore/QSharedDataPointer>

#include <memory>
#include <vector>

namespace Norvane::Hardware {

class Prototypes;

/// The children of a record, shared by its copies as long as nobody can tell.
///
/// Copies of a record are independent of each other, so a block is shared only while no one but
/// its records can reach a child: handing out a pointer first makes the block the record's own, and
/// ends its sharing for good. Shared blocks are only read, from any thread.
class VDeviceConfigChildren : public QSharedData
{
public:
    using Pointer = QExplicitlySharedDataPointer<VDeviceConfigChildren>;
    using Config = Interfaces::IVDeviceConfig;

    /// The children of a copy of the record that has `children`: the same ones or clones.
    static Pointer copyOf(const Pointer &children);
    /// The children that an envelope lists; null when there are none. Objects of a kind that is not
    /// registered are kept as they came, elements that are no objects are skipped.
    template<typename Array>
    static Pointer fromJson(const Array &array, const Prototypes &prototypes);
    /// Writes the envelopes as elements of an array.
    template<typename Writer>
    void write(Writer &array) const;

    /// A block of clones.
    Pointer clones() const;
    /// Appends a copy of `config`.
    void appendClone(const Config &config);
    /// Appends a child to which the caller keeps a pointer.
    void appendReachable(std::unique_ptr<Config> config);
    /// The children of the kind `id`, as pointers for the caller to keep.
    QList<Config *> handOut(const QUuid &id);

    bool isShareable() const { return m_shareable; }
    bool isEmpty() const { return m_configs.empty(); }
    int count(const QUuid &id, bool deep) const;
    bool contains(const QUuid &id, bool deep) const;
    /// Whether `config` is among the children; compared by identity.
    bool contains(const Config *config, bool deep) const;
    void remove(const QUuid &id, bool deep);
    bool remove(const Config *config, bool deep);
    /// Equal children in the same order, by equalsTo().
    bool equals(const VDeviceConfigChildren &other) const;

private:
    void append(std::unique_ptr<Config> config);

    std::vector<std::unique_ptr<Config>> m_configs;
    bool m_shareable = true;
};

} // namespace Norvane::Hardware
