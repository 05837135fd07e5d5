// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// diff: two catalogues, or two machines of one, field by field.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;
using Support::with;

class tst_diff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void equalCatalogues_areEqual_data();
    void equalCatalogues_areEqual();
    void aChange_isNamedByItsPointer_data();
    void aChange_isNamedByItsPointer();
    void catalogues_areComparedForPeople();
    void catalogues_areComparedInJson();
    void machines_areComparedForPeople();
    void machines_areComparedInJson();
    void aFile_goesBeforeAMachineOfItsName();
    void whatCannotBeCompared_isAnswered_data();
    void whatCannotBeCompared_isAnswered();
    void unsoundRecords_areNamed();
    void namesThatSteerATerminal_areEscaped();
    void noByteChanges();

private:
    QString database(const QString &name, const QJsonArray &records) const;

    std::unique_ptr<Support::ToolFolder> m_folder;
};

void tst_diff::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
}

/// Makes a database of the records; its name.
QString tst_diff::database(const QString &name, const QJsonArray &records) const
{
    const QByteArray json = QJsonDocument(records).toJson();
    const ToolRun run = m_folder->run({u"import"_s, u"-"_s, u"--db"_s, name}, json);
    return run.code == 0 ? name : u"cannot be made: "_s + run.messages();
}

void tst_diff::equalCatalogues_areEqual_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::newRow("a database and itself") << u"a.tdb"_s << u"a.tdb"_s;
    QTest::newRow("two databases") << u"a.tdb"_s << u"b.tdb"_s;
    QTest::newRow("a database and a file") << u"a.tdb"_s << u"a.json"_s;
    QTest::newRow("a file and a database") << u"a.json"_s << u"a.tdb"_s;
    QTest::newRow("the standard input and a database") << u"-"_s << u"a.tdb"_s;
}

void tst_diff::equalCatalogues_areEqual()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    const QJsonObject first = printerJson(u"A"_s);
    const QJsonObject second = printerJson(u"B"_s);
    database(u"a.tdb"_s, {first, second});
    database(u"b.tdb"_s, {second, first});
    m_folder->write(u"a.json"_s, QJsonArray{second, first});
    const ToolRun run = m_folder->run({u"diff"_s, a, b}, m_folder->read(u"a.json"_s));
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.text(), u"0 only in A, 0 only in B, 0 different, 2 equal\n"_s);
}

