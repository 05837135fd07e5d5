// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Seed.h"
#include "support/Store.h"

#include "VDBScanner.h"

#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

using namespace Support;

namespace {

/// All that a scan finds, in a form that can be compared.
struct Found
{
    QString contents;
    QString damage;

    friend bool operator==(const Found &, const Found &) = default;
};

QString text(const Entry &entry)
{
    return u"%1 %2 %3 %4 %5 %6 %7 %8 %9\n"_s.arg(entry.offset)
        .arg(entry.size)
        .arg(entry.payloadAt)
        .arg(entry.line)
        .arg(entry.id, QString::fromLatin1(entry.isSound ? QByteArrayView(entry.sum) : "-"))
        .arg(char(entry.kind))
        .arg(int(entry.damage))
        .arg(entry.isSound * 16 + entry.isRecord * 8 + entry.looksTorn * 4 + entry.isLive * 2
             + entry.hasLineFeed);
}

Found scanned(const QByteArray &bytes, const QString &key, qsizetype pieceSize)
{
    Found found;
    const auto reporter = [&](const VDBDamage &damage) {
        found.damage += u"%1 %2 %3 %4 %5\n"_s.arg(damage.offset)
                            .arg(damage.size)
                            .arg(damage.line)
                            .arg(damage.id)
                            .arg(int(damage.reason));
    };
    const Contents contents = scan(bytes, Signer(key), reporter, pieceSize);
    for (const Entry &entry : contents.entries)
        found.contents += text(entry);
    QMap<QString, std::size_t> index;
    for (auto at = contents.index.begin(); at != contents.index.end(); ++at)
        index.insert(at.key(), at.value());
    for (auto at = index.begin(); at != index.end(); ++at)
        found.contents += u"%1 at %2\n"_s.arg(at.key()).arg(at.value());
    found.contents += u"status %1, tail %2, end %3 in line %4, inside %5, dead %6, damaged %7"_s
                          .arg(int(contents.status))
                          .arg(int(contents.tail))
                          .arg(contents.end)
                          .arg(contents.line)
                          .arg(contents.endsInsideLine)
                          .arg(contents.deadCount)
                          .arg(contents.damagedRecords.size());
    return found;
}

/// Many batches of all kinds, records of many sizes, and values that look like lines.
QByteArray sample(const QString &key, QRandomGenerator &random, int batchCount)
{
    QList<QMap<QString, QString>> batches;
    for (int i = 0; i < batchCount; ++i) {
        QMap<QString, QString> batch;
        for (int record = random.bounded(1, 6); record > 0; --record) {
            const QString id = u"id %1"_s.arg(random.bounded(20));
            const bool removes = random.bounded(5) == 0;
            batch.insert(id,
                         removes ? QString() : QString(random.bounded(200), u'x') + u"\n+\t1"_s);
        }
        batches.append(batch);
    }
    return storeWith(batches, key);
}

/// Does something bad to the bytes.
void damage(QByteArray &bytes, QRandomGenerator &random)
{
    const qsizetype at = random.bounded(bytes.size());
    const qsizetype size = std::min<qsizetype>(random.bounded(1, 80), bytes.size() - at);
    static const QByteArrayView kAny = "\n\r\t+-=.~x";
    switch (random.bounded(8)) {
    case 0:
        bytes[at] = char(uchar(bytes[at]) ^ (1U << random.bounded(8)));
        break;
    case 1:
        bytes[at] = kAny[random.bounded(kAny.size())];
        break;
    case 2:
        bytes.insert(at, kAny[random.bounded(kAny.size())]);
        break;
    case 3:
        bytes.remove(at, size);
        break;
    case 4:
        bytes.replace(at, size, QByteArray(size, '\0'));
        break;
    case 5:
        bytes.replace(at, size, QByteArray(size, '\n'));
        break;
    case 6:
        bytes.insert(at, bytes.mid(random.bounded(bytes.size()), 300));
        break;
    default:
        bytes.truncate(std::max(at, bytes.size() - 300));
        break;
    }
}

} // namespace

/// Lines are checked in parallel, in pieces of the file: nobody must be able to tell.
class tst_VDBTextScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pieces_doNotChangeWhatIsFound_data();
    void pieces_doNotChangeWhatIsFound();
    void pieces_doNotChangeWhatIsFoundInALargeFile();
};

void tst_VDBTextScan::pieces_doNotChangeWhatIsFound_data()
{
    QTest::addColumn<QString>("writeKey");
    QTest::addColumn<QString>("readKey");
    QTest::newRow("without a key") << QString() << QString();
    QTest::newRow("with a key") << u"secret"_s << u"secret"_s;
    QTest::newRow("with a key, read without it") << u"secret"_s << QString();
}

void tst_VDBTextScan::pieces_doNotChangeWhatIsFound()
{
    QFETCH(QString, writeKey);
    QFETCH(QString, readKey);
    QRandomGenerator random(Support::seed());
    for (int round = 0; round < 150; ++round) {
        QByteArray bytes = sample(writeKey, random, 5);
        for (int count = random.bounded(5); count > 0; --count)
            damage(bytes, random);
        const Found expected = scanned(bytes, readKey, 0); // One by one, as they are met.
        for (const qsizetype pieceSize : {1, 7, 64, 500, 1'000'000}) {
            const Found found = scanned(bytes, readKey, pieceSize);
            QCOMPARE(found.damage, expected.damage);
            QCOMPARE(found.contents, expected.contents);
        }
    }
}

void tst_VDBTextScan::pieces_doNotChangeWhatIsFoundInALargeFile()
{
    QRandomGenerator random(Support::seed());
    QByteArray bytes = sample({}, random, 10);
    const QByteArray lines = bytes.sliced(storeWith({}).size());
    while (bytes.size() < 12 * kPieceSize)
        bytes += lines;
    for (int count = 0; count < 30; ++count)
        damage(bytes, random);
    QCOMPARE(scanned(bytes, {}, kPieceSize), scanned(bytes, {}, 0));
}

QTEST_GUILESS_MAIN(tst_VDBTextScan)
#include "tst_VDBTextScan.moc"
