// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Any bytes as a record: what is accepted is written as JSON that reads back as the same record,
// and copies answer as their original does.

#include "Fuzz.h"
#include "Records.h"

#include <QtCore/QBuffer>

using namespace Fuzz;

namespace {

/// A device writes and reads what the text does.
void checkDevices(IVDeviceConfig &config, const QByteArray &json)
{
    QBuffer device;
    require(!config.save(&device), "a closed device takes nothing");
    require(device.open(QIODevice::ReadWrite) && config.save(&device), "an open device takes all");
    require(device.data() == json, "a device gets the compact JSON");
    const ConfigPtr other = cloneOf(config);
    other->setName(QStringLiteral("another one"));
    require(device.seek(0) && other->load(&device), "what was saved loads");
    require(compact(*other) == json, "what was loaded is what was saved");
}

/// Of a copy nothing shows in the original.
void checkIndependence(const IVDeviceConfig &config, const QByteArray &json)
{
    const ConfigPtr copy = cloneOf(config);
    copy->setDescription(config.description() + u'!');
    for (IVDeviceConfig *child : copy->values(QUuid()))
        child->setName(child->name() + u'!');
    copy->remove(QUuid(), false);
    require(compact(config) == json, "a change to a copy shows in the copy only");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const ConfigPtr first = fromJson(bytes);
    if (!first)
        return 0;
    const ConfigPtr copy = cloneOf(*first);
    const QByteArray json = compact(*first);
    if (hasByteOrderMark(bytes) || hasByteOrderMark(json))
        return 0;
    const ConfigPtr second = fromJson(json);
    require(second != nullptr, "what is written is accepted");
    require(compact(*second) == json, "what is written is written again in the same way");
    require(second->dataId() == first->dataId(), "the content id survives");
    if (hasJsonForm(*first)) {
        require(second->equalsTo(first.get()) && first->equalsTo(second.get()),
                "the record that is read back equals the one that was written");
        require(copy->equalsTo(first.get()), "a copy made at once equals its original");
    }
    switch (size % 3) {
    case 0: // Of some metadata a copy says nothing, and a copy of it nothing else.
        requireSame(*cloneOf(*copy), *copy, "a copy's copy");
        break;
    case 1:
        checkIndependence(*second, json);
        break;
    default:
        checkDevices(*second, json);
        break;
    }
    return 0;
}