void tst_diff::aChange_isNamedByItsPointer_data()
{
    QTest::addColumn<QJsonObject>("changed");
    QTest::addColumn<QString>("lines");
    const QJsonObject record = printerJson(u"A"_s);
    const auto addRow = [&](const char *name, const QString &pointer, const QJsonValue &value,
                            const QString &lines) {
        QTest::newRow(name) << with(record, pointer, value) << lines;
    };
    addRow("a text", u"/name"_s, u"B"_s, u"/name: 'A' -> 'B'"_s);
    addRow("a text to none", u"/description"_s, u""_s, u"/description: 'made for a test' -> ''"_s);
    addRow("a flag", u"/config/experimental"_s, true, u"/config/experimental: false -> true"_s);
    addRow("a name of a value", u"/config/fileProtection"_s, u"Obfuscation"_s,
           u"/config/fileProtection: 'None' -> 'Obfuscation'"_s);
    addRow("a number of 64 bits", u"/config/maximumImageBytes"_s, u"9007199254740992"_s,
           u"/config/maximumImageBytes: '9007199254740993' -> '9007199254740992'"_s);
    addRow("a field of a child", u"/children/1/config/magnificationMax"_s, 2.5,
           u"/children/1/config/magnificationMax: 2 -> 2.5"_s);
    addRow("an element of a list", u"/children/0/config/channels/1"_s, u"Yellow"_s,
           u"/children/0/config/channels/1: 'Brown' -> 'Yellow'"_s);
    addRow("an element more", u"/children/0/config/channels/3"_s, u"Matt"_s,
           u"/children/0/config/channels/3: nothing -> 'Matt'"_s);
    addRow("elements less", u"/children/0/config/channels"_s, QJsonArray{u"Cyan"_s},
           u"/children/0/config/channels/1: 'Brown' -> nothing\n"
           "/children/0/config/channels/2: 'Black' -> nothing"_s);
    addRow("a part of an element", u"/children/1/config/resolutionList/0/y"_s, 400,
           u"/children/1/config/resolutionList/0/y: 360 -> 400"_s);
    addRow("the device id of a child", u"/children/0/deviceId"_s,
           u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s,
           u"/children/0/deviceId: '%1' -> '{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}'"_s.arg(
               record["children"_L1][0]["deviceId"_L1].toString()));
    addRow("metadata", u"/metadata"_s, QJsonArray(), u""_s);

    QTest::newRow("a date less") << Support::without(record, u"/dateTime"_s)
                                 << u"/dateTime: '2026-11-21T09:30:00.000Z' -> nothing"_s;
    QTest::newRow("an icon less") << Support::without(record, u"/config/icon"_s)
                                  << u"/config/icon: icon differs"_s;
    const QByteArray svg = qCompress("<svg xmlns=\"http://www.w3.org/2000/svg\"/>").toBase64();
    QTest::newRow("a drawing instead of images") << with(
        Support::without(record, u"/config/icon"_s), u"/config/svgIcon"_s, QString::fromLatin1(svg))
                                                 << u"/config/icon: icon differs"_s;
    QTest::newRow("a child less") << Support::without(record, u"/children/0"_s)
                                  << u"/children/0: print unit 'A/unit' -> nothing"_s;
    addRow("a child more", u"/children/2"_s, Support::elaborationJson(u"new"_s),
           u"/children/2: nothing -> elaboration 'new'"_s);
    const QJsonArray children = record["children"_L1].toArray();
    addRow("children in another order", u"/children"_s, QJsonArray{children[1], children[0]},
           u"/children: order differs"_s);
    addRow("a child more before the others", u"/children"_s,
           QJsonArray{Support::printUnitJson(u"new"_s), children[0], children[1]},
           u"/children/0: nothing -> print unit 'new'"_s);
    addRow("a child of a child", u"/children/0/children"_s,
           QJsonArray{Support::printUnitJson(u"new"_s)},
           u"/children/0/children/0: nothing -> print unit 'new'"_s);
    QJsonObject both = with(record, u"/name"_s, u"B"_s);
    both = with(both, u"/children/0/name"_s, u"C"_s);
    QTest::newRow("a machine and its child") << both
                                             << u"/name: 'A' -> 'B'\n"
                                                "/children/0/name: 'A/unit' -> 'C'"_s;
}

void tst_diff::aChange_isNamedByItsPointer()
{
    QFETCH(QJsonObject, changed);
    QFETCH(QString, lines);
    database(u"a.tdb"_s, {printerJson(u"A"_s)});
    const QString b = database(u"b.tdb"_s, {changed});
    const ToolRun run = m_folder->run({u"diff"_s, u"a.tdb"_s, b});
    VERIFY_CODE(run, lines.isEmpty() ? 0 : 1);
    QString expected;
    if (!lines.isEmpty()) {
        expected = u"'A' "_s + Support::idOfPrinterJson(u"A"_s) + u'\n';
        for (const QString &line : lines.split(u'\n'))
            expected += u"  - "_s + line + u'\n';
    }
    const QString summary =
        lines.isEmpty() ? u"0 different, 1 equal\n"_s : u"1 different, 0 equal\n"_s;
    QCOMPARE(run.text(), expected + u"0 only in A, 0 only in B, "_s + summary);
}

