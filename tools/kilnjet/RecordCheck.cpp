// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RecordCheck.h"

#include "JsonScanner.h"
#include "Nearest.h"
#include "RecordSchema.h"
#include "Text.h"
#include "ValueCheck.h"

#include <vcore/MetadataFlags.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>

#include <memory>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Hardware::Interfaces::IVDeviceConfig;

/// Compares JSON with the rules of RecordSchema.h.
class Checker
{
public:
    enum class Place
    {
        Root,
        Child
    };

    void checkEnvelope(const QJsonValue &value, const QString &pointer, Place place);
    void checkDriver(const VPrinterDriver &driver);
    void checkChildren(const IVDeviceConfig &config, const QString &pointer);
    void add(Severity severity, const QString &pointer, const Complaint &complaint);

    Findings findings;

private:
    const RecordKind *checkKind(const QJsonValue &id, const QString &pointer, Place place);
    void checkObject(const QJsonObject &object, ObjectRule rule, const QString &pointer);
    void checkKeys(const QJsonObject &object, ObjectRule rule, const QString &pointer);
    void checkMember(const QJsonValue &value, const KeyRule &rule, const QString &pointer);
    void checkElement(const QJsonValue &value, const KeyRule &rule, const QString &pointer);
    void checkMetadata(const QJsonArray &entries, const QString &pointer);
    void checkListed(const QJsonValue &value, ObjectRule rule, const QString &pointer);
};

QString step(qsizetype index)
{
    return u"/%1"_s.arg(index);
}

void Checker::add(Severity severity, const QString &pointer, const Complaint &complaint)
{
    findings.append({.severity = severity,
                     .pointer = pointer,
                     .reason = complaint.reason,
                     .hint = complaint.hint});
}

/// The kind of the record, if its own fields can be checked.
const RecordKind *Checker::checkKind(const QJsonValue &id, const QString &pointer, Place place)
{
    const QUuid uuid(id.toString());
    const RecordKind *kind = findKind(uuid);
    if (!id.isString() || checkValue(id, {"id"_L1, ValueType::Id}))
        return nullptr; // The check of the keys will say so.
    if (place == Place::Root && kind != &printerKind()) {
        add(Severity::Error, pointer + u"/id"_s,
            {u"this is a record of the kind %1; a catalogue holds printer drivers"_s.arg(
                quoted(kindName(uuid)))});
        return nullptr;
    }
    if (kind == nullptr) {
        add(Severity::Warning, pointer + u"/id"_s,
            {u"%1 is no kind known here; the record is kept as it is"_s.arg(describe(id))});
    }
    return kind;
}

void Checker::checkEnvelope(const QJsonValue &value, const QString &pointer, Place place)
{
    if (!value.isObject()) {
        add(Severity::Error, pointer, {u"%1 stands where a record belongs"_s.arg(describe(value))});
        return;
    }
    const QJsonObject object = value.toObject();
    const qsizetype before = findings.size();
    const RecordKind *kind = checkKind(object.value("id"_L1), pointer, place);
    // An unknown record may have other keys; it is not read, so nothing of it is lost.
    if (kind == nullptr && findings.size() > before)
        return;
    checkObject(object, envelopeRule(), pointer);
    const QJsonValue config = object.value("config"_L1);
    if (kind == nullptr || !config.isObject())
        return;
    checkObject(config.toObject(), kind->config, pointer + u"/config"_s);
    if (!config["svgIcon"_L1].toString().isEmpty() && config.toObject().contains("icon"_L1)) {
        add(Severity::Error, pointer + u"/config/icon"_s,
            {u"the images would be ignored beside \"svgIcon\""_s, u"drop one of the two"_s});
    }
}

void Checker::checkObject(const QJsonObject &object, ObjectRule rule, const QString &pointer)
{
    checkKeys(object, rule, pointer);
    for (const KeyRule &key : rule) {
        const auto member = object.constFind(key.key);
        if (member != object.constEnd())
            checkMember(*member, key, pointer + pointerStep(key.key));
    }
}

/// Finds keys that are missing, and keys that should not be there.
void Checker::checkKeys(const QJsonObject &object, ObjectRule rule, const QString &pointer)
{
    QStringList known;
    QStringList missing;
    for (const KeyRule &key : rule) {
        known.append(key.key);
        if (!object.contains(key.key))
            missing.append(key.key);
    }
    for (const QString &key : object.keys()) {
        if (known.contains(key))
            continue;
        const QString meant = nearestName(key, missing);
        if (meant.isEmpty()) {
            add(Severity::Warning, pointer + pointerStep(key),
                {u"no record has this key; it is not kept"_s});
            continue;
        }
        missing.removeOne(meant);
        add(Severity::Error, pointer + pointerStep(key),
            {u"no record has this key"_s, u"did you mean %1?"_s.arg(quoted(meant))});
    }
    for (const KeyRule &key : rule) {
        if (key.presence == Presence::Required && missing.contains(key.key))
            add(Severity::Error, pointer + pointerStep(key.key), {u"this key is missing"_s});
    }
}

