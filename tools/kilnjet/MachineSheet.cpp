// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineSheet.h"

#include "ChannelColours.h"
#include "DisplayTexts.h"
#include "ElaborationGroup.h"
#include "RecordSchema.h"
#include "Text.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <vcore/VEnumRegistry.h>
#include <vimaging/VResolution.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr qsizetype kIndent = 2;
constexpr int kLabelWidth = 20;

/// The sheet while it is written.
class Sheet
{
public:
    Sheet(const DisplayTexts &texts, const Paint &paint)
        : m_texts(texts)
        , m_paint(paint)
    { }

    void addMachine(const VPrinterDriver &machine);

    QString text;

private:
    void addTitle(const QString &title, const QJsonObject &record, int depth);
    void addLine(const QString &label, const QString &value, int depth);
    void addPrinter(const QJsonObject &config);
    void addPrintUnit(const QJsonObject &record, int depth);
    void addChannel(qsizetype bar, const QString &name, int depth);
    void addElaboration(const QJsonObject &record, int depth);
    void addChildren(const QJsonObject &record, int depth);

    const DisplayTexts &m_texts;
    Paint m_paint;
};

QString yesNo(const QJsonValue &value)
{
    return value.toBool() ? u"yes"_s : u"no"_s;
}

QString textOf(const QJsonValue &value)
{
    return value.isDouble() ? QString::number(value.toDouble(), 'g', 6) : value.toString();
}

QString joined(const QJsonValue &list)
{
    QStringList texts;
    for (const QJsonValue &value : list.toArray())
        texts.append(textOf(value));
    return texts.isEmpty() ? u"none"_s : texts.join(u", "_s);
}

QString bytesText(const QString &digits)
{
    const qint64 bytes = digits.toLongLong();
    if (bytes == std::numeric_limits<qint64>::max())
        return u"no limit"_s;
    const QString text = bytes == 1 ? u"1 byte"_s : u"%1 bytes"_s.arg(bytes);
    return bytes < 1024 ? text : u"%1 (%2)"_s.arg(text, QLocale::c().formattedDataSize(bytes));
}

QString rangeText(const QJsonValue &least, const QJsonValue &most)
{
    const QString text = textOf(least) + u'x';
    return least == most ? text : u"%1 to %2x"_s.arg(text, textOf(most));
}

QString titleOf(const QJsonObject &record)
{
    return u"%1 %2"_s.arg(kindName(QUuid(record["id"_L1].toString())),
                          quoted(record["name"_L1].toString()));
}

/// The elements with the kind of `sample`, which are taken out of `records`.
QList<QJsonObject> takeKind(QList<QJsonObject> &records, const Hardware::VDeviceConfig &sample)
{
    const auto isOther = [&sample](const QJsonObject &record) {
        return QUuid(record["id"_L1].toString()) != sample.id();
    };
    const auto begin = std::stable_partition(records.begin(), records.end(), isOther);
    const QList<QJsonObject> taken(begin, records.end());
    records.erase(begin, records.end());
    return taken;
}

QString iconText(const QJsonObject &config)
{
    if (config.contains("svgIcon"_L1))
        return u"SVG"_s;
    const qsizetype images = config["icon"_L1].toArray().size();
    return images == 0 ? u"none"_s : counted(images, u"image"_s);
}

void Sheet::addLine(const QString &label, const QString &value, int depth)
{
    text += QString(kIndent * depth, u' ') + label.leftJustified(kLabelWidth) + printable(value)
        + u'\n';
}

/// The title and the description.
void Sheet::addTitle(const QString &title, const QJsonObject &record, int depth)
{
    text += QString(kIndent * depth, u' ') + m_paint.heading(printable(title)) + u'\n';
    const QString description = record["description"_L1].toString();
    for (const QString &line : description.split(u'\n', Qt::SkipEmptyParts))
        text += QString(kIndent * (depth + 1), u' ') + printable(line.trimmed()) + u'\n';
}

void Sheet::addMachine(const VPrinterDriver &machine)
{
    const QJsonObject record = machine.toJsonObject();
    addTitle(record["name"_L1].toString(), record, 0);
    text += u'\n';
    addLine(u"Id"_s, machine.dataId().toString(), 1);
    addLine(u"Device id"_s, record["deviceId"_L1].toString(), 1);
    addPrinter(record["config"_L1].toObject());
    addLine(u"Format version"_s, record["version"_L1].toString(), 1);
    if (record.contains("dateTime"_L1))
        addLine(u"Date"_s, record["dateTime"_L1].toString(), 1);
    addChildren(record, 1);
}

