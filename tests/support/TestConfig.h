// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDeviceConfig.h>

#include <QtCore/QJsonObject>

#include <atomic>
#include <memory>

namespace Support {

using namespace Qt::StringLiterals;
using Norvane::VVersion;
using Norvane::Hardware::VDeviceConfig;
using Norvane::Hardware::Interfaces::IVDeviceConfig;

/// A record as a host would write one, with a single field of its own. `Kind` makes other classes.
template<int Kind = 0>
class TestConfig : public VDeviceConfig
{
public:
    explicit TestConfig(const QUuid &deviceId = QUuid())
        : VDeviceConfig(deviceId, VVersion(1, 0, 0), QString(), QString())
    {
        ++liveCount();
    }
    explicit TestConfig(const QString &name)
        : TestConfig(QUuid::createUuidV5(kind(), name))
    {
        setName(name);
    }
    TestConfig(const TestConfig &other)
        : VDeviceConfig(other)
        , m_payload(other.m_payload)
        , m_refuses(other.m_refuses)
    {
        ++liveCount();
    }
    TestConfig &operator=(const TestConfig &other)
    {
        VDeviceConfig::operator=(other); // The base first, and only then the own fields.
        m_payload = other.m_payload;
        return *this;
    }
    ~TestConfig() override { --liveCount(); }

    static QUuid kind() { return QUuid::createUuidV5(QUuid(), u"test kind %1"_s.arg(Kind)); }
    /// How many objects of the class there are.
    static std::atomic<int> &liveCount()
    {
        static std::atomic<int> count = 0;
        return count;
    }

    QUuid id() const override { return kind(); }
    Norvane::Interfaces::ICloneable *clone() const override { return new TestConfig(*this); }
    bool equalsTo(const Norvane::Interfaces::IEquatable *other) const override
    {
        return sameTypeAs(other) && *this == static_cast<const TestConfig &>(*other);
    }
    bool operator==(const TestConfig &other) const
    {
        return m_payload == other.m_payload && VDeviceConfig::operator==(other);
    }

    QString payload() const { return m_payload; }
    void setPayload(const QString &payload) { m_payload = payload; }
    /// Has the record refuse any JSON from now on.
    void setRefuses(bool refuses) { m_refuses = refuses; }
    /// The version that the record had when it last read JSON.
    VVersion versionWhenRead() const { return m_versionWhenRead; }

    using VDeviceConfig::innerDataId;
    using VDeviceConfig::setId;
    using VDeviceConfig::storedId;

protected:
    QJsonObject toInnerJsonObject() const override { return {{"payload"_L1, m_payload}}; }
    bool setInnerJsonObject(const QJsonObject &object) override
    {
        m_versionWhenRead = version();
        if (m_refuses)
            return false;
        m_payload = object.value("payload"_L1).toString();
        return true;
    }

private:
    QString m_payload;
    VVersion m_versionWhenRead;
    bool m_refuses = false;
};

using OtherConfig = TestConfig<1>;

/// A new child named so, which the caller must hand over.
template<typename Config = TestConfig<>>
Config *newConfig(const QString &name)
{
    return std::make_unique<Config>(name).release();
}

/// The names of the direct children, in order.
inline QStringList childNames(const VDeviceConfig &config)
{
    QStringList names;
    for (const IVDeviceConfig *child : config.values(QUuid()))
        names.append(child->name());
    return names;
}

} // namespace Support
