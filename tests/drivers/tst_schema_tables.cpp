// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The JSON Schemas in docs/schema/ cannot drift from the enumerations and the records: they have
// the same names, in the same order, and the same keys.

#include "support/Drivers.h"
#include "support/RecordJson.h"
#include "support/Schemas.h"

#include <vcore/VEnumRegistry.h>

#include <QtTest/QTest>

#include <functional>
#include <memory>

using namespace Norvane;
using namespace Qt::StringLiterals;
using Support::listed;
using Support::schema;
using Support::schemaFolder;
using Support::sorted;

class tst_schema_tables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void schemas_sayWhatTheyAre();
    void references_leadSomewhere();
    void properties_areDescribed();
    void enumerations_haveTheNamesOfTheTables_data();
    void enumerations_haveTheNamesOfTheTables();
    void enumerations_areAllReferredTo();
    void kinds_haveTheKeysThatTheLibraryWrites_data();
    void kinds_haveTheKeysThatTheLibraryWrites();
    void parts_haveTheKeysThatTheLibraryWrites();

private:
    QStringList m_files;
};

namespace {

/// Calls `visit` for the value and for everything in it.
void walk(const QJsonValue &value, const std::function<void(const QJsonValue &)> &visit)
{
    visit(value);
    const QJsonObject object = value.toObject();
    for (const QJsonValue &member : object)
        walk(member, visit);
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array)
        walk(element, visit);
}

/// All that the schema of the file refers to, as FILE#/$defs/NAME, FILE, or a fragment.
QStringList references(const QString &file)
{
    QStringList references;
    walk(schema(file), [&](const QJsonValue &value) {
        const QString reference = value["$ref"_L1].toString();
        if (!reference.isEmpty())
            references.append(reference.startsWith(u'#') ? file + u".schema.json"_s + reference
                                                         : reference);
    });
    return references;
}

/// What a reference leads to; undefined when it leads nowhere.
QJsonValue target(const QString &reference)
{
    const QString file = reference.section(u'#', 0, 0);
    const QJsonObject whole = schema(file.chopped(file.endsWith(".schema.json"_L1) ? 12 : 0));
    if (!reference.contains(u'#'))
        return whole.isEmpty() ? QJsonValue(QJsonValue::Undefined) : whole;
    const QString fragment = reference.section(u'#', 1);
    return fragment.startsWith("/$defs/"_L1) ? whole["$defs"_L1][fragment.sliced(7)]
                                             : QJsonValue(QJsonValue::Undefined);
}

/// The text of a flags enumeration: one name, or several, but None only by itself.
QString flagsPattern(QStringList names)
{
    const QString none = names.takeFirst();
    const QString any = names.join(u'|');
    return u"^(%1|(%2)(, (%2))*)$"_s.arg(none, any);
}

/// What the library makes of the record.
QJsonObject rewritten(const QJsonObject &record)
{
    const std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> config(
        Hardware::VDeviceConfig::fromJson(QJsonDocument(record).toJson()));
    return config ? config->toJsonObject() : QJsonObject();
}

/// The record with every key that an envelope may have.
QJsonObject filled(QJsonObject record)
{
    const QJsonObject printer = Support::printerJson(u"filled"_s);
    for (const QString &key : {u"dateTime"_s, u"children"_s, u"metadata"_s})
        record.insert(key, printer.value(key));
    return record;
}

/// The record with no more than a valid one needs.
QJsonObject plainest(const QJsonObject &record, bool withChildren)
{
    QJsonObject plain{{u"id"_s, record.value("id"_L1)},
                      {u"deviceId"_s, record.value("deviceId"_L1)}};
    if (withChildren)
        plain.insert(u"children"_s, record.value("children"_L1));
    return plain;
}

} // namespace

void tst_schema_tables::initTestCase()
{
    m_files = schemaFolder().entryList({u"*.schema.json"_s}, QDir::Files, QDir::Name);
    for (QString &file : m_files)
        file.chop(12);
    QCOMPARE(m_files,
             QStringList({u"elaboration-driver"_s, u"enumerations"_s, u"print-unit-driver"_s,
                          u"printer-driver"_s, u"record"_s, u"tool-output"_s}));
}

void tst_schema_tables::schemas_sayWhatTheyAre()
{
    for (const QString &file : std::as_const(m_files)) {
        const QJsonObject whole = schema(file);
        QCOMPARE(whole.value("$schema"_L1).toString(),
                 u"https://json-schema.org/draft/2020-12/schema"_s);
        QCOMPARE(whole.value("$id"_L1).toString(), file + u".schema.json"_s);
        QVERIFY2(!whole.value("title"_L1).toString().isEmpty(), qPrintable(file));
        QVERIFY2(!whole.value("description"_L1).toString().isEmpty(), qPrintable(file));
    }
    QCOMPARE(schema(u"printer-driver"_s)["properties"_L1]["id"_L1]["const"_L1].toString(),
             Kilnjet::VPrinterDriver().id().toString());
    QCOMPARE(schema(u"print-unit-driver"_s)["properties"_L1]["id"_L1]["const"_L1].toString(),
             Kilnjet::VPrintUnitDriver().id().toString());
    QCOMPARE(schema(u"elaboration-driver"_s)["properties"_L1]["id"_L1]["const"_L1].toString(),
             Kilnjet::VElaborationDriver().id().toString());
}