void Sheet::addPrinter(const QJsonObject &config)
{
    addLine(u"Class"_s, m_texts.label(u"PrinterClass"_s, config["printerClass"_L1].toString()), 1);
    addLine(u"Faces mode"_s, config["facesMode"_L1].toString(), 1);
    addLine(u"Most faces"_s, counted(config["maximumFaces"_L1].toInt(), u"face"_s), 1);
    addLine(u"Largest image"_s, bytesText(config["maximumImageBytes"_L1].toString()), 1);
    addLine(u"File compression"_s, config["fileCompression"_L1].toString(), 1);
    addLine(u"File protection"_s, config["fileProtection"_L1].toString(), 1);
    addLine(u"Elaborates online"_s, yesNo(config["onlineElaboration"_L1]), 1);
    addLine(u"Linearises online"_s, yesNo(config["onlineLinearization"_L1]), 1);
    addLine(u"Experimental"_s, yesNo(config["experimental"_L1]), 1);
    addLine(u"Icon"_s, iconText(config), 1);
}

void Sheet::addPrintUnit(const QJsonObject &record, int depth)
{
    const QJsonObject config = record["config"_L1].toObject();
    QStringList custom;
    if (config["customHorizontalResolution"_L1].toBool())
        custom.append(u"horizontal"_s);
    if (config["customVerticalResolution"_L1].toBool())
        custom.append(u"vertical"_s);
    text += u'\n';
    addTitle(titleOf(record), record, depth);
    addLine(u"Free resolution"_s, custom.isEmpty() ? u"no"_s : custom.join(u", "_s), depth + 1);
    const QJsonArray channels = config["channels"_L1].toArray();
    addLine(u"Channels"_s, channels.isEmpty() ? u"none"_s : counted(channels.size(), u"bar"_s),
            depth + 1);
    for (qsizetype i = 0; i < channels.size(); ++i)
        addChannel(i + 1, channels.at(i).toString(), depth + 1);
    addChildren(record, depth + 1);
}

void Sheet::addChannel(qsizetype bar, const QString &name, int depth)
{
    text += QString(kIndent * depth, u' ') + u"%1  "_s.arg(bar, 4);
    if (m_paint.hasSwatches()) {
        const IVEnum *channels = VEnumRegistry::find(u"Channel"_s);
        const auto number =
            channels == nullptr ? std::nullopt : channels->names().find(name, Qt::CaseSensitive);
        const auto colour = number ? channelColour(Channel(*number)) : std::nullopt;
        text += (colour ? m_paint.swatch(*colour) : u"  "_s) + u' ';
    }
    text += printable(name) + u'\n';
}

void Sheet::addElaboration(const QJsonObject &record, int depth)
{
    const QJsonObject config = record["config"_L1].toObject();
    QString title = quoted(record["name"_L1].toString());
    if (config["prefered"_L1].toBool())
        title += u", preferred"_s;
    if (config["allowOnlineElaboration"_L1].toBool())
        title += u", online"_s;
    QStringList resolutions;
    for (const QJsonValue &value : config["resolutionList"_L1].toArray())
        resolutions.append(
            Imaging::VResolution::fromJsonObject(value.toObject()).toString(QLocale::c()));
    text += u'\n';
    addTitle(title, record, depth);
    QJsonArray levels;
    for (const QJsonValue &level : config["levelManagementList"_L1].toArray())
        levels.append(m_texts.label(u"LevelManagement"_s, level.toString()));
    addLine(u"Type"_s, m_texts.label(u"ElaborationType"_s, config["elaborationType"_L1].toString()),
            depth + 1);
    addLine(u"Levels"_s, joined(levels), depth + 1);
    addLine(u"Resolutions"_s, resolutions.isEmpty() ? u"none"_s : resolutions.join(u", "_s),
            depth + 1);
    addLine(u"Scroll ratios"_s, joined(config["scrollRatioList"_L1]), depth + 1);
    addLine(u"Magnification"_s,
            rangeText(config["magnificationMin"_L1], config["magnificationMax"_L1]), depth + 1);
    addChildren(record, depth + 1);
}

/// The print units, then the elaborations by kind, then whatever else there is.
void Sheet::addChildren(const QJsonObject &record, int depth)
{
    QList<QJsonObject> children;
    for (const QJsonValue &child : record["children"_L1].toArray())
        children.append(child.toObject());
    for (const QJsonObject &unit : takeKind(children, VPrintUnitDriver()))
        addPrintUnit(unit, depth);
    const QList<QJsonObject> elaborations = takeKind(children, VElaborationDriver());
    for (const ElaborationGroup &group : elaborationGroups()) {
        bool isFirst = true;
        for (const QJsonObject &elaboration : elaborations) {
            if (!group.contains(elaboration["config"_L1]["elaborationType"_L1].toString()))
                continue;
            if (isFirst) {
                text +=
                    u'\n' + QString(kIndent * depth, u' ') + m_paint.heading(group.title) + u'\n';
            }
            isFirst = false;
            addElaboration(elaboration, depth + 1);
        }
    }
    for (const QJsonObject &child : children) {
        text += u'\n';
        addTitle(titleOf(child), child, depth);
        addChildren(child, depth + 1);
    }
}

} // namespace

QString machineSheet(const VPrinterDriver &machine, const DisplayTexts &texts, const Paint &paint)
{
    Sheet sheet(texts, paint);
    sheet.addMachine(machine);
    return sheet.text;
}

} // namespace Norvane::Kilnjet::Tool
