// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Seed.h"
#include "support/Torture.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QTemporaryDir>

using namespace Support;

/// A file with a key, and whoever comes with another one.
class tst_keys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(makeFile(m_path, printers({u"A"_s, u"B"_s}), kKey)); }
    void wrongKey_readsAndWritesNothing_data();
    void wrongKey_readsAndWritesNothing();
    void randomKeys_readAndWriteNothing();
    void noKey_readsAndWritesNothing();
    void key_ofAFileWithoutOneReadsAndWritesNothing();
    void fileOfAnotherKey_isLeftAloneWhenItComesInPlaceOfOurs();

private:
    bool isLeftAlone(const QString &key) const;

    inline static const QString kKey = u"Schlüssel 1"_s;
    QTemporaryDir m_dir;
    const QString m_path = m_dir.filePath(u"keyed.tdb"_s);
};

/// Tries everything with the key; true when nothing worked, and the file is as it was.
bool tst_keys::isLeftAlone(const QString &key) const
{
    const QByteArray before = bytesOf(m_path);
    bool isRefused = true;
    {
        VPrintersDb database(m_path, key);
        QSignalSpy commits(&database, &VPrintersDb::committed);
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.init(false);
        isRefused = database.isNull() && database.count() == 0 && errors.size() == 1;
        database.insert(printer(u"X"_s));
        database.removes(printers({u"A"_s}));
        database.commit();
        isRefused = isRefused && commits.isEmpty() && errors.size() == 2 && database.isDirty();
        isRefused = isRefused && !database.purge() && !database.reindex();
    }
    return isRefused && bytesOf(m_path) == before;
}

void tst_keys::wrongKey_readsAndWritesNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("another") << u"password"_s;
    QTest::newRow("another case") << kKey.toUpper();
    QTest::newRow("a part of it") << kKey.chopped(1);
    QTest::newRow("more than it") << kKey + u'1';
    QTest::newRow("with a space before it") << u' ' + kKey;
    QTest::newRow("with a space behind it") << kKey + u' ';
    QTest::newRow("with a NUL in it") << kKey.chopped(1) + QChar(u'\0') + kKey.last(1);
    QTest::newRow("with a line feed behind it") << kKey + u'\n';
    QTest::newRow("twice") << kKey + kKey;
    QTest::newRow("in other code points") << kKey.normalized(QString::NormalizationForm_D);
    QTest::newRow("a NUL") << QString(QChar(u'\0'));
    QTest::newRow("a space") << u" "_s;
    QTest::newRow("a long one") << QString(100'000, u'x');
}

void tst_keys::wrongKey_readsAndWritesNothing()
{
    QFETCH(QString, key);
    QVERIFY(isLeftAlone(key));
}

void tst_keys::randomKeys_readAndWriteNothing()
{
    QRandomGenerator random(seed());
    const int keys = rounds(1'000, 10'000);
    for (int i = 0; i < keys; ++i) {
        QString key;
        for (int length = 1 + random.bounded(40); length > 0; --length)
            key += QChar(char16_t(1 + random.bounded(0xd7ff)));
        QVERIFY2(isLeftAlone(key), qPrintable(u"%1: %2"_s.arg(i).arg(key)));
    }
    figure(u"%1 random keys: 0 opened the file, 0 changed a byte of it"_s.arg(keys));
}

// Without a key the records are there for everyone, but nothing can be signed.
void tst_keys::noKey_readsAndWritesNothing()
{
    for (const QString &key : {QString(), u""_s}) {
        const QByteArray before = bytesOf(m_path);
        VPrintersDb database(m_path, key);
        database.init(false);
        QCOMPARE(namesIn(database), QStringList({u"A"_s, u"B"_s}));
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.insert(printer(u"X"_s));
        database.commit();
        QCOMPARE(errors.size(), 1);
        QVERIFY(database.isDirty());
        QVERIFY(!database.purge());
        QCOMPARE(bytesOf(m_path), before);
    }
}

void tst_keys::key_ofAFileWithoutOneReadsAndWritesNothing()
{
    const QByteArray keyed = bytesOf(m_path);
    QVERIFY(QFile::remove(m_path));
    QVERIFY(makeFile(m_path, printers({u"A"_s, u"B"_s})));
    QVERIFY(isLeftAlone(kKey));
    QVERIFY(writeBytes(m_path, keyed));
}

void tst_keys::fileOfAnotherKey_isLeftAloneWhenItComesInPlaceOfOurs()
{
    const QString path = m_dir.filePath(u"swapped.tdb"_s);
    const QByteArray ours = bytesWith(printers({u"A"_s}), u"ours"_s);
    const QByteArray theirs = bytesWith(printers({u"B"_s}), u"theirs"_s);
    QVERIFY(writeBytes(path, ours));
    {
        VPrintersDb database(path, u"ours"_s);
        database.init(false);
        database.insert(printer(u"X"_s));
        QVERIFY(QFile::remove(path));
        QVERIFY(writeBytes(path, theirs));
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.commit();
        QCOMPARE(errors.size(), 1);
        QVERIFY(database.isDirty());
        QVERIFY(!database.purge());
    }
    QCOMPARE(bytesOf(path), theirs);
}

QTEST_GUILESS_MAIN(tst_keys)
#include "tst_keys.moc"
