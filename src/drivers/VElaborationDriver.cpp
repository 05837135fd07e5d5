// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VElaborationDriver.h>

#include "drivers/RecordCodec.h"
#include "enums/ElaborationType_T.h"
#include "enums/LevelManagement_T.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <bit>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

const RecordCodec<VElaborationDriver> kCodec;

using Imaging::VResolution;

/// The version of the format that this library writes.
constexpr VVersion kFormatVersion(1, 0, 0);

constexpr QLatin1StringView kScrollRatioList{"scrollRatioList"};
constexpr QLatin1StringView kResolutionList{"resolutionList"};
constexpr QLatin1StringView kLevelManagementList{"levelManagementList"};
constexpr QLatin1StringView kElaborationType{"elaborationType"};
constexpr QLatin1StringView kAllowOnlineElaboration{"allowOnlineElaboration"};
constexpr QLatin1StringView kPrefered{"prefered"};
constexpr QLatin1StringView kMagnificationMin{"magnificationMin"};
constexpr QLatin1StringView kMagnificationMax{"magnificationMax"};

template<typename Element>
bool sameElements(const QList<Element> &a, const QList<Element> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

bool sameBits(const QList<double> &a, const QList<double> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double left, double right) {
        return std::bit_cast<quint64>(left) == std::bit_cast<quint64>(right);
    });
}

/// The elements of a JSON array, each as `convert` makes it from its value.
template<typename Element, typename Array, typename Convert>
QList<Element> listFromJson(const Array &array, Convert convert)
{
    QList<Element> list;
    for (const auto &value : array)
        list.append(convert(value));
    return list;
}

} // namespace

VElaborationDriver::VElaborationDriver()
    : VElaborationDriver(QUuid())
{ }

VElaborationDriver::VElaborationDriver(const QUuid &deviceId)
    : VDeviceConfig(deviceId, kFormatVersion, QString(), QString())
{ }

VElaborationDriver::VElaborationDriver(const VElaborationDriver &other) = default;

VElaborationDriver &VElaborationDriver::operator=(const VElaborationDriver &other) = default;

VElaborationDriver::~VElaborationDriver() = default;

bool VElaborationDriver::operator==(const VElaborationDriver &other) const
{
    if (this == &other)
        return true;
    return m_prefered == other.m_prefered
        && m_allowOnlineElaboration == other.m_allowOnlineElaboration
        && m_elaborationType == other.m_elaborationType
        && sameElements(m_levelManagementList, other.m_levelManagementList)
        && sameBits(m_scrollRatioList, other.m_scrollRatioList)
        && sameElements(m_resolutionList, other.m_resolutionList)
        && m_magnification.first == other.m_magnification.first
        && m_magnification.second == other.m_magnification.second
        && VDeviceConfig::operator==(other);
}

Interfaces::ICloneable *VElaborationDriver::clone() const
{
    return new VElaborationDriver(*this);
}

QUuid VElaborationDriver::id() const
{
    static const QUuid kind(u"{488e105b-5aac-427d-92d3-1de3f94f8c7f}"_s);
    return kind;
}

bool VElaborationDriver::equalsTo(const Interfaces::IEquatable *other) const
{
    return sameTypeAs(other) && *this == static_cast<const VElaborationDriver &>(*other);
}

bool VElaborationDriver::allowOnlineElaboration() const
{
    return m_allowOnlineElaboration;
}

void VElaborationDriver::setAllowOnlineElaboration(bool allow)
{
    m_allowOnlineElaboration = allow;
}

bool VElaborationDriver::isPrefered() const
{
    return m_prefered;
}

void VElaborationDriver::setPrefered(bool prefered)
{
    m_prefered = prefered;
}

ElaborationType VElaborationDriver::elaborationType() const
{
    return m_elaborationType;
}

void VElaborationDriver::setElaborationType(const ElaborationType &type)
{
    m_elaborationType = type;
}

VMagnificationLimits VElaborationDriver::magnification() const
{
    return m_magnification;
}

void VElaborationDriver::setMagnification(const VMagnificationLimits &limits)
{
    m_magnification = limits;
}

QList<LevelManagement> VElaborationDriver::levelManagementList() const
{
    return m_levelManagementList;
}

void VElaborationDriver::setLevelManagementList(const QList<LevelManagement> &list)
{
    m_levelManagementList = list;
}

QList<double> VElaborationDriver::scrollRatioList() const
{
    return m_scrollRatioList;
}

void VElaborationDriver::setScrollRatioList(const QList<double> &list)
{
    m_scrollRatioList = list;
}

QList<VResolution> VElaborationDriver::resolutionList() const
{
    return m_resolutionList;
}

void VElaborationDriver::setResolutionList(const QList<VResolution> &list)
{
    m_resolutionList = list;
}

template<typename Writer>
void VElaborationDriver::writeJson(Writer &object) const
{
    object.insert(kAllowOnlineElaboration, m_allowOnlineElaboration);
    object.insert(kElaborationType, ElaborationType_T::instance().textOf(m_elaborationType));
    object.array(kLevelManagementList, [this](auto &array) {
        for (const LevelManagement mode : m_levelManagementList)
            array.append(LevelManagement_T::instance().textOf(mode));
    });
    object.insert(kMagnificationMax, m_magnification.second);
    object.insert(kMagnificationMin, m_magnification.first);
    object.insert(kPrefered, m_prefered);
    object.array(kResolutionList, [this](auto &array) {
        for (const VResolution &resolution : m_resolutionList)
            array.object([&](auto &element) { resolution.writeJson(element); });
    });
    object.array(kScrollRatioList, [this](auto &array) {
        for (const double ratio : m_scrollRatioList)
            array.append(ratio);
    });
}

template<typename Object>
void VElaborationDriver::readJson(const Object &object)
{
    m_scrollRatioList = listFromJson<double>(object.value(kScrollRatioList).toArray(),
                                             [](const auto &value) { return value.toDouble(); });
    m_resolutionList =
        listFromJson<VResolution>(object.value(kResolutionList).toArray(), [](const auto &value) {
            return VResolution::fromJson(value.toObject());
        });
    m_levelManagementList = listFromJson<LevelManagement>(
        object.value(kLevelManagementList).toArray(),
        [](const auto &value) { return LevelManagement_T::instance().valueOf(value); });
    m_elaborationType = ElaborationType_T::instance().valueOf(object.value(kElaborationType));
    m_allowOnlineElaboration = object.value(kAllowOnlineElaboration).toBool();
    m_prefered = object.value(kPrefered).toBool();
    const double maximum = object.value(kMagnificationMax).toDouble();
    m_magnification = VMagnificationLimits(object.value(kMagnificationMin).toDouble(), maximum);
}

QJsonObject VElaborationDriver::toInnerJsonObject() const
{
    VJsonTreeWriter writer;
    writeJson(writer);
    return writer.members();
}

bool VElaborationDriver::setInnerJsonObject(const QJsonObject &object)
{
    readJson(object);
    return true;
}

const Hardware::VDeviceConfigCodec *VElaborationDriver::codec() const
{
    return codecFor(*this, kCodec);
}

bool VElaborationDriver::innerIsValid() const
{
    return VDeviceConfig::innerIsValid() && m_elaborationType != ElaborationType::None
        && !m_levelManagementList.isEmpty() && !m_resolutionList.isEmpty();
}

bool VElaborationDriver::innerIsEmpty() const
{
    return m_resolutionList.isEmpty() && m_levelManagementList.isEmpty()
        && VDeviceConfig::innerIsEmpty();
}

} // namespace Norvane::Kilnjet
