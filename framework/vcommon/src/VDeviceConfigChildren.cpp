// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDeviceConfigChildren.h"

#include "LateConfig.h"
#include "OpaqueConfig.h"
#include "VDeviceConfigRegistry.h"

#include <vcommon/VDeviceConfig.h>
#include <vcommon/VDeviceConfigCodec.h>

#include <QtCore/QJsonArray>

#include <algorithm>

namespace Norvane::Hardware {

namespace {

using Config = VDeviceConfigChildren::Config;

bool isOfKind(const Config &config, const QUuid &id)
{
    return id.isNull() || config.id() == id;
}

QJsonObject treeOf(const QJsonObject &object)
{
    return object;
}

QJsonObject treeOf(const VJsonTextObject &object)
{
    return object.toJsonObject();
}

bool losesMetadataInACopy(const Config &config)
{
    const auto entries = config.metadataList();
    return std::any_of(entries.begin(), entries.end(), [](const auto *entry) {
        return (entry->flags() & MetadataFlags::KillOnCopy) != MetadataFlags::None;
    });
}

} // namespace

VDeviceConfigChildren::Pointer VDeviceConfigChildren::copyOf(const Pointer &children)
{
    return children && !children->m_shareable ? children->clones() : children;
}

template<typename Array>
VDeviceConfigChildren::Pointer VDeviceConfigChildren::fromJson(const Array &array,
                                                               const Prototypes &prototypes)
{
    Pointer children(new VDeviceConfigChildren);
    for (const auto &element : array) {
        if (!element.isObject())
            continue;
        const auto envelope = element.toObject();
        std::unique_ptr<Config> config = prototypes.create(envelope);
        if (!config)
            config = std::make_unique<OpaqueConfig>(treeOf(envelope));
        children->append(std::move(config));
    }
    return children->isEmpty() ? Pointer() : children;
}

template VDeviceConfigChildren::Pointer VDeviceConfigChildren::fromJson(const QJsonArray &,
                                                                        const Prototypes &);
template VDeviceConfigChildren::Pointer VDeviceConfigChildren::fromJson(const VJsonTextArray &,
                                                                        const Prototypes &);

template<>
void VDeviceConfigChildren::write(VJsonTreeWriter &array) const
{
    for (const auto &config : m_configs)
        array.append(config->toJsonObject());
}

template<>
void VDeviceConfigChildren::write(VJsonTextWriter &array) const
{
    for (const auto &config : m_configs) {
        if (codecOf(config.get()) != nullptr)
            array.object([&](auto &envelope) {
                static_cast<const VDeviceConfig &>(*config).writeText(envelope);
            });
        else
            array.append(config->toJsonObject());
    }
}

VDeviceConfigChildren::Pointer VDeviceConfigChildren::clones() const
{
    Pointer copy(new VDeviceConfigChildren);
    copy->m_configs.reserve(m_configs.size());
    for (const auto &config : m_configs)
        copy->appendClone(*config);
    return copy;
}

void VDeviceConfigChildren::append(std::unique_ptr<Config> config)
{
    // A shared child stays what it is, a cloned one may lose metadata, and of a class of the host's
    // own nothing is known: records that would show the difference are cloned.
    const auto *base = dynamic_cast<const VDeviceConfig *>(config.get());
    if (base != nullptr)
        base->decodeNow(); // The records that share a child only read it, from any thread.
    m_shareable = m_shareable && base != nullptr && !losesMetadataInACopy(*config)
        && (!base->m_children || base->m_children->m_shareable);
    m_configs.push_back(std::move(config));
}

void VDeviceConfigChildren::appendClone(const Config &config)
{
    auto copy = std::unique_ptr<Config>(static_cast<Config *>(config.clone()));
    // Nor may a child be shared that equals itself but not its copy, as one that holds a NaN.
    m_shareable = m_shareable && copy->equalsTo(&config);
    append(std::move(copy));
}

void VDeviceConfigChildren::appendReachable(std::unique_ptr<Config> config)
{
    m_shareable = false;
    m_configs.push_back(std::move(config));
}

QList<Config *> VDeviceConfigChildren::handOut(const QUuid &id)
{
    m_shareable = false;
    QList<Config *> list;
    for (const auto &config : m_configs) {
        if (isOfKind(*config, id))
            list.append(config.get());
    }
    return list;
}

int VDeviceConfigChildren::count(const QUuid &id, bool deep) const
{
    int count = 0;
    for (const auto &config : m_configs)
        count += (isOfKind(*config, id) ? 1 : 0) + (deep ? config->count(id, true) : 0);
    return count;
}

bool VDeviceConfigChildren::contains(const QUuid &id, bool deep) const
{
    return std::any_of(m_configs.begin(), m_configs.end(), [&](const auto &config) {
        return isOfKind(*config, id) || (deep && config->contains(id, true));
    });
}

bool VDeviceConfigChildren::contains(const Config *config, bool deep) const
{
    return std::any_of(m_configs.begin(), m_configs.end(), [&](const auto &child) {
        return child.get() == config
            || (deep && child->contains(const_cast<Config *>(config), true));
    });
}

void VDeviceConfigChildren::remove(const QUuid &id, bool deep)
{
    std::erase_if(m_configs, [&](const auto &config) { return isOfKind(*config, id); });
    if (deep) {
        for (const auto &config : m_configs)
            config->remove(id, true);
    }
}

bool VDeviceConfigChildren::remove(const Config *config, bool deep)
{
    if (std::erase_if(m_configs, [&](const auto &child) { return child.get() == config; }) > 0)
        return true;
    return deep && std::any_of(m_configs.begin(), m_configs.end(), [&](const auto &child) {
               return child->remove(const_cast<Config *>(config), true);
           });
}

bool VDeviceConfigChildren::equals(const VDeviceConfigChildren &other) const
{
    return std::equal(m_configs.begin(), m_configs.end(), other.m_configs.begin(),
                      other.m_configs.end(),
                      [](const auto &a, const auto &b) { return a->equalsTo(b.get()); });
}

} // namespace Norvane::Hardware
