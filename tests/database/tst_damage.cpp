// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtTest/QTest>

#include <string>

using namespace Support;

namespace {

/// Drivers of which every third takes some kilobytes, so that blocks begin anywhere in them.
QList<VPrinterDriver> drivers(int count)
{
    QList<VPrinterDriver> list;
    for (int i = 0; i < count; ++i) {
        list += printer(QString::number(i));
        if (i % 3 == 0)
            list.last().setDescription(QString(3000, QChar(u'a' + i % 26)));
    }
    return list;
}

/// A file with a commit for each of the drivers.
QByteArray bytesOfCommits(const QList<VPrinterDriver> &list, const QString &key)
{
    QBuffer buffer;
    VPrintersDb database(&buffer, key);
    database.init(false);
    for (const VPrinterDriver &driver : list) {
        database.insert(driver);
        database.commit();
    }
    return buffer.data();
}

/// What a database makes of a file.
struct Loaded
{
    bool isNull = true;
    int lost = 0; ///< Drivers that are missing.
    bool isAltered = false; ///< One has come in that never was stored.
    bool isKept = false; ///< The file is as it was.
};

Loaded load(const QByteArray &bytes, const QString &key, const QList<VPrinterDriver> &stored)
{
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    Loaded loaded;
    {
        VPrintersDb database(&buffer, key);
        database.init(false);
        loaded.isNull = database.isNull();
        for (const VPrinterDriver &driver : stored) {
            if (!database.contains(driver.dataId()))
                ++loaded.lost;
            else if (database.value(driver) != driver)
                loaded.isAltered = true;
        }
        loaded.isAltered = loaded.isAltered || database.count() + loaded.lost > stored.size();
    }
    loaded.isKept = copy == bytes;
    return loaded;
}

/// The bytes that must stay: line feeds behind the content may be written over.
QByteArray withoutFilling(QByteArray bytes)
{
    while (bytes.endsWith('\n'))
        bytes.chop(1);
    return bytes;
}

/// True when a further commit works, and neither harms what is loaded nor changes what there was.
bool takesACommit(const QByteArray &bytes, const QString &key, int lost,
                  const QList<VPrinterDriver> &stored)
{
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    const VPrinterDriver added = printer(u"added"_s);
    {
        VPrintersDb database(&buffer, key);
        database.init(false);
        database.insert(added);
    }
    const Loaded loaded = load(copy, key, stored + QList{added});
    return !loaded.isNull && loaded.lost == lost && !loaded.isAltered
        && copy.startsWith(withoutFilling(bytes));
}

} // namespace

/// Damaged files: what is sound loads, what is not is left out, and nothing is destroyed.
class tst_damage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flippedBit_losesOneDriverAtMostAndAltersNone_data();
    void flippedBit_losesOneDriverAtMostAndAltersNone();
    void zeroedBlock_losesNoMoreThanItTouches_data();
    void zeroedBlock_losesNoMoreThanItTouches();
    void truncation_keepsTheCommitsBeforeIt_data();
    void truncation_keepsTheCommitsBeforeIt();
    void badFile_isKept_data();
    void badFile_isKept();
    void goneFile_isRefusedAndKept_data();
    void goneFile_isRefusedAndKept();

private:
    static void addKeys()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("without a key") << QString();
        QTest::newRow("with a key") << u"key"_s;
    }
};

void tst_damage::flippedBit_losesOneDriverAtMostAndAltersNone_data()
{
    addKeys();
}

// One bit of every byte, another one each time, or all of them.
void tst_damage::flippedBit_losesOneDriverAtMostAndAltersNone()
{
    QFETCH(QString, key);
    const Watchdog watchdog("flipped bits", tortureLimit());
    const QList<VPrinterDriver> list = printers({u"A"_s, u"B"_s, u"C"_s});
    const QByteArray whole = bytesOfCommits(list, key);
    const int bits = rounds(1, 8);
    int losses = 0;
    for (qsizetype i = 0; i < whole.size() * bits; ++i) {
        const qsizetype at = i / bits;
        QByteArray bytes = whole;
        bytes[at] = char(uchar(bytes[at]) ^ (1U << (bits == 1 ? at % 8 : i % 8)));
        const Loaded loaded = load(bytes, key, list);
        const std::string where = "byte " + std::to_string(at);
        QVERIFY2(!loaded.isNull && loaded.lost <= 1 && !loaded.isAltered && loaded.isKept,
                 where.c_str());
        if (isTorture() || at % 10 == 0)
            QVERIFY2(takesACommit(bytes, key, loaded.lost, list), where.c_str());
        losses += loaded.lost;
    }
    figure(u"%1 flipped bits in a catalogue %2: %3 cost one driver, none cost two, 0 altered "
           "drivers accepted"_s.arg(whole.size() * bits)
               .arg(QString::fromLatin1(QTest::currentDataTag()))
               .arg(losses));
}

void tst_damage::zeroedBlock_losesNoMoreThanItTouches_data()
{
    addKeys();
}

