// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The keys of a record: those that are missing, misspelt or unknown, and what they say together.

#include "RecordCheck.h"
#include "RecordSchema.h"
#include "support/Drivers.h"
#include "support/RecordJson.h"

#include <QtTest/QTest>

#include <algorithm>

using namespace Norvane::Kilnjet;
using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;

class tst_record_keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTables_holdTheKeysThatTheLibraryWrites();
    void aMissingKey_isFound_data();
    void aMissingKey_isFound();
    void anOptionalKey_mayBeMissing_data();
    void anOptionalKey_mayBeMissing();
    void aMisspeltKey_isFoundOnce_data();
    void aMisspeltKey_isFoundOnce();
    void anUnknownKey_isAWarning_data();
    void anUnknownKey_isAWarning();
    void anInvalidRecord_isFound_data();
    void anInvalidRecord_isFound();
    void anInvalidChild_isAWarning();
    void aChildOfAnUnknownKind_isKeptAsItCame();
    void anotherKindOfRecord_isNoMachine_data();
    void anotherKindOfRecord_isNoMachine();
    void imagesBesideAnSvg_areFound();
    void metadataThatWouldBeLost_isFound();
    void deepChildren_areChecked();
};

namespace {

QJsonObject record()
{
    return Support::printerJson(u"Kiln line 4"_s);
}

QString textOf(const Findings &findings)
{
    QString text;
    for (const Finding &finding : findings)
        text += finding.toString() + u'\n';
    return text;
}

bool has(const Findings &findings, Severity severity, const QString &pointer, const QString &reason)
{
    return std::any_of(findings.begin(), findings.end(), [&](const Finding &finding) {
        return finding.severity == severity && finding.pointer == pointer
            && finding.reason.contains(reason);
    });
}

QStringList keysOf(ObjectRule rule, bool withOptional)
{
    QStringList keys;
    for (const KeyRule &key : rule) {
        if (withOptional || key.presence == Presence::Required)
            keys.append(key.key);
    }
    keys.sort();
    return keys;
}

} // namespace

void tst_record_keys::theTables_holdTheKeysThatTheLibraryWrites()
{
    const VPrinterDriver printer = Support::validPrinter();
    const QJsonObject written = printer.toJsonObject();
    QStringList envelope = keysOf(envelopeRule(), false) << u"children"_s;
    envelope.sort();
    QCOMPARE(written.keys(), envelope);

    using Norvane::Hardware::VDeviceConfig;
    const VPrintUnitDriver unit = Support::printUnit();
    const VElaborationDriver elaboration = Support::elaboration();
    for (const VDeviceConfig *config :
         {static_cast<const VDeviceConfig *>(&printer), static_cast<const VDeviceConfig *>(&unit),
          static_cast<const VDeviceConfig *>(&elaboration)}) {
        const RecordKind *kind = findKind(config->id());
        QVERIFY(kind);
        QCOMPARE(Support::innerOf(*config).keys(), keysOf(kind->config, false));
    }
    const QJsonArray resolutions = Support::innerOf(elaboration)["resolutionList"_L1].toArray();
    QCOMPARE(resolutions.first().toObject().keys(), keysOf(resolutionRule(), true));

    // The optional ones are read and written back.
    const CheckedRecord checked = checkRecord(record());
    QVERIFY(checked.driver);
    QCOMPARE(checked.driver->toJsonObject(), record());
    QCOMPARE(record().keys(), keysOf(envelopeRule(), true));
    QCOMPARE(record()["metadata"_L1][0].toObject().keys(), keysOf(metadataRule(), true));
    QCOMPARE(record()["config"_L1]["icon"_L1][0].toObject().keys(), keysOf(imageRule(), true));
}

void tst_record_keys::aMissingKey_isFound_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("key");
    const auto addRows = [](const QString &object, ObjectRule rule) {
        for (const QString &key : keysOf(rule, false))
            QTest::newRow(qPrintable(object + u'/' + key)) << object << key;
    };
    addRows(QString(), envelopeRule());
    addRows(u"/config"_s, printerKind().config);
    addRows(u"/config/icon/0"_s, imageRule());
    addRows(u"/metadata/0"_s, metadataRule());
    addRows(u"/children/0"_s, envelopeRule());
    addRows(u"/children/0/config"_s,
            findKind(QUuid(record()["children"_L1][0]["id"_L1].toString()))->config);
    addRows(u"/children/1/config"_s,
            findKind(QUuid(record()["children"_L1][1]["id"_L1].toString()))->config);
    addRows(u"/children/1/config/resolutionList/0"_s, resolutionRule());
}