void Checker::checkMember(const QJsonValue &value, const KeyRule &rule, const QString &pointer)
{
    auto complaint = checkContainer(value, rule.type);
    if (!complaint)
        complaint = checkValue(value, rule);
    if (complaint) {
        add(Severity::Error, pointer, *complaint);
        return;
    }
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size(); ++i)
        checkElement(array.at(i), rule, pointer + step(i));
    if (rule.type == ValueType::Metadata)
        checkMetadata(array, pointer);
}

/// What the entries say together: of one key only the last is kept, of some none.
void Checker::checkMetadata(const QJsonArray &entries, const QString &pointer)
{
    QSet<quint64> keys;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        bool ok = false;
        const quint64 key = entries.at(i)["key"_L1].toString().toULongLong(&ok);
        if (ok && keys.contains(key)) {
            add(Severity::Error, pointer + step(i) + u"/key"_s,
                {u"an earlier entry has the same key and would be lost"_s});
        }
        keys.insert(key);
        const auto flags =
            MetadataFlags_T::instance().valueOf(entries.at(i)["flags"_L1].toString());
        // A database holds copies of records, and writes those.
        const auto lost = MetadataFlags::KillOnCopy | MetadataFlags::KillOnSave;
        if ((flags & lost) != MetadataFlags::None) {
            add(Severity::Warning, pointer + step(i) + u"/flags"_s,
                {u"an entry that is flagged KillOnCopy or KillOnSave is not kept"_s});
        }
    }
}

/// One element of an array that is the value of a key.
void Checker::checkElement(const QJsonValue &value, const KeyRule &rule, const QString &pointer)
{
    switch (rule.type) {
    case ValueType::EnumNames:
        if (const auto complaint = checkEnumName(value, rule.enumeration))
            add(Severity::Error, pointer, *complaint);
        break;
    case ValueType::Numbers:
        if (const auto complaint = checkValue(value, {rule.key, ValueType::Number}))
            add(Severity::Error, pointer, *complaint);
        break;
    case ValueType::Resolutions:
        checkListed(value, resolutionRule(), pointer);
        break;
    case ValueType::Metadata:
        checkListed(value, metadataRule(), pointer);
        break;
    case ValueType::Images: {
        const qsizetype before = findings.size();
        checkListed(value, imageRule(), pointer);
        const auto complaint =
            findings.size() == before ? checkImage(value.toObject()) : std::nullopt;
        if (complaint)
            add(Severity::Error, pointer, *complaint);
        break;
    }
    case ValueType::Children:
        checkEnvelope(value, pointer, Place::Child);
        break;
    default:
        break;
    }
}

/// An element that must be an object.
void Checker::checkListed(const QJsonValue &value, ObjectRule rule, const QString &pointer)
{
    if (value.isObject())
        checkObject(value.toObject(), rule, pointer);
    else
        add(Severity::Error, pointer,
            {u"%1 stands where an object belongs"_s.arg(describe(value))});
}

void Checker::checkDriver(const VPrinterDriver &driver)
{
    if (driver.isNull())
        add(Severity::Error, u"/deviceId"_s, {u"the null id is no identity"_s});
    if (driver.count(QUuid(), false) == 0)
        add(Severity::Error, u"/children"_s,
            {u"the machine has no children"_s,
             u"a machine needs a print unit or an elaboration"_s});
    if (!driver.isValid() && !hasErrors(findings))
        add(Severity::Error, QString(), {u"the record is not valid"_s});
    checkChildren(driver, QString());
}

void Checker::checkChildren(const IVDeviceConfig &config, const QString &pointer)
{
    const QList<IVDeviceConfig *> children = config.values(QUuid());
    for (qsizetype i = 0; i < children.size(); ++i) {
        const QString child = pointer + u"/children"_s + step(i);
        if (findKind(children.at(i)->id()) != nullptr && !children.at(i)->isValid()) {
            add(Severity::Warning, child,
                {u"this %1 is not valid"_s.arg(kindName(children.at(i)->id()))});
        }
        checkChildren(*children.at(i), child);
    }
}

} // namespace

CheckedRecord checkRecord(const QJsonValue &record)
{
    Checker checker;
    checker.checkEnvelope(record, QString(), Checker::Place::Root);
    if (hasErrors(checker.findings))
        return {checker.findings, {}};

    const QByteArray json = QJsonDocument(record.toObject()).toJson(QJsonDocument::Compact);
    const std::unique_ptr<IVDeviceConfig> config(Hardware::VDeviceConfig::fromJson(json));
    const auto *driver = dynamic_cast<const VPrinterDriver *>(config.get());
    if (driver == nullptr) {
        checker.add(Severity::Error, QString(), {u"the record cannot be read"_s});
        return {checker.findings, {}};
    }
    checker.checkDriver(*driver);
    if (hasErrors(checker.findings))
        return {checker.findings, {}};
    return {checker.findings, *driver};
}

} // namespace Norvane::Kilnjet::Tool
