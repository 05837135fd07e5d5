// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "JsonArray.h"

#include "DurableFile.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

using namespace Qt::StringLiterals;

namespace Bench {

JsonArray::JsonArray(const QString &name)
    : KeyValueContender(name, std::make_unique<JsonFile>(JsonFile::Array))
{ }

std::optional<Drivers> JsonArray::load()
{
    const QString path = static_cast<const JsonFile &>(store()).path();
    const QJsonDocument document = QJsonDocument::fromJson(readFile(path));
    if (!document.isArray())
        return std::nullopt;
    Drivers drivers;
    const QJsonArray elements = document.array();
    for (const QJsonValue &value : elements) {
        const QJsonObject element = value.toObject();
        VPrinterDriver driver;
        if (!driver.setJsonObject(element.value("driver"_L1).toObject())
            || driver.dataId() != QUuid(element.value("id"_L1).toString()))
            return std::nullopt;
        drivers.append(driver);
    }
    return drivers;
}

} // namespace Bench
