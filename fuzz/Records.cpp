// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Records.h"

#include "Fuzz.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <bit>
#include <typeinfo>

using namespace Qt::StringLiterals;

namespace Fuzz {

using namespace Norvane::Kilnjet;
using Norvane::Imaging::VResolution;

namespace {

/// Equal bit for bit: a negative zero is another number than zero.
bool sameNumber(double a, double b)
{
    return std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b);
}

bool sameResolution(const VResolution &a, const VResolution &b)
{
    return sameNumber(a.x(), b.x()) && sameNumber(a.y(), b.y()) && a.unit() == b.unit();
}

bool sameEnvelope(const IVDeviceConfig &a, const IVDeviceConfig &b)
{
    return a.id() == b.id() && a.deviceId() == b.deviceId() && a.version() == b.version()
        && a.dateTime() == b.dateTime() && a.dateTime().isValid() == b.dateTime().isValid()
        && a.name() == b.name() && a.description() == b.description();
}

bool sameStates(const IVDeviceConfig &a, const IVDeviceConfig &b)
{
    return a.isNull() == b.isNull() && a.isEmpty() == b.isEmpty() && a.isValid() == b.isValid()
        && a.count(QUuid(), false) == b.count(QUuid(), false)
        && a.count(QUuid(), true) == b.count(QUuid(), true)
        && a.metadataCount() == b.metadataCount();
}

bool sameMetadata(const IVDeviceConfig &a, const IVDeviceConfig &b)
{
    const auto left = a.metadataList();
    const auto right = b.metadataList();
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const auto *one, const auto *other) {
                          return one->key() == other->key() && one->flags() == other->flags()
                              && one->value() == other->value();
                      });
}

bool sameFields(const VPrinterDriver &a, const VPrinterDriver &b)
{
    return a.printerClass() == b.printerClass() && a.facesMode() == b.facesMode()
        && a.fileCompression() == b.fileCompression() && a.fileProtection() == b.fileProtection()
        && a.maximumFaces() == b.maximumFaces() && a.maximumImageBytes() == b.maximumImageBytes()
        && a.onlineElaboration() == b.onlineElaboration()
        && a.onlineLinearizations() == b.onlineLinearizations()
        && a.experimental() == b.experimental();
}

bool sameFields(const VPrintUnitDriver &a, const VPrintUnitDriver &b)
{
    return a.channels() == b.channels()
        && a.customHorizontalResolution() == b.customHorizontalResolution()
        && a.customVerticalResolution() == b.customVerticalResolution();
}

bool sameFields(const VElaborationDriver &a, const VElaborationDriver &b)
{
    const auto ratios = a.scrollRatioList();
    const auto otherRatios = b.scrollRatioList();
    const auto resolutions = a.resolutionList();
    const auto otherResolutions = b.resolutionList();
    return a.allowOnlineElaboration() == b.allowOnlineElaboration()
        && a.isPrefered() == b.isPrefered() && a.elaborationType() == b.elaborationType()
        && sameNumber(a.magnification().first, b.magnification().first)
        && sameNumber(a.magnification().second, b.magnification().second)
        && a.levelManagementList() == b.levelManagementList()
        && std::equal(ratios.begin(), ratios.end(), otherRatios.begin(), otherRatios.end(),
                      sameNumber)
        && std::equal(resolutions.begin(), resolutions.end(), otherResolutions.begin(),
                      otherResolutions.end(), sameResolution);
}

/// Compares the own fields of records of class `Driver`; true for other classes.
template<typename Driver>
bool sameFieldsOf(const IVDeviceConfig &a, const IVDeviceConfig &b)
{
    const auto *const left = dynamic_cast<const Driver *>(&a);
    const auto *const right = dynamic_cast<const Driver *>(&b);
    return left == nullptr || (right != nullptr && sameFields(*left, *right));
}

void requireThat(bool holds, const char *of, const char *what)
{
    if (!holds)
        require(false, (QByteArray(of) + ": " + what).constData());
}

void requireSameFields(const IVDeviceConfig &actual, const IVDeviceConfig &wanted, const char *of)
{
    requireThat(typeid(actual) == typeid(wanted), of, "the class");
    requireThat(sameEnvelope(actual, wanted), of, "the fields of every record");
    requireThat(actual.dataId() == wanted.dataId(), of, "the content id");
    requireThat(sameStates(actual, wanted), of, "what it is and how much it holds");
    requireThat(sameMetadata(actual, wanted), of, "the metadata");
    requireThat(sameFieldsOf<VPrinterDriver>(actual, wanted), of, "a printer's fields");
    requireThat(sameFieldsOf<VPrintUnitDriver>(actual, wanted), of, "a print unit's fields");
    requireThat(sameFieldsOf<VElaborationDriver>(actual, wanted), of, "an elaboration's fields");

    const QList<IVDeviceConfig *> children = actual.values(QUuid());
    const QList<IVDeviceConfig *> others = wanted.values(QUuid());
    requireThat(children.size() == others.size(), of, "how many children there are");
    for (qsizetype i = 0; i < children.size(); ++i)
        requireSameFields(*children.at(i), *others.at(i), of);
}

} // namespace

QByteArray compact(const IVDeviceConfig &config)
{
    return QJsonDocument(config.toJsonObject()).toJson(QJsonDocument::Compact);
}

ConfigPtr fromJson(const QByteArray &json)
{
    return ConfigPtr(Norvane::Hardware::VDeviceConfig::fromJson(json));
}

ConfigPtr cloneOf(const IVDeviceConfig &config)
{
    return ConfigPtr(static_cast<IVDeviceConfig *>(config.clone()));
}

void requireSame(const IVDeviceConfig &actual, const IVDeviceConfig &wanted, const char *of)
{
    requireSameFields(actual, wanted, of);
    const QJsonObject object = actual.toJsonObject();
    const QJsonObject other = wanted.toJsonObject();
    requireThat(object == other, of, "the JSON");
    const auto textOf = [](const QJsonObject &json) {
        return QJsonDocument(json).toJson(QJsonDocument::Compact);
    };
    requireThat(textOf(object) == textOf(other), of, "the JSON's text");
    requireThat(actual.hash() == wanted.hash(), of, "the hash");
    requireThat(actual.equalsTo(&wanted) == wanted.equalsTo(&wanted), of, "equality");
    requireThat(wanted.equalsTo(&actual) == actual.equalsTo(&actual), of, "equality, turned round");
}

bool hasJsonForm(const IVDeviceConfig &config)
{
    if (config.dateTime().isValid() && !config.toJsonObject().contains("dateTime"_L1))
        return false;
    if (const auto *const method = dynamic_cast<const VElaborationDriver *>(&config)) {
        const QList<double> ratios = method->scrollRatioList();
        if (std::any_of(ratios.begin(), ratios.end(),
                        [](double ratio) { return sameNumber(ratio, -0.0); }))
            return false;
    }
    const QList<IVDeviceConfig *> children = config.values(QUuid());
    return std::all_of(children.begin(), children.end(),
                       [](const auto *child) { return hasJsonForm(*child); });
}

} // namespace Fuzz
