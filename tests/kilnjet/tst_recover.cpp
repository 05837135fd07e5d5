// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// recover: whatever is readable goes into a new file, whatever is not is named, and the damaged
// file stays as it is.

#include "support/Limits.h"
#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printers;
using Support::ToolFolder;
using Support::ToolRun;

class tst_recover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatIsReadable_isCarried_data();
    void whatIsReadable_isCarried();
    void carriedRecords_areTheSameBytes();
    void whatIsLost_isNamed();
    void theLastSoundVersion_isCarried();
    void recordsWithoutProof_areCarriedWhenAskedFor();
    void recordsWithoutProof_needTheirContentId();
    void recordsThatThisProgramCannotRead_areCarried();
    void aKeyedFile_staysKeyedWithItsKey_data();
    void aKeyedFile_staysKeyedWithItsKey();
    void withoutItsKey_onlySumsAreChecked();
    void whatCannotBeRecovered_isExplained_data();
    void whatCannotBeRecovered_isExplained();
    void anExistingFile_isRefused();
    void aFullDisk_leavesNothingBehind();
    void aSoundDatabaseWithoutRecords_isOneAgain();

private:
    ToolRun recover(const QByteArray &bytes, const QStringList &more = {}) const
    {
        m_folder->write(u"bad.tdb"_s, bytes);
        QFile::remove(m_folder->path(u"new.tdb"_s));
        return m_folder->run(QStringList{u"recover"_s, u"bad.tdb"_s, u"new.tdb"_s} + more);
    }
    Support::Stored recovered() const { return Support::stored(m_folder->path(u"new.tdb"_s)); }

    std::unique_ptr<ToolFolder> m_folder;
};

namespace {

/// A file of three batches: A and B; C; then C again with another name.
QByteArray sample(const QString &key = {})
{
    QBuffer buffer;
    for (const QList<Support::VPrinterDriver> &batch :
         {printers({u"A"_s, u"B"_s}), printers({u"C"_s}),
          QList{Support::renamed(Support::printer(u"C"_s), u"C2"_s)}}) {
        Support::VPrintersDb database(&buffer, key);
        database.init(false);
        database.insert(batch);
        database.commit();
    }
    return buffer.data();
}

/// What the sample's readers see.
Support::Stored whole()
{
    return Support::storedFrom(printers({u"A"_s, u"B"_s})
                               + QList{Support::renamed(Support::printer(u"C"_s), u"C2"_s)});
}

qsizetype headerSize(const QString &key = {})
{
    return Support::bytesWith({}, key).size();
}

/// The bytes with a block of NULs at the offset.
QByteArray zeroed(QByteArray bytes, qsizetype offset, qsizetype size)
{
    size = std::min(size, bytes.size() - offset);
    return bytes.replace(offset, size, QByteArray(size, '\0'));
}

QByteArray replaced(QByteArray bytes, const QByteArray &before, const QByteArray &after)
{
    return bytes.replace(bytes.indexOf(before), before.size(), after);
}

} // namespace

void tst_recover::init()
{
    m_folder = std::make_unique<ToolFolder>();
}