void tst_record_keys::aMissingKey_isFound()
{
    QFETCH(QString, object);
    QFETCH(QString, key);
    const QString pointer = object + u'/' + key;
    const CheckedRecord checked = checkRecord(Support::without(record(), pointer));
    QVERIFY(!checked.driver);
    QVERIFY2(has(checked.findings, Severity::Error, pointer, u"this key is missing"_s),
             qPrintable(textOf(checked.findings)));
}

void tst_record_keys::anOptionalKey_mayBeMissing_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::newRow("the date") << u"/dateTime"_s;
    QTest::newRow("the metadata") << u"/metadata"_s;
    QTest::newRow("the icon") << u"/config/icon"_s;
}

void tst_record_keys::anOptionalKey_mayBeMissing()
{
    QFETCH(QString, pointer);
    const CheckedRecord checked = checkRecord(Support::without(record(), pointer));
    QCOMPARE(textOf(checked.findings), QString());
    QVERIFY(checked.driver);
}

void tst_record_keys::aMisspeltKey_isFoundOnce_data()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("written");
    const auto addRow = [](const char *name, const QString &object, const QString &key,
                           const QString &written) {
        QTest::newRow(name) << object << key << written;
    };
    addRow("the plural that the accessor has", u"/config"_s, u"onlineLinearization"_s,
           u"onlineLinearizations"_s);
    addRow("the right spelling of a wrong key", u"/children/1/config"_s, u"prefered"_s,
           u"preferred"_s);
    addRow("another case", u"/config"_s, u"maximumFaces"_s, u"maximumfaces"_s);
    addRow("swapped letters", u""_s, u"version"_s, u"verison"_s);
    addRow("an optional key", u""_s, u"dateTime"_s, u"datetime"_s);
    addRow("the children", u""_s, u"children"_s, u"childern"_s);
}

void tst_record_keys::aMisspeltKey_isFoundOnce()
{
    QFETCH(QString, object);
    QFETCH(QString, key);
    QFETCH(QString, written);
    QJsonObject broken = Support::without(record(), object + u'/' + key);
    broken = Support::with(broken, object + u'/' + written, QJsonValue());
    const CheckedRecord checked = checkRecord(broken);
    QVERIFY(!checked.driver);
    QCOMPARE(checked.findings.size(), 1);
    QCOMPARE(checked.findings.first().pointer, object + u'/' + written);
    QCOMPARE(checked.findings.first().hint, u"did you mean '%1'?"_s.arg(key));
}

void tst_record_keys::anUnknownKey_isAWarning_data()
{
    QTest::addColumn<QString>("pointer");
    QTest::newRow("in the envelope") << u"/owner"_s;
    QTest::newRow("beside the key it resembles") << u"/config/onlineLinearizations"_s;
    QTest::newRow("in a child") << u"/children/0/config/colour"_s;
    QTest::newRow("in a resolution") << u"/children/1/config/resolutionList/0/z"_s;
    QTest::newRow("the empty key") << u"/config/"_s;
}

void tst_record_keys::anUnknownKey_isAWarning()
{
    QFETCH(QString, pointer);
    const CheckedRecord checked = checkRecord(Support::with(record(), pointer, 1));
    QVERIFY(checked.driver);
    QCOMPARE(checked.findings.size(), 1);
    QVERIFY2(has(checked.findings, Severity::Warning, pointer, u"it is not kept"_s),
             qPrintable(textOf(checked.findings)));
}

void tst_record_keys::anInvalidRecord_isFound_data()
{
    QTest::addColumn<QJsonObject>("record");
    QTest::addColumn<QString>("pointer");
    QTest::newRow("no children") << Support::with(record(), u"/children"_s, QJsonArray())
                                 << u"/children"_s;
    QTest::newRow("no key for children")
        << Support::without(record(), u"/children"_s) << u"/children"_s;
    QTest::newRow("the null device id")
        << Support::with(record(), u"/deviceId"_s, QUuid().toString()) << u"/deviceId"_s;
}

void tst_record_keys::anInvalidRecord_isFound()
{
    QFETCH(QJsonObject, record);
    QFETCH(QString, pointer);
    const CheckedRecord checked = checkRecord(record);
    QVERIFY(!checked.driver);
    QVERIFY2(has(checked.findings, Severity::Error, pointer, QString()),
             qPrintable(textOf(checked.findings)));
}

