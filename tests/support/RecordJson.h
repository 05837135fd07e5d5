// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QStringList>
#include <QtCore/QUuid>

#include <optional>

// Records as JSON, as a person writes them, and changes to them by JSON pointer.

namespace Support {

using namespace Qt::StringLiterals;

/// An image of one pixel, as an icon holds it.
inline QJsonObject pngJson()
{
    const QString data =
        u"iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAACXBIWXMAAA7EAAAOxAGVKw4bAAAADUlEQVQImWNg"
        "+M9QDwADgQF/hps9nQAAAABJRU5ErkJggg=="_s;
    return {{u"format"_s, u"png"_s}, {u"data"_s, data}};
}

inline QJsonObject envelopeJson(const QString &kind, const QString &version, const QString &name,
                                const QJsonObject &config)
{
    const QUuid space(u"{0b5a7e0a-52a1-4e4e-8d5c-6f1d8b1f1c55}"_s);
    return {{u"id"_s, kind},
            {u"deviceId"_s, QUuid::createUuidV5(space, kind + name).toString()},
            {u"version"_s, version},
            {u"name"_s, name},
            {u"description"_s, u"made for a test"_s},
            {u"config"_s, config}};
}

inline QJsonObject printUnitJson(const QString &name)
{
    return envelopeJson(u"{8f5c90c1-c516-487b-bd10-603583444346}"_s, u"1.1.0"_s, name,
                        {{u"channels"_s, QJsonArray{u"Cyan"_s, u"Brown"_s, u"Black"_s}},
                         {u"customHorizontalResolution"_s, false},
                         {u"customVerticalResolution"_s, true}});
}

inline QJsonObject elaborationJson(const QString &name)
{
    const QJsonObject resolution{{u"x"_s, 400}, {u"y"_s, 360}, {u"unit"_s, u"DPI"_s}};
    return envelopeJson(u"{488e105b-5aac-427d-92d3-1de3f94f8c7f}"_s, u"1.0.0"_s, name,
                        {{u"elaborationType"_s, u"BilevelStandard"_s},
                         {u"levelManagementList"_s, QJsonArray{u"Binary"_s}},
                         {u"resolutionList"_s, QJsonArray{resolution}},
                         {u"scrollRatioList"_s, QJsonArray{1, 0.5}},
                         {u"magnificationMin"_s, 0.5},
                         {u"magnificationMax"_s, 2},
                         {u"prefered"_s, true},
                         {u"allowOnlineElaboration"_s, false}});
}

/// A valid printer driver with every key that a record may have, but an SVG icon. Its ids depend on
/// the name only.
inline QJsonObject printerJson(const QString &name)
{
    QJsonObject record = envelopeJson(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s, u"1.2.1"_s, name,
                                      {{u"printerClass"_s, u"Inkjet"_s},
                                       {u"facesMode"_s, u"Basic"_s},
                                       {u"fileCompression"_s, u"Rle, Lzw"_s},
                                       {u"fileProtection"_s, u"None"_s},
                                       {u"maximumFaces"_s, 4},
                                       {u"maximumImageBytes"_s, u"9007199254740993"_s},
                                       {u"experimental"_s, false},
                                       {u"onlineElaboration"_s, true},
                                       {u"onlineLinearization"_s, false},
                                       {u"icon"_s, QJsonArray{pngJson()}}});
    record.insert(u"dateTime"_s, u"2026-11-21T09:30:00.000Z"_s);
    record.insert(u"children"_s,
                  QJsonArray{printUnitJson(name + u"/unit"_s), elaborationJson(name + u"/way"_s)});
    record.insert(u"metadata"_s,
                  QJsonArray{QJsonObject{{u"key"_s, u"18446744073709551615"_s},
                                         {u"flags"_s, u"KillOnChanges"_s},
                                         {u"value"_s, QJsonArray{1, u"two"_s}}}});
    return record;
}

/// The content id that printerJson(name) has.
inline QString idOfPrinterJson(const QString &name)
{
    const QUuid device(printerJson(name).value("deviceId"_L1).toString());
    return QUuid::createUuidV5(device, u"Basic;Inkjet;4"_s).toString();
}

/// `value` with the value at `steps` replaced, added, or, when `change` is nothing, removed.
inline QJsonValue changed(const QJsonValue &value, QStringList steps,
                          const std::optional<QJsonValue> &change)
{
    if (steps.isEmpty())
        return change.value_or(QJsonValue());
    const QString step = steps.takeFirst();
    if (value.isArray()) {
        QJsonArray array = value.toArray();
        const qsizetype index = step.toLongLong();
        if (index == array.size())
            array.append(QJsonValue());
        if (!change && steps.isEmpty())
            array.removeAt(index);
        else
            array[index] = changed(array.at(index), steps, change);
        return array;
    }
    QJsonObject object = value.toObject();
    if (!change && steps.isEmpty())
        object.remove(step);
    else
        object.insert(step, changed(object.value(step), steps, change));
    return object;
}

/// The record with another value at the JSON pointer.
inline QJsonObject with(const QJsonObject &record, const QString &pointer, const QJsonValue &value)
{
    return changed(record, pointer.split(u'/').sliced(1), value).toObject();
}

/// The record without the value at the JSON pointer.
inline QJsonObject without(const QJsonObject &record, const QString &pointer)
{
    return changed(record, pointer.split(u'/').sliced(1), std::nullopt).toObject();
}

} // namespace Support
