// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Channel.h>
#include <kilnjet/Export.h>
#include <vcommon/VDeviceConfig.h>

#include <QtCore/QList>
#include <QtCore/QUuid>

namespace Norvane::Kilnjet {

template<typename Record>
class RecordCodec;

/// One print unit of a decoration printer: the inks it carries, and what may be chosen freely.
///
/// | JSON key                     | Accessor                     | JSON type        | Fallback |
/// |------------------------------|------------------------------|------------------|----------|
/// | "channels"                   | channels()                   | array of strings | empty    |
/// | "customHorizontalResolution" | customHorizontalResolution() | boolean          | false    |
/// | "customVerticalResolution"   | customVerticalResolution()   | boolean          | false    |
///
/// An element of "channels" that is no channel's name reads as `None`.
///
/// The content id is the version 5 UUID, in the namespace of the device id, of the channels' names
/// joined by ";": sorted as plain text from version 1.1.0 on; before, in the order in which format
/// 1.0 numbered the channels, so that records of that format keep their ids. Hence version() must
/// be that of the format in which the channels were written. A record is empty without channels,
/// when its base is.
///
/// Threads: one at a time for one object; copies may live on different threads.
/// Failures: reading falls back as the table says and never fails; nothing throws.
class VKILNJET_EXPORT VPrintUnitDriver : public Hardware::VDeviceConfig
{
public:
    /// A record of the current format version, 1.1.0, with the null device id.
    VPrintUnitDriver();
    /// The same with a device id.
    explicit VPrintUnitDriver(const QUuid &deviceId);
    /// An independent copy, children included; metadata flagged `KillOnCopy` stays behind.
    VPrintUnitDriver(const VPrintUnitDriver &other);
    /// Takes over everything but metadata flagged `KillOnCopy`.
    VPrintUnitDriver &operator=(const VPrintUnitDriver &other);
    ~VPrintUnitDriver() override;

    /// Equal fields, the channels in order, and equal bases.
    bool operator==(const VPrintUnitDriver &other) const;
    /// The contrary of `==`.
    bool operator!=(const VPrintUnitDriver &other) const { return !(*this == other); }

    Interfaces::ICloneable *clone() const override;
    /// {8f5c90c1-c516-487b-bd10-603583444346}, whatever the record.
    QUuid id() const override;
    bool equalsTo(const Interfaces::IEquatable *other) const override;

    /// The inks of the unit, in the caller's order, duplicates included.
    QList<Channel> channels() const;
    /// Sets the inks, which are kept as they are; a new record has none. Changes the content id.
    void setChannels(const QList<Channel> &channels);
    /// Whether the unit allows a horizontal resolution of the user's own.
    bool customHorizontalResolution() const;
    /// Sets customHorizontalResolution(); a new record has false.
    void setCustomHorizontalResolution(bool custom);
    /// Whether the unit allows a vertical resolution of the user's own.
    bool customVerticalResolution() const;
    /// Sets customVerticalResolution(); a new record has false.
    void setCustomVerticalResolution(bool custom);

protected:
    QJsonObject toInnerJsonObject() const override;
    bool setInnerJsonObject(const QJsonObject &object) override;
    QUuid innerDataId(bool *ok) const override;
    bool innerIsEmpty() const override;
    const Hardware::VDeviceConfigCodec *codec() const override;

private:
    template<typename Record>
    friend class RecordCodec;

    template<typename Object>
    Q_DECL_HIDDEN void readJson(const Object &object);
    template<typename Writer>
    Q_DECL_HIDDEN void writeJson(Writer &object) const;

    QList<Channel> m_channels;
    bool m_customHorizontalResolution = false;
    bool m_customVerticalResolution = false;
};

} // namespace Norvane::Kilnjet
