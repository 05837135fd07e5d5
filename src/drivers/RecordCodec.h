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

/// `Codec`, if `record` is of the class `Record` itself: one that derives from it may read and
/// write otherwise.
template<typename Codec, typename Record>
const Hardware::VDeviceConfigCodec *codecFor(const Record &record)
{
    static const Codec codec;
    return typeid(record) == typeid(Record) ? &codec : nullptr;
}

} // namespace Norvane::Kilnjet
