// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Store.h"

#include "Invocation.h"
#include "Paths.h"
#include "Progress.h"
#include "RecordFile.h"
#include "RecordSchema.h"
#include "Text.h"

#include <kilnjet/VPrintersDb.h>
#include <vcommon/VDBIterator.h>
#include <vcore/VConvert.h>
#include <vcore/VLocale.h>

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using namespace Database;

constexpr int kUsualWait = 10; ///< Seconds.
constexpr int kLongestWait = 24 * 60 * 60;

std::chrono::milliseconds waitFrom(const Invocation &invocation)
{
    const QString text = invocation.value("--wait"_L1, QString::number(kUsualWait));
    bool ok = false;
    const int seconds = text.toInt(&ok);
    if (!ok || seconds < 0 || seconds > kLongestWait) {
        throw Failure{.code = ExitCode::Usage,
                      .where = u"--wait"_s,
                      .what = u"%1 is no number of seconds from 0 to %2"_s.arg(
                          quoted(text), QString::number(kLongestWait))};
    }
    return std::chrono::seconds(seconds);
}

QString keyFrom(const QString &path)
{
    QByteArray bytes = RecordFile::readAll(path);
    if (bytes.endsWith('\n'))
        bytes.chop(bytes.endsWith("\r\n") ? 2 : 1);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString key = decoder(bytes);
    if (key.isEmpty() || decoder.hasError()) {
        throw Failure{.code = ExitCode::Usage,
                      .where = path,
                      .what = u"there is no key in the file"_s,
                      .why = key.isEmpty() ? u"it is empty"_s : u"it is not UTF-8"_s};
    }
    return key;
}

/// Opens `store` and says what there is in it.
StoreSurvey openStore(VDBText &store, QFile &file, const StoreSettings &settings, Access access)
{
    StoreSurvey survey;
    store.setLockTimeout(settings.wait);
    // The second text tells the store what it is opened for.
    store.setKey(settings.key, access == Access::Read ? u""_s : QString());
    store.setReporter([&survey](const VDBDamage &damage) { survey.damage.append(damage); });
    if (store.open(&file)) {
        survey.count = store.count();
        survey.isKeyed = store.isKeyed();
    }
    store.setReporter({});
    survey.status = store.status();
    survey.error = store.errorString();
    if (survey.status == VDBStatus::WrongKey) {
        // Without a key every sound file can be opened; it tells whether it has one.
        store.setKey(QString(), u""_s);
        survey.isKeyed = store.open(&file) && store.isKeyed();
        store.close();
    }
    return survey;
}

/// Why the text is no driver's JSON.
QString whyNoDriver(const QByteArray &json, const Hardware::Interfaces::IVDeviceConfig *config)
{
    if (config != nullptr)
        return u"it is a record of the kind %1"_s.arg(quoted(kindName(config->id())));
    QJsonParseError error;
    QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return u"its field \"driver\" is no JSON: %1"_s.arg(error.errorString());
    return u"its field \"driver\" is no record of a known kind"_s;
}

} // namespace

StoreSettings StoreSettings::from(const Invocation &invocation)
{
    StoreSettings settings;
    settings.path = invocation.value("--db"_L1, VPrintersDb::defaultFilename());
    if (settings.path.isEmpty())
        throw Failure{.code = ExitCode::Usage, .where = u"--db"_s, .what = u"the name is empty"_s};
    if (invocation.has("--key-file"_L1))
        settings.key = keyFrom(invocation.value("--key-file"_L1));
    settings.wait = waitFrom(invocation);
    return settings;
}

