// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QTest>

#include <memory>

using namespace Support;

/// createUniqueName().
class tst_unique_name : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void name_isTheFirstFreeCandidate_data();
    void name_isTheFirstFreeCandidate();
    void name_ofTheEntryItselfIsFree();
    void name_ofADriverIsThatOfItsContentId();
    void name_ofAVolatileEntryIsTaken();
    void name_isNullAfterAHundredCandidates();
    void name_thatIsEmptyIsNotNull();
    void query_emitsNothingAndMarksNothing();
};

void tst_unique_name::name_isTheFirstFreeCandidate_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("expected");

    const QStringList none;
    QTest::newRow("nothing is taken") << none << u"Printer"_s << u""_s << u"Printer"_s;
    QTest::newRow("a suffix is appended as it is")
        << none << u"Printer"_s << u"2"_s << u"Printer2"_s;
    QTest::newRow("the name is cut at the separator")
        << none << u"Line 2 - 7"_s << u""_s << u"Line 2"_s;
    QTest::newRow("whatever stands behind the separator goes")
        << none << u"Line 2 - copy"_s << u""_s << u"Line 2"_s;
    QTest::newRow("the first separator counts") << none << u"A - B - C"_s << u""_s << u"A"_s;
    QTest::newRow("the suffix follows the cut") << none << u"A - B"_s << u" copy"_s << u"A copy"_s;
    QTest::newRow("a separator in the suffix stays") << none << u"A"_s << u" - B"_s << u"A - B"_s;
    QTest::newRow("a separator at the start leaves nothing")
        << none << u" - A"_s << u"B"_s << u"B"_s;
    QTest::newRow("a hyphen without spaces is none") << none << u"A-B"_s << u""_s << u"A-B"_s;
    QTest::newRow("other names do not matter")
        << QStringList({u"Oven"_s}) << u"Printer"_s << u""_s << u"Printer"_s;
    QTest::newRow("the next number is free") << QStringList({u"Printer"_s, u"Printer - 1"_s})
                                             << u"Printer"_s << u""_s << u"Printer - 2"_s;
    QTest::newRow("a gap is filled") << QStringList({u"Printer"_s, u"Printer - 2"_s})
                                     << u"Printer"_s << u""_s << u"Printer - 1"_s;
    QTest::newRow("case matters") << QStringList({u"printer"_s}) << u"Printer"_s << u""_s
                                  << u"Printer"_s;
    QTest::newRow("placeholders are text")
        << QStringList({u"%1 %2"_s}) << u"%1 %2"_s << u""_s << u"%1 %2 - 1"_s;
    QTest::newRow("a number is not padded")
        << QStringList({u"A"_s, u"A - 1"_s, u"A - 2"_s, u"A - 3"_s, u"A - 4"_s, u"A - 5"_s,
                        u"A - 6"_s, u"A - 7"_s, u"A - 8"_s, u"A - 9"_s})
        << u"A"_s << u""_s << u"A - 10"_s;
}

void tst_unique_name::name_isTheFirstFreeCandidate()
{
    QFETCH(QStringList, taken);
    QFETCH(QString, name);
    QFETCH(QString, suffix);
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insert(printers(taken));
    QTEST(database.createUniqueName(QUuid::createUuid(), name, suffix), "expected");
}

void tst_unique_name::name_ofTheEntryItselfIsFree()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insert(printers({u"Printer"_s, u"Printer - 1"_s}));
    QCOMPARE(database.createUniqueName(printer(u"Printer"_s).dataId(), u"Printer"_s, u""_s),
             u"Printer"_s);
    QCOMPARE(database.createUniqueName(printer(u"Printer - 1"_s).dataId(), u"Printer"_s, u""_s),
             u"Printer - 1"_s);
}

void tst_unique_name::name_ofADriverIsThatOfItsContentId()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insert(printer(u"Printer"_s));
    QCOMPARE(database.createUniqueName(printer(u"Printer"_s), u""_s), u"Printer"_s);
    QCOMPARE(database.createUniqueName(renamed(printer(u"other"_s), u"Printer"_s), u""_s),
             u"Printer - 1"_s);
}

void tst_unique_name::name_ofAVolatileEntryIsTaken()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insertVolatile(printer(u"Printer"_s));
    QCOMPARE(database.createUniqueName(QUuid(), u"Printer"_s, u""_s), u"Printer - 1"_s);
}

void tst_unique_name::name_isNullAfterAHundredCandidates()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insert(printer(u"Base"_s));
    for (int n = 1; n < 99; ++n)
        database.insert(printer(u"Base - %1"_s.arg(n)));
    QCOMPARE(database.createUniqueName(QUuid(), u"Base"_s, u""_s), u"Base - 99"_s);
    database.insert(printer(u"Base - 99"_s));
    QVERIFY(database.createUniqueName(QUuid(), u"Base"_s, u""_s).isNull());
}

void tst_unique_name::name_thatIsEmptyIsNotNull()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    const QString name = database.createUniqueName(QUuid(), QString(), QString());
    QVERIFY(name.isEmpty());
    QVERIFY(!name.isNull());
}

void tst_unique_name::query_emitsNothingAndMarksNothing()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    int changes = 0;
    connect(&database, &VPrintersDb::changed, this, [&] { ++changes; });
    database.createUniqueName(QUuid(), u"Printer"_s, u""_s);
    QCOMPARE(changes, 0);
    QVERIFY(!database.isDirty());
}

QTEST_GUILESS_MAIN(tst_unique_name)
#include "tst_unique_name.moc"
