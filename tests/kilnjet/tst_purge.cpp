// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// purge: the file shrinks to what is live, and nothing that is live is lost.

#include "support/Limits.h"
#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printers;
using Support::ToolFolder;
using Support::ToolRun;

class tst_purge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFile_shrinksToWhatIsLive();
    void whatIsDamaged_isCarriedOver();
    void anUnfinishedBatch_isDropped();
    void aKeyedFile_needsItsKey();
    void aFullDisk_changesNothing();
    void aFileThatCannotBeUsed_isLeftAsItIs();

private:
    QByteArray bytes() const { return m_folder->read(u"Printers.tdb"_s); }

    std::unique_ptr<ToolFolder> m_folder;
};

void tst_purge::init()
{
    m_folder = std::make_unique<ToolFolder>();
    const QString path = m_folder->path(u"Printers.tdb"_s);
    QVERIFY(Support::makeFile(path, printers({u"A"_s, u"B"_s, u"C"_s})));
    VERIFY_CODE(m_folder->run({u"remove"_s, u"A"_s}), 0);
    VERIFY_CODE(m_folder->run({u"rename"_s, u"B"_s, u"B2"_s}), 0);
}

void tst_purge::theFile_shrinksToWhatIsLive()
{
    const Support::Stored content = Support::stored(bytes());
    const auto before = bytes().size();
    const ToolRun run = m_folder->run({u"purge"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    const auto after = bytes().size();
    QVERIFY(after < before);
    QCOMPARE(run.object(),
             QJsonObject({{u"file"_s, u"Printers.tdb"_s},
                          {u"records"_s, 2},
                          {u"bytesBefore"_s, before},
                          {u"bytesAfter"_s, after}}));
    QCOMPARE(Support::stored(bytes()), content);
    // There is nothing left to drop.
    const ToolRun again = m_folder->run({u"purge"_s});
    VERIFY_CODE(again, 0);
    QCOMPARE(again.text(),
             u"Printers.tdb: 2 records, %1 bytes before, %1 bytes after\n"_s.arg(after));
}

void tst_purge::whatIsDamaged_isCarriedOver()
{
    QByteArray damaged = bytes();
    const qsizetype at = damaged.lastIndexOf("\"name\":\"B2\"");
    damaged.replace(at, 11, "\"name\":\"B3\"");
    damaged.insert(damaged.indexOf("\n+"), "\ngarbage");
    m_folder->write(u"Printers.tdb"_s, damaged);
    const ToolRun run = m_folder->run({u"purge"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u"parts of the file are damaged; they were carried over"_s),
             run.err.constData());
    QVERIFY(bytes().contains("\"name\":\"B3\""));
    QVERIFY(bytes().contains("\ngarbage\n"));
    // An older sound version stands for a damaged one.
    QVERIFY(bytes().contains("\"name\":\"B\""));
}

void tst_purge::anUnfinishedBatch_isDropped()
{
    const QByteArray before = bytes();
    m_folder->write(u"Printers.tdb"_s, before + "+\t10\t");
    const ToolRun run = m_folder->run({u"purge"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u"dropped 1 line of a batch that was never completed"_s),
             run.err.constData());
    QCOMPARE(Support::stored(bytes()), Support::stored(before));
    VERIFY_CODE(m_folder->run({u"verify"_s}), 0);
}

void tst_purge::aKeyedFile_needsItsKey()
{
    m_folder->write(u"key"_s, QByteArray("secret"));
    QVERIFY(Support::makeFile(m_folder->path(u"k.tdb"_s), printers({u"A"_s}), u"secret"_s));
    const QByteArray before = m_folder->read(u"k.tdb"_s);
    VERIFY_CODE(m_folder->run({u"--db=k.tdb"_s, u"purge"_s}), 5);
    QCOMPARE(m_folder->read(u"k.tdb"_s), before);
    VERIFY_CODE(m_folder->run({u"--db=k.tdb"_s, u"purge"_s, u"--key-file=key"_s}), 0);
    VERIFY_CODE(m_folder->run({u"verify"_s, u"k.tdb"_s, u"--key-file=key"_s}), 0);
}

void tst_purge::aFullDisk_changesNothing()
{
#ifdef Q_OS_UNIX
    const QByteArray before = bytes();
    const ToolRun run = Support::runOnAFullDisk(*m_folder, 1000, {u"purge"_s, u"--json"_s});
    VERIFY_CODE(run, 3);
    QCOMPARE(run.error()["what"_L1].toString(), u"cannot compact the database"_s);
    QVERIFY(!run.error()["why"_L1].toString().isEmpty());
    QCOMPARE(bytes(), before);
    QCOMPARE(QDir(m_folder->path(u"."_s)).entryList(QDir::Files), QStringList{u"Printers.tdb"_s});
#else
    QSKIP("files cannot be limited in size");
#endif
}

void tst_purge::aFileThatCannotBeUsed_isLeftAsItIs()
{
    for (const QByteArray &content : {QByteArray(""), QByteArray("dear diary\n")}) {
        m_folder->write(u"a.tdb"_s, content);
        VERIFY_CODE(m_folder->run({u"--db=a.tdb"_s, u"purge"_s}), content.isEmpty() ? 3 : 4);
        QCOMPARE(m_folder->read(u"a.tdb"_s), content);
    }
    VERIFY_CODE(m_folder->run({u"--db=missing.tdb"_s, u"purge"_s}), 3);
    QVERIFY(!QFile::exists(m_folder->path(u"missing.tdb"_s)));
}

QTEST_GUILESS_MAIN(tst_purge)
#include "tst_purge.moc"