void tst_diff::catalogues_areComparedForPeople()
{
    const QJsonObject changed = with(printerJson(u"Both"_s), u"/config/experimental"_s, true);
    database(u"old.tdb"_s, {printerJson(u"Both"_s), printerJson(u"Old"_s), printerJson(u"X"_s)});
    m_folder->write(u"new.json"_s, QJsonArray{printerJson(u"New"_s), changed, printerJson(u"X"_s)});
    const ToolRun run = m_folder->run({u"diff"_s, u"old.tdb"_s, u"new.json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.text(),
             u"only in old.tdb: 'Old' %1\n"
             "only in new.json: 'New' %2\n"
             "'Both' %3\n"
             "  - /config/experimental: false -> true\n"
             "1 only in A, 1 only in B, 1 different, 1 equal\n"_s.arg(
                 Support::idOfPrinterJson(u"Old"_s), Support::idOfPrinterJson(u"New"_s),
                 Support::idOfPrinterJson(u"Both"_s)));
}

void tst_diff::catalogues_areComparedInJson()
{
    QJsonObject changed = with(printerJson(u"Both"_s), u"/config/experimental"_s, true);
    changed = with(changed, u"/config/icon"_s, QJsonArray());
    changed = with(changed, u"/children/0/config/channels/3"_s, u"Matt"_s);
    database(u"old.tdb"_s, {printerJson(u"Both"_s), printerJson(u"Old"_s), printerJson(u"X"_s)});
    m_folder->write(u"new.json"_s, QJsonArray{printerJson(u"New"_s), changed, printerJson(u"X"_s)});
    const ToolRun run = m_folder->run({u"diff"_s, u"--json"_s, u"old.tdb"_s, u"new.json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.err, QByteArray());
    const auto summary = [](const QString &name) {
        return QJsonObject{{u"id"_s, Support::idOfPrinterJson(name)}, {u"name"_s, name}};
    };
    QJsonObject both = summary(u"Both"_s);
    both.insert(u"differences"_s,
                QJsonArray{QJsonObject{{u"pointer"_s, u"/config/experimental"_s},
                                       {u"change"_s, u"changed"_s},
                                       {u"a"_s, false},
                                       {u"b"_s, true}},
                           QJsonObject{{u"pointer"_s, u"/config/icon"_s}, {u"change"_s, u"icon"_s}},
                           QJsonObject{{u"pointer"_s, u"/children/0/config/channels/3"_s},
                                       {u"change"_s, u"onlyInB"_s},
                                       {u"b"_s, u"Matt"_s}}});
    QCOMPARE(run.object(),
             QJsonObject({{u"a"_s, u"old.tdb"_s},
                          {u"b"_s, u"new.json"_s},
                          {u"onlyInA"_s, QJsonArray{summary(u"Old"_s)}},
                          {u"onlyInB"_s, QJsonArray{summary(u"New"_s)}},
                          {u"different"_s, QJsonArray{both}},
                          {u"equal"_s, 1}}));
}

void tst_diff::machines_areComparedForPeople()
{
    const QJsonObject a = printerJson(u"A"_s);
    // Another content id, which two machines may have.
    const QJsonObject b = with(with(a, u"/config/maximumFaces"_s, 64), u"/name"_s, u"B"_s);
    database(u"p.tdb"_s, {a, b});
    const ToolRun run = m_folder->run({u"--db"_s, u"p.tdb"_s, u"diff"_s, u"a"_s, u"B"_s});
    VERIFY_CODE(run, 1);
    const QString idOfB =
        QUuid::createUuidV5(QUuid(a["deviceId"_L1].toString()), u"Basic;Inkjet;64"_s).toString();
    QCOMPARE(run.text(),
             u"'A' %1 -> 'B' %2\n"
             "  - /name: 'A' -> 'B'\n"
             "  - /config/maximumFaces: 4 -> 64\n"
             "2 differences\n"_s.arg(Support::idOfPrinterJson(u"A"_s), idOfB));
    VERIFY_CODE(m_folder->run({u"--db"_s, u"p.tdb"_s, u"diff"_s, u"a"_s, u"A"_s}), 0);
}

void tst_diff::machines_areComparedInJson()
{
    const QJsonObject a = printerJson(u"A"_s);
    database(u"p.tdb"_s, {a, with(a, u"/config/maximumFaces"_s, 64)});
    const QString idOfB =
        QUuid::createUuidV5(QUuid(a["deviceId"_L1].toString()), u"Basic;Inkjet;64"_s).toString();
    const ToolRun run = m_folder->run(
        {u"--db"_s, u"p.tdb"_s, u"diff"_s, u"--json"_s, Support::idOfPrinterJson(u"A"_s), idOfB});
    VERIFY_CODE(run, 1);
    const QJsonObject difference{{u"pointer"_s, u"/config/maximumFaces"_s},
                                 {u"change"_s, u"changed"_s},
                                 {u"a"_s, 4},
                                 {u"b"_s, 64}};
    const QJsonObject first{{u"id"_s, Support::idOfPrinterJson(u"A"_s)}, {u"name"_s, u"A"_s}};
    QCOMPARE(run.object(),
             QJsonObject({{u"a"_s, first},
                          {u"b"_s, QJsonObject{{u"id"_s, idOfB}, {u"name"_s, u"A"_s}}},
                          {u"differences"_s, QJsonArray{difference}}}));
}

void tst_diff::aFile_goesBeforeAMachineOfItsName()
{
    database(u"p.tdb"_s, {printerJson(u"A"_s), printerJson(u"B"_s)});
    m_folder->write(u"A"_s, QJsonArray());
    m_folder->write(u"B"_s, QJsonArray());
    const QStringList arguments{u"--db"_s, u"p.tdb"_s, u"diff"_s, u"A"_s, u"B"_s};
    const ToolRun run = m_folder->run(arguments);
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(), u"0 only in A, 0 only in B, 0 different, 0 equal\n"_s);
}

void tst_diff::whatCannotBeCompared_isAnswered_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("text");
    const auto addRow = [](const char *name, const QString &arguments, int code,
                           const QString &where, const QString &text) {
        QTest::newRow(name) << arguments.split(u' ') << code << where << text;
    };
    addRow("one operand", u"a.tdb"_s, 2, u"diff"_s, u"B is missing"_s);
    addRow("three operands", u"a.tdb a.tdb a.tdb"_s, 2, u"diff"_s, u"is one operand too many"_s);
    addRow("the standard input twice", u"- -"_s, 2, u"diff"_s, u"can be read only once"_s);
    addRow("a file that is missing", u"a.tdb b.tdb"_s, 3, u"b.tdb"_s, u"there is no such file"_s);
    addRow("two files that are missing", u"b.tdb c.tdb"_s, 3, u"b.tdb"_s, u"with --db"_s);
    addRow("a file and a machine", u"--db a.tdb a.tdb A"_s, 3, u"A"_s, u"there is no such file"_s);
    addRow("a machine that is not there", u"--db a.tdb A B"_s, 1, u"B"_s,
           u"there is no such machine"_s);
    addRow("text that is no JSON", u"a.tdb bad.json"_s, 3, u"bad.json"_s, u"cannot be compared"_s);
    addRow("the same machine twice", u"a.tdb twice.json"_s, 3, u"twice.json"_s,
           u"would replace it"_s);
}

void tst_diff::whatCannotBeCompared_isAnswered()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, where);
    QFETCH(QString, text);
    database(u"a.tdb"_s, {printerJson(u"A"_s)});
    m_folder->write(u"bad.json"_s, "{");
    m_folder->write(u"twice.json"_s, QJsonArray{printerJson(u"A"_s), printerJson(u"A"_s)});
    const ToolRun run = m_folder->run(QStringList{u"diff"_s, u"--json"_s} + arguments);
    VERIFY_CODE(run, code);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.error()["where"_L1].toString(), where);
    QVERIFY2(run.messages().contains(text), run.err.constData());
}