void tst_recover::whatIsReadable_isCarried_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("carried");
    QTest::addColumn<int>("lost");
    const auto addRow = [](const char *name, const QByteArray &bytes, int carried, int lost) {
        QTest::newRow(name) << bytes << carried << lost;
    };
    const QByteArray sound = sample();
    const qsizetype headers = headerSize();
    const qsizetype second = sound.indexOf("\n+", sound.indexOf("\n=")) + 1;
    const qsizetype lastCommit = sound.lastIndexOf("\n=") + 1;
    const QByteArray garbage = "\x80 garbage\0 \xff\n"_ba;
    addRow("a sound file", sound, 3, 0);
    addRow("one copy of the header is damaged", replaced(sound, "format=2", "format=3"), 3, 0);
    addRow("both copies of the header are damaged",
           QByteArray(sound).replace("format=2", "format=3"), 3, 0);
    addRow("both copies of the header are zeroed", zeroed(sound, 0, headers), 3, 1);
    addRow("the header is missing", sound.sliced(headers), 3, 0);
    addRow("a byte order mark stands in front", "\xef\xbb\xbf" + sound, 3, 0);
    addRow("the last batch has no commit line", sound.first(lastCommit), 3, 0);
    addRow("the last batch has no seal", sound.chopped(2), 3, 0);
    addRow("the end of the last commit line is zeroed",
           zeroed(sound, lastCommit + 60, sound.size()), 3, 0);
    addRow("the last record is cut off in its middle", sound.first(lastCommit - 100), 3, 1);
    addRow("the first record is zeroed in its middle", zeroed(sound, headers + 200, 100), 2, 1);
    addRow("a block over the first batch is zeroed", zeroed(sound, headers, second - headers), 1,
           1);
    addRow("all behind the first batch is zeroed", zeroed(sound, second, sound.size()), 2, 1);
    addRow("a record has one altered byte", replaced(sound, "\"name\":\"B\"", "\"name\":\"D\""), 2,
           1);
    addRow("an earlier version has one altered byte",
           replaced(sound, "\"name\":\"C\"", "\"name\":\"D\""), 3, 0);
    addRow("the last version has one altered byte",
           replaced(sound, "\"name\":\"C2\"", "\"name\":\"D2\""), 3, 1);
    addRow("lines end as on Windows", QByteArray(sound).replace("\n", "\r\n"), 3, 0);
    addRow("lines end as on old Macs", QByteArray(sound).replace("\n", "\r"), 3, 0);
    addRow("line ends are NULs", QByteArray(sound).replace('\n', '\0'), 3, 0);
    addRow("garbage stands in front", garbage + sound, 3, 1);
    addRow("garbage stands between the records",
           QByteArray(sound).replace("\n+", "\n" + garbage + "+"), 3, 4);
    addRow("garbage stands behind", sound + garbage, 3, 1);
    addRow("the file stands in it twice", sound + sound, 3, 0);
    addRow("a second file without its line end in front", sound.chopped(1) + sound, 3, 0);
    addRow("NULs stand behind", sound + QByteArray(8192, '\0'), 3, 1);
    addRow("NULs stand before every record",
           QByteArray(sound).replace("\n+", "\n" + QByteArray(4096, '\0') + "+"), 3, 4);
}

void tst_recover::whatIsReadable_isCarried()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, carried);
    QFETCH(int, lost);
    const ToolRun run = recover(bytes, {u"--json"_s});
    VERIFY_CODE(run, lost == 0 ? 0 : 1);
    const QJsonObject report = run.object();
    QCOMPARE(report["carried"_L1].toArray().size(), carried);
    int places = 0;
    for (const QJsonValue &place : report["lost"_L1].toArray()) {
        places += place["harmless"_L1].toBool() ? 0 : 1;
        QVERIFY(place["size"_L1].toInteger() > 0);
        QVERIFY(place["offset"_L1].toInteger() + place["size"_L1].toInteger() <= bytes.size());
    }
    QCOMPARE(places, lost);
    QCOMPARE(recovered().size(), carried);
    VERIFY_CODE(m_folder->run({u"verify"_s, u"new.tdb"_s}), 0);
    QCOMPARE(m_folder->read(u"bad.tdb"_s), bytes);
    QCOMPARE(QDir(m_folder->path(u"."_s)).entryList(QDir::Files),
             QStringList({u"bad.tdb"_s, u"new.tdb"_s}));
    const ToolRun text = recover(bytes);
    VERIFY_CODE(text, lost == 0 ? 0 : 1);
    QVERIFY2(text.text().endsWith(u"new.tdb: %1 record%2 carried, %3 place%4 lost\n"_s.arg(
                 QString::number(carried), carried == 1 ? u""_s : u"s"_s, QString::number(lost),
                 lost == 1 ? u""_s : u"s"_s)),
             text.out.constData());
}

void tst_recover::carriedRecords_areTheSameBytes()
{
    VERIFY_CODE(recover(QByteArray(sample()).replace("format=2", "format=3")), 0);
    QCOMPARE(recovered(), whole());
}

void tst_recover::whatIsLost_isNamed()
{
    const QByteArray bytes = replaced(sample(), "\"name\":\"B\"", "\"name\":\"D\"");
    const QString id = Support::idText(Support::printer(u"B"_s));
    const qsizetype at = bytes.lastIndexOf('\n', bytes.indexOf("\"name\":\"D\"")) + 1;
    const QJsonObject lost = recover(bytes, {u"--json"_s}).object()["lost"_L1][0].toObject();
    QCOMPARE(lost,
             QJsonObject({{u"offset"_s, at},
                          {u"size"_s, bytes.indexOf('\n', at) - at},
                          {u"line"_s, bytes.first(at).count('\n') + 1},
                          {u"id"_s, id},
                          {u"reason"_s, u"badSignature"_s},
                          {u"instead"_s, u"none"_s},
                          {u"harmless"_s, false}}));
    const ToolRun text = recover(bytes);
    QVERIFY2(text.text().contains(u" record %1: lost: offset %2, "_s.arg(id).arg(at)),
             text.out.constData());
}

