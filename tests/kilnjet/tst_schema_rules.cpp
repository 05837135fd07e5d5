// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The tool's own tables say the same as the JSON Schemas in docs/schema/: who validates with either
// gets the same answer about keys and about enumerations.

#include "RecordSchema.h"
#include "support/Schemas.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;
using Support::listed;
using Support::schema;

class tst_schema_rules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kinds_haveTheRulesOfTheSchemas_data();
    void kinds_haveTheRulesOfTheSchemas();
    void parts_haveTheRulesOfTheSchemas();
};

namespace {

QString enumerationOf(const KeyRule &rule)
{
    return rule.enumeration.isEmpty()
        ? QString()
        : u"enumerations.schema.json#/$defs/"_s + QString(rule.enumeration);
}

/// Compares the keys of an object, and where its names come from.
void compare(ObjectRule rule, const QJsonValue &described, const QStringList &alsoRequired = {})
{
    QStringList keys;
    QStringList required = alsoRequired;
    for (const KeyRule &key : rule) {
        keys.append(key.key);
        if (key.presence == Presence::Required)
            required.append(key.key);
        QJsonValue value = described["properties"_L1][key.key];
        if (key.type == ValueType::EnumNames)
            value = value["items"_L1];
        const QString reference = value["$ref"_L1].toString();
        const bool isName = reference.startsWith("enumerations"_L1);
        QCOMPARE(isName ? reference : QString(), enumerationOf(key));
    }
    keys.sort();
    required.sort();
    QCOMPARE(listed(described["properties"_L1]), keys.join(u' '));
    QCOMPARE(listed(described["required"_L1]), required.join(u' '));
    QCOMPARE(described["additionalProperties"_L1], QJsonValue(false));
}

} // namespace

void tst_schema_rules::kinds_haveTheRulesOfTheSchemas_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("printer drivers") << u"printer-driver"_s;
    QTest::newRow("print units") << u"print-unit-driver"_s;
    QTest::newRow("elaborations") << u"elaboration-driver"_s;
}

void tst_schema_rules::kinds_haveTheRulesOfTheSchemas()
{
    QFETCH(QString, file);
    const QJsonObject whole = schema(file);
    const RecordKind *kind =
        findKind(QUuid(whole["properties"_L1]["id"_L1]["const"_L1].toString()));
    QVERIFY(kind);
    // The tool says in words of its own that a machine needs children.
    compare(envelopeRule(), whole,
            kind == &printerKind() ? QStringList(u"children"_s) : QStringList());
    compare(kind->config, whole["$defs"_L1]["config"_L1]);
}

void tst_schema_rules::parts_haveTheRulesOfTheSchemas()
{
    compare(resolutionRule(), schema(u"elaboration-driver"_s)["$defs"_L1]["resolution"_L1]);
    compare(imageRule(), schema(u"printer-driver"_s)["$defs"_L1]["image"_L1]);
    compare(metadataRule(), schema(u"record"_s)["$defs"_L1]["metadataEntry"_L1]);
}

QTEST_GUILESS_MAIN(tst_schema_rules)
#include "tst_schema_rules.moc"