void tst_schema_tables::references_leadSomewhere()
{
    for (const QString &file : std::as_const(m_files)) {
        const QStringList all = references(file);
        for (const QString &reference : all)
            QVERIFY2(target(reference).isObject(), qPrintable(file + u": "_s + reference));
    }
}

void tst_schema_tables::properties_areDescribed()
{
    int count = 0;
    for (const QString &file : std::as_const(m_files)) {
        walk(schema(file), [&](const QJsonValue &value) {
            if (!value["additionalProperties"_L1].isBool())
                return; // Not where the keys of an object are listed.
            const QJsonObject properties = value["properties"_L1].toObject();
            for (auto it = properties.begin(); it != properties.end(); ++it) {
                QString reference = it.value()["$ref"_L1].toString();
                if (reference.startsWith(u'#'))
                    reference.prepend(file + u".schema.json"_s);
                const QString text = it.value()["description"_L1].toString(
                    target(reference)["description"_L1].toString());
                QVERIFY2(text.endsWith(u'.'), qPrintable(file + u": "_s + it.key()));
                ++count;
            }
        });
    }
    QVERIFY(count > 50);
}

void tst_schema_tables::enumerations_haveTheNamesOfTheTables_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = sorted(schema(u"enumerations"_s).value("$defs"_L1));
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void tst_schema_tables::enumerations_haveTheNamesOfTheTables()
{
    QFETCH(QString, name);
    const IVEnum *enumeration = VEnumRegistry::find(name);
    QVERIFY(enumeration);
    QStringList names;
    for (const qint64 number : enumeration->names().numbers())
        names.append(enumeration->names().names(number).constFirst());
    const QJsonValue described = schema(u"enumerations"_s)["$defs"_L1][name];
    if (enumeration->isFlags()) {
        QCOMPARE(described["type"_L1].toString(), u"string"_s);
        QCOMPARE(described["pattern"_L1].toString(), flagsPattern(names));
    } else {
        const QString expected = u"expected: \"%1\""_s.arg(names.join(u"\", \""_s));
        QVERIFY2(described["enum"_L1] == QJsonArray::fromStringList(names), qPrintable(expected));
    }
}

void tst_schema_tables::enumerations_areAllReferredTo()
{
    QStringList referred;
    for (const QString &file : std::as_const(m_files))
        referred += references(file);
    const QStringList names = sorted(schema(u"enumerations"_s).value("$defs"_L1));
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QVERIFY2(referred.contains(u"enumerations.schema.json#/$defs/"_s + name), qPrintable(name));
}

void tst_schema_tables::kinds_haveTheKeysThatTheLibraryWrites_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QJsonObject>("full");
    QTest::addColumn<QJsonObject>("plain");
    const QJsonObject printer = Support::printerJson(u"a printer"_s);
    const QJsonObject unit = Support::printUnitJson(u"a unit"_s);
    const QJsonObject elaboration = Support::elaborationJson(u"an elaboration"_s);
    QTest::newRow("printer drivers")
        << u"printer-driver"_s << filled(printer) << plainest(printer, true);
    QTest::newRow("print units") << u"print-unit-driver"_s << filled(unit) << plainest(unit, false);
    QTest::newRow("elaborations") << u"elaboration-driver"_s << filled(elaboration)
                                  << plainest(elaboration, false);
}

void tst_schema_tables::kinds_haveTheKeysThatTheLibraryWrites()
{
    QFETCH(QString, file);
    QFETCH(QJsonObject, full);
    QFETCH(QJsonObject, plain);
    const QJsonObject envelope = schema(file);
    const QJsonValue config = envelope["$defs"_L1]["config"_L1];
    full = rewritten(full);
    plain = rewritten(plain);

    QCOMPARE(listed(envelope.value("properties"_L1)), listed(full));
    QCOMPARE(listed(envelope.value("required"_L1)), listed(plain));
    QCOMPARE(listed(config["required"_L1]), listed(plain.value("config"_L1)));
    QStringList configKeys = sorted(full.value("config"_L1));
    if (configKeys.contains(u"icon"_s))
        configKeys.append(u"svgIcon"_s); // No record has both.
    QCOMPARE(listed(config["properties"_L1]), configKeys.join(u' '));
}

void tst_schema_tables::parts_haveTheKeysThatTheLibraryWrites()
{
    const QJsonObject printer = rewritten(Support::printerJson(u"a printer"_s));
    const auto compare = [](const QString &file, const QString &name, const QJsonValue &written) {
        const QJsonValue part = schema(file)["$defs"_L1][name];
        QCOMPARE(listed(part["properties"_L1]), listed(written));
        QCOMPARE(listed(part["required"_L1]), listed(written));
    };
    compare(u"record"_s, u"metadataEntry"_s, printer["metadata"_L1][0]);
    compare(u"printer-driver"_s, u"image"_s, printer["config"_L1]["icon"_L1][0]);
    compare(u"elaboration-driver"_s, u"resolution"_s,
            printer["children"_L1][1]["config"_L1]["resolutionList"_L1][0]);
}

QTEST_GUILESS_MAIN(tst_schema_tables)
#include "tst_schema_tables.moc"