void tst_recover::theLastSoundVersion_isCarried()
{
    const QByteArray bytes = replaced(sample(), "\"name\":\"C2\"", "\"name\":\"D2\"");
    const ToolRun run = recover(bytes, {u"--json"_s, u"--unproven"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.object()["lost"_L1][0]["instead"_L1].toString(), u"older"_s);
    QCOMPARE(recovered(), Support::storedFrom(printers({u"A"_s, u"B"_s, u"C"_s})));
    const QByteArray earlier = replaced(sample(), "\"name\":\"C\"", "\"name\":\"D\"");
    QCOMPARE(recover(earlier, {u"--json"_s}).object()["lost"_L1][0]["instead"_L1].toString(),
             u"later"_s);
    QCOMPARE(recovered(), whole());
}

void tst_recover::recordsWithoutProof_areCarriedWhenAskedFor()
{
    const QByteArray bytes = replaced(sample(), "\"name\":\"B\"", "\"name\":\"D\"");
    const ToolRun without = recover(bytes);
    VERIFY_CODE(without, 1);
    QVERIFY2(
        without.messages().contains(
            u"1 damaged record not carried, although the content id is right; hint: --unproven"_s),
        without.err.constData());
    const ToolRun run = recover(bytes, {u"--unproven"_s, u"--json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.object()["lost"_L1].toArray(), QJsonArray());
    int flagged = 0;
    for (const QJsonValue &one : run.object()["carried"_L1].toArray()) {
        const bool isFlagged = one["proof"_L1] == "none"_L1;
        flagged += isFlagged ? 1 : 0;
        QCOMPARE(one["name"_L1] == "D"_L1, isFlagged);
    }
    QCOMPARE(flagged, 1);
    QVERIFY(recovered().value(Support::idText(Support::printer(u"B"_s))).contains(u"\"D\""_s));
    const ToolRun text = recover(bytes, {u"--unproven"_s});
    QVERIFY2(text.text().contains(u": carried without proof: "_s), text.out.constData());
}

void tst_recover::recordsWithoutProof_needTheirContentId()
{
    // The content id is made of this number, too.
    const QByteArray bytes = replaced(sample(), "\"maximumFaces\":4", "\"maximumFaces\":5");
    const ToolRun run = recover(bytes, {u"--unproven"_s, u"--json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.object()["carried"_L1].toArray().size(), 2);
    QCOMPARE(run.object()["lost"_L1].toArray().size(), 1);
    QCOMPARE(run.object()["unproven"_L1].toInt(), 0);
}

void tst_recover::recordsThatThisProgramCannotRead_areCarried()
{
    const QString path = m_folder->path(u"x.tdb"_s);
    QVERIFY(Support::makeFile(path, printers({u"A"_s})));
    QVERIFY(Support::writeRaw(path, u"of another kind"_s, QVariant(u"{}"_s)));
    const ToolRun run = recover(m_folder->read(u"x.tdb"_s).replace("format=2", "format=3"));
    VERIFY_CODE(run, 0);
    QVERIFY2(
        run.text().contains(u"record of another kind: carried, but left out by this program"_s),
        run.out.constData());
    QCOMPARE(recovered().value(u"of another kind"_s), u"{}"_s);
}

void tst_recover::aKeyedFile_staysKeyedWithItsKey_data()
{
    QTest::addColumn<bool>("hasHeader");
    QTest::newRow("with a header") << true;
    QTest::newRow("without a header") << false;
}

void tst_recover::aKeyedFile_staysKeyedWithItsKey()
{
    QFETCH(bool, hasHeader);
    m_folder->write(u"key"_s, QByteArray("secret"));
    m_folder->write(u"wrong"_s, QByteArray("another"));
    QByteArray bytes = sample(u"secret"_s);
    if (!hasHeader)
        bytes = bytes.sliced(headerSize(u"secret"_s));
    const ToolRun run = recover(bytes, {u"--key-file=key"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QVERIFY(run.object()["keyed"_L1].toBool());
    QVERIFY(run.object()["signed"_L1].toBool());
    QCOMPARE(run.object()["carried"_L1][0]["proof"_L1].toString(), u"code"_s);
    QCOMPARE(recovered(), whole());
    VERIFY_CODE(m_folder->run({u"verify"_s, u"new.tdb"_s, u"--key-file=key"_s}), 0);
    VERIFY_CODE(recover(bytes, {u"--key-file=wrong"_s}), 5);
    QVERIFY(!QFile::exists(m_folder->path(u"new.tdb"_s)));
}

void tst_recover::withoutItsKey_onlySumsAreChecked()
{
    m_folder->write(u"key"_s, QByteArray("secret"));
    const ToolRun run = recover(sample(u"secret"_s), {u"--json"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u"only sums were checked, and the new file is not signed"_s),
             run.err.constData());
    QVERIFY(!run.object()["signed"_L1].toBool());
    QCOMPARE(run.object()["carried"_L1][0]["proof"_L1].toString(), u"sum"_s);
    QCOMPARE(recovered(), whole());
    // A key vouches for nothing that was made without one.
    VERIFY_CODE(recover(sample(), {u"--key-file=key"_s}), 5);
}

void tst_recover::whatCannotBeRecovered_isExplained_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("why");
    const QString nothing = u"nothing in it is a record of a database"_s;
    QTest::newRow("missing") << QByteArray() << 3 << u"there is no such file"_s;
    QTest::newRow("empty") << QByteArray("") << 3 << u"the file is empty"_s;
    QTest::newRow("all NULs") << QByteArray(4096, '\0') << 4 << nothing;
    QTest::newRow("something else") << QByteArray("dear diary\n") << 4 << nothing;
    QTest::newRow("a piece of a header") << sample().first(30) << 4 << nothing;
    QTest::newRow("of a newer format")
        << sample().replace("vdbtext\t1\t", "vdbtext\t2\t") << 4 << u"a newer program wrote it"_s;
    QTest::newRow("a header and garbage") << Support::bytesWith({}) + "garbage\n"
                                          << 4 << u"no record in it is sound"_s;
}

void tst_recover::whatCannotBeRecovered_isExplained()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, why);
    if (!bytes.isNull())
        m_folder->write(u"bad.tdb"_s, bytes);
    const ToolRun run = m_folder->run({u"recover"_s, u"bad.tdb"_s, u"new.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, code);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.error()["where"_L1].toString(), u"bad.tdb"_s);
    QCOMPARE(run.error()["what"_L1].toString(), u"cannot recover anything"_s);
    QCOMPARE(run.error()["why"_L1].toString(), why);
    QCOMPARE(m_folder->read(u"bad.tdb"_s), bytes);
    QVERIFY(!QFile::exists(m_folder->path(u"new.tdb"_s)));
}

void tst_recover::anExistingFile_isRefused()
{
    m_folder->write(u"bad.tdb"_s, sample());
    m_folder->write(u"there.tdb"_s, QByteArray("dear diary\n"));
    QVERIFY(QFile::link(u"nowhere"_s, m_folder->path(u"dangling"_s)));
    for (const QString &name : {u"there.tdb"_s, u"bad.tdb"_s, u"."_s, u"dangling"_s}) {
        const ToolRun run = m_folder->run({u"recover"_s, u"bad.tdb"_s, name});
        VERIFY_CODE(run, 3);
        QVERIFY2(run.messages().contains(u"there is one of this name"_s), run.err.constData());
    }
    QCOMPARE(m_folder->read(u"there.tdb"_s), QByteArray("dear diary\n"));
    QCOMPARE(m_folder->read(u"bad.tdb"_s), sample());
    VERIFY_CODE(m_folder->run({u"recover"_s, u"bad.tdb"_s, u"nowhere/new.tdb"_s}), 3);
}

void tst_recover::aFullDisk_leavesNothingBehind()
{
#ifdef Q_OS_UNIX
    m_folder->write(u"bad.tdb"_s, sample());
    for (const qint64 room : {qint64(0), headerSize(), headerSize() + 1000}) {
        const ToolRun run = Support::runOnAFullDisk(
            *m_folder, room, {u"recover"_s, u"bad.tdb"_s, u"new.tdb"_s, u"--json"_s});
        VERIFY_CODE(run, 3);
        QCOMPARE(run.error()["where"_L1].toString(), u"new.tdb"_s);
        QCOMPARE(QDir(m_folder->path(u"."_s)).entryList(QDir::Files), QStringList{u"bad.tdb"_s});
    }
#else
    QSKIP("files cannot be limited in size");
#endif
}

void tst_recover::aSoundDatabaseWithoutRecords_isOneAgain()
{
    const ToolRun run = recover(Support::bytesWith({}));
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(), u"new.tdb: 0 records carried, 0 places lost\n"_s);
    VERIFY_CODE(m_folder->run({u"verify"_s, u"new.tdb"_s}), 0);
}

QTEST_GUILESS_MAIN(tst_recover)
#include "tst_recover.moc"
