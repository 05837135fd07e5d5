// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtTest/QTest>

using namespace Support;

namespace {

const QMap<QString, QString> kRecords = {{u"A"_s, u"alpha"_s}, {u"B"_s, u"beta"_s}};

QByteArray header()
{
    const QByteArray both = storeWith({});
    return both.first(both.indexOf('\n'));
}

QByteArray lines()
{
    return storeWith({kRecords}).sliced(storeWith({}).size());
}

} // namespace

/// What may have become of the two copies of the header.
class tst_VDBTextHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneSoundCopy_isEnough_data();
    void oneSoundCopy_isEnough();
    void whatIsNoTornHeader_isNoEmptyFile_data();
    void whatIsNoTornHeader_isNoEmptyFile();
    void blankLines_meanNothing();
    void aWrongLength_costsNothing_data();
    void aWrongLength_costsNothing();
};

void tst_VDBTextHeader::oneSoundCopy_isEnough_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("records");
    const QByteArray first = header() + '\n';
    QTest::newRow("nothing else") << header() + "\r\n" << 0;
    QTest::newRow("the second is a blank line") << first + '\n' + lines() << 2;
    QTest::newRow("the second is a seal") << first + ".\n" + lines() << 2;
    QTest::newRow("the second is a void mark") << first + "~\n" + lines() << 2;
    QTest::newRow("the second is gone") << first + lines() << 2;
    QTest::newRow("the second is damaged")
        << first + "!" + header().sliced(1) + '\n' + lines() << 2;
    QTest::newRow("the first is damaged") << "!" + header().sliced(1) + '\n' + first + lines() << 2;
    QTest::newRow("the first is without its end") << header() + first + lines() << 2;
}

void tst_VDBTextHeader::oneSoundCopy_isEnough()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, records);
    const Seen seen = readStore(bytes);
    QCOMPARE(seen.status, VDBStatus::Ok);
    QCOMPARE(seen.sound.size(), records);
    QVERIFY(!seen.damage.empty());
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"C"_s, u"gamma"_s}}));
    QCOMPARE(readStore(bytes).sound.size(), records + 1);
}

void tst_VDBTextHeader::whatIsNoTornHeader_isNoEmptyFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray start = header().first(20);
    QTest::newRow("a control character in it") << start + '\x01';
    QTest::newRow("NULs behind it") << start + QByteArray(10, '\0');
    QTest::newRow("too long for one") << start + QByteArray(3000, 'x');
    QTest::newRow("too long for two") << start + QByteArray(5000, 'x');
    QTest::newRow("another word") << "vdbtexts"_ba;
    QTest::newRow("a whole one, and another") << header() + '\n' + header().first(30) + '!';
    QTest::newRow("many NULs") << QByteArray(4000, '\0');
}

// Who takes it for an empty file would write over it.
void tst_VDBTextHeader::whatIsNoTornHeader_isNoEmptyFile()
{
    QFETCH(QByteArray, bytes);
    const QByteArray before = bytes;
    QVERIFY(readStore(bytes).status != VDBStatus::Empty);
    QBuffer buffer(&bytes);
    VDBText store;
    QVERIFY(!createStore(store, &buffer));
    QCOMPARE(bytes, before);
}

void tst_VDBTextHeader::blankLines_meanNothing()
{
    const QByteArray bytes = storeWith({}) + "\n\r\n\n" + lines() + "\r\n";
    QCOMPARE(readStore(bytes).status, VDBStatus::Ok);
    QCOMPARE(readStore(bytes).sound, kRecords);
}

void tst_VDBTextHeader::aWrongLength_costsNothing_data()
{
    QTest::addColumn<QByteArray>("length");
    QTest::newRow("negative") << "-5"_ba;
    QTest::newRow("too short") << "1"_ba;
    QTest::newRow("too long") << "999999"_ba;
    QTest::newRow("no number") << "x"_ba;
    QTest::newRow("missing") << ""_ba;
}

// The end of the line tells as much.
void tst_VDBTextHeader::aWrongLength_costsNothing()
{
    QFETCH(QByteArray, length);
    QByteArray bytes = storeWith({kRecords});
    const qsizetype at = bytes.indexOf("\n+\t") + 3;
    bytes.replace(at, bytes.indexOf('\t', at) - at, length);
    QCOMPARE(readStore(bytes).sound, kRecords);
}

QTEST_GUILESS_MAIN(tst_VDBTextHeader)
#include "tst_VDBTextHeader.moc"
