// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VPrintUnitDriver.h>

#include "drivers/RecordCodec.h"
#include "enums/ChannelV100Sort_T.h"
#include "enums/Channel_T.h"

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

const RecordCodec<VPrintUnitDriver> kCodec;

/// The version of the format that this library writes, and the first that sorts channels by name.
constexpr VVersion kFormatVersion(1, 1, 0);

constexpr QLatin1StringView kChannels{"channels"};
constexpr QLatin1StringView kCustomVerticalResolution{"customVerticalResolution"};
constexpr QLatin1StringView kCustomHorizontalResolution{"customHorizontalResolution"};

QStringList sortedByName(const QList<Channel> &channels)
{
    QStringList names;
    for (const Channel channel : channels)
        names.append(Channel_T::instance().textOf(channel));
    std::sort(names.begin(), names.end());
    return names;
}

/// The order of format 1.0, which numbered the channels differently: its records keep their ids.
QStringList sortedAsInFormat10(const QList<Channel> &channels)
{
    QList<ChannelV100Sort> numbers;
    for (const Channel channel : channels)
        numbers.append(
            ChannelV100Sort_T::instance().valueOf(Channel_T::instance().textOf(channel)));
    std::sort(numbers.begin(), numbers.end());
    QStringList names;
    for (const ChannelV100Sort number : numbers)
        names.append(ChannelV100Sort_T::instance().textOf(number));
    return names;
}

} // namespace

VPrintUnitDriver::VPrintUnitDriver()
    : VPrintUnitDriver(QUuid())
{ }

VPrintUnitDriver::VPrintUnitDriver(const QUuid &deviceId)
    : VDeviceConfig(deviceId, kFormatVersion, QString(), QString())
{ }

VPrintUnitDriver::VPrintUnitDriver(const VPrintUnitDriver &other) = default;

VPrintUnitDriver &VPrintUnitDriver::operator=(const VPrintUnitDriver &other) = default;

VPrintUnitDriver::~VPrintUnitDriver() = default;

bool VPrintUnitDriver::operator==(const VPrintUnitDriver &other) const
{
    if (this == &other)
        return true;
    return std::equal(m_channels.begin(), m_channels.end(), other.m_channels.begin(),
                      other.m_channels.end())
        && m_customVerticalResolution == other.m_customVerticalResolution
        && m_customHorizontalResolution == other.m_customHorizontalResolution
        && VDeviceConfig::operator==(other);
}

Interfaces::ICloneable *VPrintUnitDriver::clone() const
{
    return new VPrintUnitDriver(*this);
}

QUuid VPrintUnitDriver::id() const
{
    static const QUuid kind(u"{8f5c90c1-c516-487b-bd10-603583444346}"_s);
    return kind;
}

bool VPrintUnitDriver::equalsTo(const Interfaces::IEquatable *other) const
{
    return sameTypeAs(other) && *this == static_cast<const VPrintUnitDriver &>(*other);
}

QList<Channel> VPrintUnitDriver::channels() const
{
    return m_channels;
}

void VPrintUnitDriver::setChannels(const QList<Channel> &channels)
{
    m_channels = channels;
}

bool VPrintUnitDriver::customHorizontalResolution() const
{
    return m_customHorizontalResolution;
}

void VPrintUnitDriver::setCustomHorizontalResolution(bool custom)
{
    m_customHorizontalResolution = custom;
}

bool VPrintUnitDriver::customVerticalResolution() const
{
    return m_customVerticalResolution;
}

void VPrintUnitDriver::setCustomVerticalResolution(bool custom)
{
    m_customVerticalResolution = custom;
}

template<typename Writer>
void VPrintUnitDriver::writeJson(Writer &object) const
{
    object.array(kChannels, [this](auto &array) {
        for (const Channel channel : m_channels)
            array.append(Channel_T::instance().textOf(channel));
    });
    object.insert(kCustomHorizontalResolution, m_customHorizontalResolution);
    object.insert(kCustomVerticalResolution, m_customVerticalResolution);
}

template<typename Object>
void VPrintUnitDriver::readJson(const Object &object)
{
    QList<Channel> channels;
    const auto names = object.value(kChannels).toArray();
    for (const auto &name : names)
        channels.append(Channel_T::instance().valueOf(name));
    m_channels = channels;
    m_customVerticalResolution = object.value(kCustomVerticalResolution).toBool();
    m_customHorizontalResolution = object.value(kCustomHorizontalResolution).toBool();
}

QJsonObject VPrintUnitDriver::toInnerJsonObject() const
{
    VJsonTreeWriter writer;
    writeJson(writer);
    return writer.members();
}

bool VPrintUnitDriver::setInnerJsonObject(const QJsonObject &object)
{
    readJson(object);
    return true;
}

const Hardware::VDeviceConfigCodec *VPrintUnitDriver::codec() const
{
    return codecFor(*this, kCodec);
}

QUuid VPrintUnitDriver::innerDataId(bool *ok) const
{
    if (ok != nullptr)
        *ok = true;
    const QStringList names =
        version() >= kFormatVersion ? sortedByName(m_channels) : sortedAsInFormat10(m_channels);
    return QUuid::createUuidV5(deviceId(), names.join(u';'));
}

bool VPrintUnitDriver::innerIsEmpty() const
{
    return m_channels.isEmpty() && VDeviceConfig::innerIsEmpty();
}

} // namespace Norvane::Kilnjet
