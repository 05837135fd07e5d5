// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineSummary.h"

#include "Catalogue.h"
#include "Progress.h"
#include "Store.h"

#include <vcore/VEnumRegistry.h>
#include <vcore/VJsonText.h>
#include <vcore/VParallel.h>

#include <QtCore/QMap>

#include <algorithm>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// The value that is stored under its own name; nothing when the text is anything else.
template<typename E>
std::optional<E> valueOf(const QString &enumeration, const VJsonTextValue &text)
{
    const IVEnum *values = VEnumRegistry::find(enumeration);
    const auto number = values->names().find(text.toString(), Qt::CaseSensitive);
    return number ? std::optional(E(*number)) : std::nullopt;
}

/// As MachineSummary::of(), from the JSON of a machine that is known to be in order; nothing when
/// the text is out of the ordinary and has to be decoded.
std::optional<MachineSummary> summaryOf(const QUuid &id, QByteArrayView json)
{
    VJsonText text;
    if (!text.parse(json))
        return std::nullopt;
    const VJsonTextObject record = text.object();
    const VJsonTextObject config = record.value("config"_L1).toObject();
    const auto printerClass =
        valueOf<PrinterClass>(u"PrinterClass"_s, config.value("printerClass"_L1));
    const auto facesMode =
        valueOf<PrinterFacesMode>(u"PrinterFacesMode"_s, config.value("facesMode"_L1));
    if (!printerClass || !facesMode)
        return std::nullopt;
    MachineSummary summary{
        .id = id,
        .deviceId = uuidFromJson(record.value("deviceId"_L1)),
        .name = record.value("name"_L1).toString(),
        .printerClass = *printerClass,
        .facesMode = *facesMode,
        .maximumFaces = config.value("maximumFaces"_L1).toInt(),
        .isExperimental = config.value("experimental"_L1).toBool(),
        .version = VVersion::fromString(record.value("version"_L1).toString()).toString()};
    for (const VJsonTextValue &child : record.value("children"_L1).toArray())
        summary.children += child.isObject() ? 1 : 0;
    return summary;
}

std::optional<MachineSummary> summaryOf(const Database::VDBRecord &record)
{
    const SoundRecord sound = soundRecord(record);
    if (!sound.driver)
        return std::nullopt;
    const std::optional<MachineSummary> summary =
        summaryOf(sound.driver->dataId(), sound.json.view());
    return summary ? summary : MachineSummary::of(*sound.driver);
}

} // namespace

MachineSummary MachineSummary::of(const VPrinterDriver &machine)
{
    return {.id = machine.dataId(),
            .deviceId = machine.deviceId(),
            .name = machine.name(),
            .printerClass = machine.printerClass(),
            .facesMode = machine.facesMode(),
            .maximumFaces = machine.maximumFaces(),
            .isExperimental = machine.experimental(),
            .children = machine.count(QUuid(), false),
            .version = machine.version().toString()};
}

QList<MachineSummary> readSummaries(const StoreSettings &settings, Console &console)
{
    constexpr std::size_t kWorthAThread = 64;
    const Progress progress(console, u"loading "_s + settings.path);
    QList<Database::VDBRecord> records;
    const StoreSurvey survey = readStore(settings, records);
    std::vector<std::optional<MachineSummary>> found(std::size_t(records.size()));
    parallelFor(found.size(), kWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            found[i] = summaryOf(records.at(qsizetype(i)));
    });
    // A database keeps one machine for an id, whatever spelling of the id its records stand under.
    QMap<QUuid, MachineSummary> byId;
    for (const std::optional<MachineSummary> &summary : found) {
        if (summary)
            byId.insert(summary->id, *summary);
    }
    warnOfLosses(survey, survey.count - byId.size(), settings.path, console);
    QList<MachineSummary> sorted = byId.values();
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto &a, const auto &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return sorted;
}

} // namespace Norvane::Kilnjet::Tool
