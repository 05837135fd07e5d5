// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineSheet.h"

#include "RecordSchema.h"
#include "Text.h"

#include <vimaging/VResolution.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <limits>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr int kIndent = 2;
constexpr int kLabelWidth = 20;

/// The sheet while it is written.
class Sheet
{
public:
    QString text;

    void addMachine(const VPrinterDriver &machine);

private:
    void addTitle(const QJsonObject &record, int depth);
    void addLine(const QString &label, const QString &value, int depth);
    void addPrinter(const QJsonObject &config);
    void addPrintUnit(const QJsonObject &config, int depth);
    void addElaboration(const QJsonObject &config, int depth);
    void addChildren(const QJsonObject &record, int depth);
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
    return u"%1 bytes (%2)"_s.arg(digits, QLocale::c().formattedDataSize(bytes));
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

/// The name and the description.
void Sheet::addTitle(const QJsonObject &record, int depth)
{
    const QString name = record["name"_L1].toString();
    const QString kind = kindName(QUuid(record["id"_L1].toString()));
    const QString title = depth == 0 ? name : u"%1 %2"_s.arg(kind, quoted(name));
    text += QString(kIndent * depth, u' ') + printable(title) + u'\n';
    const QString description = record["description"_L1].toString();
    for (const QString &line : description.split(u'\n', Qt::SkipEmptyParts))
        text += QString(kIndent * (depth + 1), u' ') + printable(line.trimmed()) + u'\n';
}

void Sheet::addMachine(const VPrinterDriver &machine)
{
    const QJsonObject record = machine.toJsonObject();
    addTitle(record, 0);
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
    addLine(u"Class"_s, config["printerClass"_L1].toString(), 1);
    addLine(u"Faces"_s,
            u"%1, at most %2"_s.arg(config["facesMode"_L1].toString(),
                                    textOf(config["maximumFaces"_L1])),
            1);
    addLine(u"Largest image"_s, bytesText(config["maximumImageBytes"_L1].toString()), 1);
    addLine(u"File compression"_s, config["fileCompression"_L1].toString(), 1);
    addLine(u"File protection"_s, config["fileProtection"_L1].toString(), 1);
    addLine(u"Elaborates online"_s, yesNo(config["onlineElaboration"_L1]), 1);
    addLine(u"Linearises online"_s, yesNo(config["onlineLinearization"_L1]), 1);
    addLine(u"Experimental"_s, yesNo(config["experimental"_L1]), 1);
    addLine(u"Icon"_s, iconText(config), 1);
}

void Sheet::addPrintUnit(const QJsonObject &config, int depth)
{
    addLine(u"Channels"_s, joined(config["channels"_L1]), depth);
    QStringList custom;
    if (config["customHorizontalResolution"_L1].toBool())
        custom.append(u"horizontal"_s);
    if (config["customVerticalResolution"_L1].toBool())
        custom.append(u"vertical"_s);
    addLine(u"Free resolution"_s, custom.isEmpty() ? u"no"_s : custom.join(u", "_s), depth);
}

void Sheet::addElaboration(const QJsonObject &config, int depth)
{
    QStringList resolutions;
    for (const QJsonValue &value : config["resolutionList"_L1].toArray())
        resolutions.append(
            Imaging::VResolution::fromJsonObject(value.toObject()).toString(QLocale::c()));
    addLine(u"Type"_s, config["elaborationType"_L1].toString(), depth);
    addLine(u"Levels"_s, joined(config["levelManagementList"_L1]), depth);
    addLine(u"Resolutions"_s, resolutions.isEmpty() ? u"none"_s : resolutions.join(u", "_s), depth);
    addLine(u"Scroll ratios"_s, joined(config["scrollRatioList"_L1]), depth);
    addLine(u"Magnification"_s,
            u"%1 to %2"_s.arg(textOf(config["magnificationMin"_L1]),
                              textOf(config["magnificationMax"_L1])),
            depth);
    addLine(u"Preferred"_s, yesNo(config["prefered"_L1]), depth);
    addLine(u"Allowed online"_s, yesNo(config["allowOnlineElaboration"_L1]), depth);
}

void Sheet::addChildren(const QJsonObject &record, int depth)
{
    for (const QJsonValue &value : record["children"_L1].toArray()) {
        const QJsonObject child = value.toObject();
        const QJsonObject config = child["config"_L1].toObject();
        text += u'\n';
        addTitle(child, depth);
        // The kinds are told by what they hold.
        if (config.contains("channels"_L1))
            addPrintUnit(config, depth + 1);
        else if (config.contains("elaborationType"_L1))
            addElaboration(config, depth + 1);
        addChildren(child, depth + 1);
    }
}

} // namespace

QString machineSheet(const VPrinterDriver &machine)
{
    Sheet sheet;
    sheet.addMachine(machine);
    return sheet.text;
}

} // namespace Norvane::Kilnjet::Tool
