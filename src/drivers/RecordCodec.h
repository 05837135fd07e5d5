// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDeviceConfigCodec.h>

#include <typeinfo>

namespace Norvane::Kilnjet {

/// The codec of a record whose readJson() and writeJson() take any reader and writer.
template<typename Record>
class RecordCodec : public Hardware::VDeviceConfigCodec
{
public:
    void read(Hardware::VDeviceConfig &record, const VJsonTextObject &config) const override
    {
        static_cast<Record &>(record).readJson(config);
    }
    void write(const Hardware::VDeviceConfig &record, VJsonTextWriter &config) const override
    {
        static_cast<const Record &>(record).writeJson(config);
    }
};

/// `codec`, if `record` is of the class `Record` itself: one that derives from it may read and
/// write otherwise.
///
/// Codecs are objects of their own, made at load: a static object in a template would keep the
/// library in memory for good, and one made at first use might be gone when a database that is a
/// static object of its host commits on its way out.
template<typename Record>
const Hardware::VDeviceConfigCodec *codecFor(const Record &record,
                                             const Hardware::VDeviceConfigCodec &codec)
{
    return typeid(record) == typeid(Record) ? &codec : nullptr;
}

} // namespace Norvane::Kilnjet
