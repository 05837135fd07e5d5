// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/ElaborationType.h>
#include <kilnjet/Export.h>
#include <kilnjet/LevelManagement.h>
#include <kilnjet/VMagnificationLimits.h>
#include <vcommon/VDeviceConfig.h>
#include <vimaging/VResolution.h>

#include <QtCore/QList>
#include <QtCore/QUuid>

namespace Norvane::Kilnjet {

template<typename Record>
class RecordCodec;

/// One elaboration (screening, halftoning) that can be applied to an image before it is printed.
///
/// | JSON key                 | Accessor                  | JSON type        | Fallback |
/// |--------------------------|---------------------------|------------------|----------|
/// | "elaborationType"        | elaborationType()         | string           | `None`   |
/// | "levelManagementList"    | levelManagementList()     | array of strings | empty    |
/// | "resolutionList"         | resolutionList()          | array of objects | empty    |
/// | "scrollRatioList"        | scrollRatioList()         | array of numbers | empty    |
/// | "magnificationMin"       | magnification().first     | number           | 0.0      |
/// | "magnificationMax"       | magnification().second    | number           | 0.0      |
/// | "allowOnlineElaboration" | allowOnlineElaboration()  | boolean          | false    |
/// | "prefered"               | isPrefered()              | boolean          | false    |
///
/// A bad element of a list reads as `None`, as a resolution of zeros, or as 0.0.
///
/// The spelling of "prefered" belongs to the stored format. The content id is the device id. A
/// record is valid with a device id, a type other than `None`, a level management and a resolution;
/// it is empty without level managements and resolutions, when its base is.
///
/// Threads: one at a time for one object; copies may live on different threads.
/// Failures: reading falls back as the table says and never fails; nothing throws.
class VKILNJET_EXPORT VElaborationDriver : public Hardware::VDeviceConfig
{
public:
    /// A record of the current format version, 1.0.0, with the null device id.
    VElaborationDriver();
    /// The same with a device id.
    explicit VElaborationDriver(const QUuid &deviceId);
    /// An independent copy, children included; metadata flagged `KillOnCopy` stays behind.
    VElaborationDriver(const VElaborationDriver &other);
    /// Takes over everything but metadata flagged `KillOnCopy`.
    VElaborationDriver &operator=(const VElaborationDriver &other);
    ~VElaborationDriver() override;

    /// Equal fields and equal bases. Lists compare in order, scroll ratios bit for bit (0.0 and
    /// -0.0 differ, a NaN equals itself), magnifications as numbers (0.0 and -0.0 are equal, a NaN
    /// is not).
    bool operator==(const VElaborationDriver &other) const;
    /// The contrary of `==`.
    bool operator!=(const VElaborationDriver &other) const { return !(*this == other); }

    Interfaces::ICloneable *clone() const override;
    /// {488e105b-5aac-427d-92d3-1de3f94f8c7f}, whatever the record.
    QUuid id() const override;
    bool equalsTo(const Interfaces::IEquatable *other) const override;

    /// Whether the elaboration may run while printing online.
    bool allowOnlineElaboration() const;
    /// Sets allowOnlineElaboration(); a new record has false.
    void setAllowOnlineElaboration(bool allow);
    /// Whether this is the method to offer first.
    bool isPrefered() const;
    /// Sets isPrefered(); a new record has false.
    void setPrefered(bool prefered);
    /// The screening method.
    ElaborationType elaborationType() const;
    /// Sets the screening method; a new record has `None`, and is not valid with it.
    void setElaborationType(const ElaborationType &type);
    /// The magnifications between which the elaboration may scale.
    VMagnificationLimits magnification() const;
    /// Sets the magnifications; a new record has 0.0 and 0.0.
    void setMagnification(const VMagnificationLimits &limits);
    /// The ways of managing output levels that the method supports.
    QList<LevelManagement> levelManagementList() const;
    /// Sets the list, which is kept as it is: in order, duplicates included.
    void setLevelManagementList(const QList<LevelManagement> &list);
    /// The scroll ratios that the method accepts. JSON has no negative zero and no NaN: a ratio of
    /// -0.0 or NaN comes back from it as 0.0.
    QList<double> scrollRatioList() const;
    /// Sets the list, which is kept as it is.
    void setScrollRatioList(const QList<double> &list);
    /// The resolutions that the method supports.
    QList<Imaging::VResolution> resolutionList() const;
    /// Sets the list, which is kept as it is.
    void setResolutionList(const QList<Imaging::VResolution> &list);

protected:
    QJsonObject toInnerJsonObject() const override;
    bool setInnerJsonObject(const QJsonObject &object) override;
    bool innerIsValid() const override;
    bool innerIsEmpty() const override;
    const Hardware::VDeviceConfigCodec *codec() const override;

private:
    template<typename Record>
    friend class RecordCodec;

    template<typename Object>
    Q_DECL_HIDDEN void readJson(const Object &object);
    template<typename Writer>
    Q_DECL_HIDDEN void writeJson(Writer &object) const;

    bool m_allowOnlineElaboration = false;
    bool m_prefered = false;
    ElaborationType m_elaborationType = ElaborationType::None;
    VMagnificationLimits m_magnification;
    QList<LevelManagement> m_levelManagementList;
    QList<double> m_scrollRatioList;
    QList<Imaging::VResolution> m_resolutionList;
};

} // namespace Norvane::Kilnjet