void tst_damage::zeroedBlock_losesNoMoreThanItTouches()
{
    QFETCH(QString, key);
    constexpr qsizetype kBlock = 4096;
    const QList<VPrinterDriver> list = drivers(rounds(60, 600));
    const QByteArray whole = bytesOfCommits(list, key);
    int losses = 0;
    // Without its first block nobody knows what the file is; that is another test's.
    for (qsizetype begin = kBlock; begin < whole.size(); begin += kBlock) {
        const qsizetype size = std::min(kBlock, whole.size() - begin);
        QByteArray bytes = whole;
        bytes.replace(begin, size, QByteArray(size, '\0'));
        // Each of these commits is a record. The one behind the block counts when the line end in
        // front of it is gone, too.
        const bool isEnd = begin + size == whole.size();
        const qsizetype lineBegin = whole.lastIndexOf('\n', begin - 1) + 1;
        const qsizetype lineEnd = isEnd ? whole.size() : whole.indexOf('\n', begin + size);
        const QByteArray touched = whole.sliced(lineBegin, lineEnd - lineBegin);
        const Loaded loaded = load(bytes, key, list);
        const std::string where = "block at " + std::to_string(begin);
        QVERIFY2(!loaded.isNull && !loaded.isAltered && loaded.isKept, where.c_str());
        // A batch that has lost its end, as the last one may have, was never completed.
        const qsizetype most = ('\n' + touched).count("\n+") + (isEnd ? 1 : 0);
        QVERIFY2(loaded.lost <= most, where.c_str());
        QVERIFY2(takesACommit(bytes, key, loaded.lost, list), where.c_str());
        losses += loaded.lost;
    }
    figure(u"%1 zeroed blocks of 4 KiB in %2 drivers %3: %4 drivers lost, all of them touched"_s
               .arg((whole.size() - 1) / kBlock)
               .arg(list.size())
               .arg(QString::fromLatin1(QTest::currentDataTag()))
               .arg(losses));
}

void tst_damage::truncation_keepsTheCommitsBeforeIt_data()
{
    addKeys();
}

void tst_damage::truncation_keepsTheCommitsBeforeIt()
{
    QFETCH(QString, key);
    const QList<VPrinterDriver> list =
        isTorture() ? drivers(6) : printers({u"A"_s, u"B"_s, u"C"_s});
    const QByteArray whole = bytesOfCommits(list, key);
    int lostBefore = int(list.size());
    for (qsizetype size = 0; size <= whole.size(); ++size) {
        const QByteArray bytes = whole.first(size);
        QByteArray copy = bytes;
        QBuffer buffer(&copy);
        VPrintersDb database(&buffer, key);
        database.init(false);
        const std::string where = "at byte " + std::to_string(size);
        const int lost = int(list.size()) - database.count();
        QVERIFY2(!database.isNull() && lost <= lostBefore, where.c_str());
        // The batches are there in order, as far as their commit lines reach.
        QVERIFY2(storedFrom(database.values()) == storedFrom(list.first(list.size() - lost)),
                 where.c_str());
        if (isTorture() || size % 10 == 0)
            QVERIFY2(takesACommit(copy, key, lost, list), where.c_str());
        lostBefore = lost;
    }
    QCOMPARE(lostBefore, 0);
    figure(u"cut after each of %1 bytes %2: 0 drivers lost whose commit was whole, every next "
           "commit done"_s.arg(whole.size() + 1)
               .arg(QString::fromLatin1(QTest::currentDataTag())));
}

void tst_damage::badFile_isKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = bytesOfCommits(drivers(10), u"key"_s);
    const qsizetype copy = whole.indexOf('\n') + 1;
    QTest::newRow("text behind it") << whole + "not ours\nat all";
    QTest::newRow("binary behind it") << whole + QByteArray::fromHex("00ff0a0d7f80fe0a2b092e0a7e");
    QTest::newRow("NULs behind it") << whole + QByteArray(8192, '\0');
    QTest::newRow("itself behind it") << whole + whole;
    QTest::newRow("itself behind it, without the last line end") << whole.chopped(1) + whole;
    QTest::newRow("another's behind it") << whole + bytesOfCommits(printers({u"X"_s}), u"other"_s);
    QTest::newRow("converted to CR and LF") << QByteArray(whole).replace("\n", "\r\n");
    QTest::newRow("no line end at its end") << whole.chopped(1);
    QTest::newRow("no first copy of the header") << whole.sliced(copy);
    QTest::newRow("blank lines between its lines") << QByteArray(whole).replace("\n", "\n\n\n");
}

void tst_damage::badFile_isKept()
{
    QFETCH(QByteArray, bytes);
    const Loaded loaded = load(bytes, u"key"_s, drivers(10));
    QVERIFY(!loaded.isNull);
    QCOMPARE(loaded.lost, 0);
    QVERIFY(!loaded.isAltered);
    QVERIFY(loaded.isKept);
    QVERIFY(takesACommit(bytes, u"key"_s, 0, drivers(10)));
}

void tst_damage::goneFile_isRefusedAndKept_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = bytesOfCommits(drivers(10), u"key"_s);
    QTest::newRow("all NUL") << QByteArray(whole.size(), '\0');
    QTest::newRow("its first block is NUL") << QByteArray(4096, '\0') + whole.sliced(4096);
    QTest::newRow("its first block is missing") << whole.sliced(4096);
    QTest::newRow("its bytes are inverted") << [&] {
        QByteArray inverted = whole;
        for (char &byte : inverted)
            byte = char(~byte);
        return inverted;
    }();
    QTest::newRow("UTF-16") << QByteArray(
        reinterpret_cast<const char *>(QString::fromUtf8(whole).utf16()), whole.size() * 2);
    QTest::newRow("a newer version") << QByteArray(whole).replace("vdbtext\t1\t", "vdbtext\t2\t");
}

void tst_damage::goneFile_isRefusedAndKept()
{
    QFETCH(QByteArray, bytes);
    QByteArray copy = bytes;
    QBuffer buffer(&copy);
    {
        VPrintersDb database(&buffer, u"key"_s);
        database.init(false);
        QVERIFY(database.isNull());
        database.insert(printer(u"added"_s));
        database.commit();
        QVERIFY(database.isDirty());
        QVERIFY(!database.purge());
        QVERIFY(!database.reindex());
        QCOMPARE(copy, bytes);
    }
    QCOMPARE(copy, bytes);
}

QTEST_GUILESS_MAIN(tst_damage)
#include "tst_damage.moc"