void tst_record_keys::anInvalidChild_isAWarning()
{
    const CheckedRecord checked =
        checkRecord(Support::with(record(), u"/children/1/config/elaborationType"_s, u"None"_s));
    QVERIFY(checked.driver);
    QCOMPARE(textOf(checked.findings),
             u": /children/1: warning: this elaboration is not valid\n"_s);
}

void tst_record_keys::aChildOfAnUnknownKind_isKeptAsItCame()
{
    const QJsonObject stranger{{u"id"_s, u"{11111111-2222-4333-8444-555555555555}"_s},
                               {u"anything"_s, QJsonArray{1, u"two"_s}}};
    const QJsonObject written = Support::with(record(), u"/children/0"_s, stranger);
    const CheckedRecord checked = checkRecord(written);
    QCOMPARE(checked.findings.size(), 1);
    QVERIFY2(has(checked.findings, Severity::Warning, u"/children/0/id"_s, u"kept as it is"_s),
             qPrintable(textOf(checked.findings)));
    QVERIFY(checked.driver);
    QCOMPARE(checked.driver->toJsonObject()["children"_L1][0].toObject(), stranger);
}

void tst_record_keys::anotherKindOfRecord_isNoMachine_data()
{
    QTest::addColumn<QJsonObject>("record");
    QTest::addColumn<QString>("kind");
    QTest::newRow("a print unit") << Support::printUnitJson(u"x"_s) << u"print unit"_s;
    QTest::newRow("an elaboration") << Support::elaborationJson(u"x"_s) << u"elaboration"_s;
    QTest::newRow("the null kind")
        << Support::with(record(), u"/id"_s, QUuid().toString()) << u"unknown kind"_s;
    QTest::newRow("a kind that nobody knows")
        << Support::with(record(), u"/id"_s, QUuid::createUuid().toString()) << u"unknown kind"_s;
}

void tst_record_keys::anotherKindOfRecord_isNoMachine()
{
    QFETCH(QJsonObject, record);
    QFETCH(QString, kind);
    const CheckedRecord checked = checkRecord(record);
    QVERIFY(!checked.driver);
    QCOMPARE(checked.findings.size(), 1);
    QCOMPARE(checked.findings.first().pointer, u"/id"_s);
    QVERIFY(checked.findings.first().reason.contains(kind));
}

void tst_record_keys::imagesBesideAnSvg_areFound()
{
    const QString svg =
        QString::fromLatin1(qCompress("<svg xmlns=\"http://www.w3.org/2000/svg\"/>").toBase64());
    const QJsonObject both = Support::with(record(), u"/config/svgIcon"_s, svg);
    QVERIFY(has(checkRecord(both).findings, Severity::Error, u"/config/icon"_s,
                u"the images would be ignored"_s));
    const CheckedRecord alone = checkRecord(Support::without(both, u"/config/icon"_s));
    QCOMPARE(textOf(alone.findings), QString());
    QVERIFY(alone.driver);
}

void tst_record_keys::metadataThatWouldBeLost_isFound()
{
    const QJsonObject entry = record()["metadata"_L1][0].toObject();
    const CheckedRecord twice = checkRecord(Support::with(record(), u"/metadata/1"_s, entry));
    QVERIFY(has(twice.findings, Severity::Error, u"/metadata/1/key"_s, u"would be lost"_s));
    for (const QString &flag : {u"KillOnCopy"_s, u"KillOnSave"_s, u"Volatile"_s}) {
        const CheckedRecord flagged =
            checkRecord(Support::with(record(), u"/metadata/0/flags"_s, flag));
        QVERIFY(has(flagged.findings, Severity::Warning, u"/metadata/0/flags"_s, u"is not kept"_s));
        QVERIFY(flagged.driver);
    }
}

void tst_record_keys::deepChildren_areChecked()
{
    QJsonObject inner = Support::printUnitJson(u"inner"_s);
    inner = Support::with(inner, u"/config/channels/0"_s, u"cyan"_s);
    QString pointer = u"/config/channels/0"_s;
    for (int depth = 0; depth < 200; ++depth) {
        QJsonObject outer = Support::printUnitJson(u"outer"_s);
        outer.insert(u"children"_s, QJsonArray{inner});
        inner = outer;
        pointer.prepend(u"/children/0"_s);
    }
    const CheckedRecord checked = checkRecord(Support::with(record(), u"/children/0"_s, inner));
    QVERIFY2(has(checked.findings, Severity::Error, u"/children/0"_s + pointer, u"'cyan'"_s),
             qPrintable(textOf(checked.findings)));
}

QTEST_GUILESS_MAIN(tst_record_keys)
#include "tst_record_keys.moc"
