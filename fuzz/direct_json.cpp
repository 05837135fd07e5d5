// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Two roads from bytes to a record: fromJson(), however it reads, and Qt's own parser with
// setJsonObject() behind it. Both must give the same for any bytes.

#include "Fuzz.h"
#include "Records.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Fuzz;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

ConfigPtr emptyOfKind(const QUuid &kind)
{
    if (kind == VPrinterDriver().id())
        return std::make_unique<VPrinterDriver>();
    if (kind == VPrintUnitDriver().id())
        return std::make_unique<VPrintUnitDriver>();
    if (kind == VElaborationDriver().id())
        return std::make_unique<VElaborationDriver>();
    return nullptr;
}

ConfigPtr byTheTree(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return nullptr;
    const QJsonObject object = document.object();
    ConfigPtr config = emptyOfKind(QUuid::fromString(object.value("id"_L1).toString()));
    return config && config->setJsonObject(object) ? std::move(config) : nullptr;
}

/// What is decoded late must not show, whatever is asked first.
void checkQuestions(const QByteArray &bytes, IVDeviceConfig &direct, const IVDeviceConfig &wanted)
{
    const QList<IVDeviceConfig *> children =
        bytes.size() % 3 == 0 ? direct.values(QUuid()) : QList<IVDeviceConfig *>();
    for (IVDeviceConfig *child : children)
        child->dataId();
    if (bytes.size() % 3 != 1) {
        requireSame(direct, wanted, "read directly");
        return;
    }
    const ConfigPtr copy = cloneOf(direct);
    direct.setName(u"changed before all else"_s);
    direct.remove(QUuid(), true);
    requireSame(*copy, *cloneOf(wanted), "a copy of what was then changed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const ConfigPtr direct = fromJson(bytes);
    const ConfigPtr wanted = byTheTree(bytes);
    require((direct == nullptr) == (wanted == nullptr), "both roads accept the same bytes");
    if (direct)
        checkQuestions(bytes, *direct, *wanted);
    return 0;
}