void tst_diff::unsoundRecords_areNamed()
{
    database(u"a.tdb"_s, {printerJson(u"A"_s)});
    m_folder->write(u"b.json"_s, with(printerJson(u"A"_s), u"/config/printerClass"_s, u"Inkjt"_s));
    const ToolRun run = m_folder->run({u"diff"_s, u"a.tdb"_s, u"b.json"_s});
    VERIFY_CODE(run, 3);
    QVERIFY2(run.messages().contains(u"/config/printerClass: 'Inkjt' is no value"_s),
             run.err.constData());
}

void tst_diff::namesThatSteerATerminal_areEscaped()
{
    database(u"a.tdb"_s, {printerJson(u"A"_s)});
    database(u"b.tdb"_s, {with(printerJson(u"A"_s), u"/name"_s, u"\u001b[2J%1"_s)});
    const ToolRun run = m_folder->run({u"diff"_s, u"a.tdb"_s, u"b.tdb"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.text().contains(u"  - /name: 'A' -> '\\u001b[2J%1'\n"_s), run.out.constData());
    QVERIFY(!run.out.contains('\x1b'));
}

void tst_diff::noByteChanges()
{
    database(u"a.tdb"_s, {printerJson(u"A"_s)});
    database(u"b.tdb"_s, {printerJson(u"B"_s), printerJson(u"C"_s)});
    const QByteArray a = m_folder->read(u"a.tdb"_s);
    const QByteArray b = m_folder->read(u"b.tdb"_s);
    VERIFY_CODE(m_folder->run({u"diff"_s, u"a.tdb"_s, u"b.tdb"_s}), 1);
    VERIFY_CODE(m_folder->run({u"--db"_s, u"b.tdb"_s, u"diff"_s, u"B"_s, u"C"_s}), 1);
    QCOMPARE(m_folder->read(u"a.tdb"_s), a);
    QCOMPARE(m_folder->read(u"b.tdb"_s), b);
    QCOMPARE(QDir(m_folder->path(QString())).entryList(QDir::Files),
             QStringList({u"a.tdb"_s, u"b.tdb"_s}));
}

QTEST_GUILESS_MAIN(tst_diff)
#include "tst_diff.moc"