StoredRecord judgedByContent(const VDBRecord &record)
{
    const auto text = [&record](const VDBField &field) {
        const QVariant culture = record.search(VDBRecord::cultureKey()).value();
        const VLocale locale(VConvert::toString(culture, QLocale::c()),
                             QLocale::OmitGroupSeparator);
        return VConvert::toString(field.value(), locale);
    };
    const VDBField id = record.search(u"id"_s);
    const VDBField driver = record.search(u"driver"_s);
    StoredRecord result{.line = record.line(), .id = text(id), .json = text(driver).toUtf8()};
    if (!id.isFound() || id.value().isNull())
        result.reason = u"it has no field \"id\""_s;
    else if (QUuid(result.id).isNull())
        result.reason = u"its field \"id\" is no id"_s;
    else if (!driver.isFound() || driver.value().isNull())
        result.reason = u"it has no field \"driver\""_s;
    if (!result.reason.isEmpty())
        return result;

    using Hardware::Interfaces::IVDeviceConfig;
    const std::unique_ptr<IVDeviceConfig> config(Hardware::VDeviceConfig::fromJson(result.json));
    const auto *parsed = dynamic_cast<const VPrinterDriver *>(config.get());
    if (parsed == nullptr)
        result.reason = whyNoDriver(result.json, config.get());
    else if (parsed->dataId() != QUuid(result.id))
        result.reason = u"its content has another id: %1"_s.arg(parsed->dataId().toString());
    else
        result.driver = *parsed;
    return result;
}

StoredRecord judged(const VDBRecord &record)
{
    StoredRecord result = judgedByContent(record);
    if (!record.checkSignature()) {
        result.driver.reset();
        result.reason = u"its signature does not match its content"_s;
    }
    return result;
}

bool isHarmless(VDBDamage::Reason reason)
{
    return reason == VDBDamage::Reason::Unfinished || reason == VDBDamage::Reason::BadLineEnd;
}

bool isDamaged(const StoreSurvey &survey)
{
    return std::any_of(survey.damage.begin(), survey.damage.end(),
                       [](const VDBDamage &part) { return !isHarmless(part.reason); });
}

QString wayOutOfDamage(const QString &path)
{
    return u"'kilnjet recover %1 NEW' carries what is readable into a new file, "
           "'kilnjet --db NEW restore BACKUP' makes one from a backup"_s.arg(path);
}

StoreSurvey surveyStore(const StoreSettings &settings, Access access)
{
    QFile file(settings.path);
    VDBText store;
    const StoreSurvey survey = openStore(store, file, settings, access);
    store.close();
    return survey;
}

Failure storeFailure(const StoreSurvey &survey, const QString &path)
{
    Failure failure{.code = ExitCode::Io, .where = path, .what = u"cannot open the database"_s};
    switch (survey.status) {
    case VDBStatus::NotFound:
        failure.why = u"there is no such file"_s;
        failure.hint = nearbyFile(path);
        if (failure.hint.isEmpty())
            failure.hint = u"'kilnjet import' creates it"_s;
        break;
    case VDBStatus::Empty:
        failure.why = u"the file is empty"_s;
        failure.hint = u"'kilnjet import' makes a database of it"_s;
        break;
    case VDBStatus::NotADatabase:
        failure.code = ExitCode::Damaged;
        failure.why = u"the file is no printers database"_s;
        failure.hint = u"it was left as it is; if it was one: "_s + wayOutOfDamage(path);
        break;
    case VDBStatus::DamagedHeader:
        failure.code = ExitCode::Damaged;
        failure.why = u"both copies of its header are damaged"_s;
        failure.hint = wayOutOfDamage(path);
        break;
    case VDBStatus::NewerFormat:
        failure.code = ExitCode::Damaged;
        failure.why = u"a newer program wrote it"_s;
        failure.hint = u"use that program, or a newer version of this one"_s;
        break;
    case VDBStatus::WrongKey:
        failure.code = ExitCode::WrongKey;
        failure.why = survey.isKeyed ? u"it belongs to another key"_s : u"it has no key"_s;
        failure.hint = survey.isKeyed ? u"--key-file names the file that holds its key"_s
                                      : u"leave --key-file out"_s;
        break;
    case VDBStatus::KeyRequired:
        failure.code = ExitCode::WrongKey;
        failure.why = u"changing it takes its key"_s;
        failure.hint = u"--key-file names the file that holds its key"_s;
        break;
    case VDBStatus::Locked:
        failure.code = ExitCode::Locked;
        failure.why = u"another process holds it"_s;
        failure.hint = u"try again when it is done; --wait says how long to wait"_s;
        break;
    default:
        failure.why = survey.error.isEmpty() ? u"the system refused it"_s : survey.error;
        break;
    }
    return failure;
}

StoreSurvey visitStore(const StoreSettings &settings, Progress &progress,
                       const std::function<void(const StoredRecord &record)> &visit)
{
    QFile file(settings.path);
    VDBText store;
    const StoreSurvey survey = openStore(store, file, settings, Access::Read);
    if (survey.status != VDBStatus::Ok)
        throw storeFailure(survey, settings.path);
    progress.begin(survey.count);
    VDBRecord record;
    for (store.first(record); !record.isNull(); store.next(record)) {
        visit(judged(record));
        progress.advance();
    }
    store.close();
    return survey;
}

StoreSurvey readStore(const StoreSettings &settings, QList<VDBRecord> &records)
{
    QFile file(settings.path);
    VDBText store;
    const StoreSurvey survey = openStore(store, file, settings, Access::Read);
    if (survey.status != VDBStatus::Ok)
        throw storeFailure(survey, settings.path);
    records = store.values();
    store.close();
    return survey;
}

SoundRecord soundRecord(const VDBRecord &record)
{
    if (!record.checkSignature())
        return {};
    const std::optional<VBytes> id = record.utf8(u"id"_s);
    const std::optional<VBytes> json = record.utf8(u"driver"_s);
    if (!id || !json)
        return {};
    std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> config(
        Hardware::VDeviceConfig::fromJson(*json));
    auto *driver = dynamic_cast<VPrinterDriver *>(config.get());
    const QUuid key = QUuid::fromString(QUtf8StringView(id->view()));
    if (driver == nullptr || key.isNull() || driver->dataId() != key)
        return {};
    std::ignore = config.release();
    return {.driver = std::unique_ptr<VPrinterDriver>(driver), .json = *json};
}

Compaction compactStore(const StoreSettings &settings)
{
    QFile file(settings.path);
    VDBText store;
    Compaction result;
    result.survey = openStore(store, file, settings, Access::Write);
    if (result.survey.status != VDBStatus::Ok)
        throw storeFailure(result.survey, settings.path);
    result.sizeBefore = file.size();
    const bool isDone = store.purge();
    const QString error = store.errorString();
    result.sizeAfter = file.size();
    store.close();
    if (isDone)
        return result;
    throw Failure{.code = ExitCode::Io,
                  .where = settings.path,
                  .what = u"cannot compact the database"_s,
                  .why = error.isEmpty() ? u"the system refused it"_s : error,
                  .hint = u"nothing is lost; the new file is made beside the old one, so its "
                          "folder must allow that and have room for it"_s};
}

void insertRecords(const QList<VDBRecord> &records, const StoreSettings &settings)
{
    QFile file(settings.path);
    VDBText store;
    const StoreSurvey survey = openStore(store, file, settings, Access::Write);
    if (survey.status != VDBStatus::Ok)
        throw storeFailure(survey, settings.path);
    const bool areTaken = std::all_of(records.begin(), records.end(), [&store](const auto &record) {
        return store.insert(record);
    });
    store.close();
    if (!areTaken || !store.wasDurable()) {
        throw Failure{.code = ExitCode::Io,
                      .where = settings.path,
                      .what = u"cannot write the records"_s,
                      .why = store.errorString()};
    }
}

bool isStore(const QByteArray &text)
{
    return text.startsWith("vdbtext");
}

} // namespace Norvane::Kilnjet::Tool
