// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBHash.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QMessageAuthenticationCode>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <array>
#include <thread>
#include <vector>

using namespace Norvane::Database;

namespace {

constexpr auto kHash = QCryptographicHash::Sha256;

QByteArray bytesOf(const Digest &digest)
{
    return QByteArray(digest.data(), qsizetype(digest.size()));
}

QByteArray randomBytes(QRandomGenerator &random, qsizetype size)
{
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

} // namespace

// Sums and codes, compared with those of Qt, which are made in another way.
class tst_VDBHash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sha256_isThatOfTheStandard();
    void sha256_ofTwoTextsIsThatOfBothJoined();
    void hmac_isThatOfTheStandard();
    void hmac_hasNoKeyThatIsTooShortOrTooLong();
    void hmac_ofOneKeyMayBeMadeOnManyThreads();
};

void tst_VDBHash::sha256_isThatOfTheStandard()
{
    // The examples of FIPS 180-4.
    QCOMPARE(bytesOf(sha256("abc")).toHex(),
             "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    QCOMPARE(bytesOf(sha256("")).toHex(),
             "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
}

void tst_VDBHash::sha256_ofTwoTextsIsThatOfBothJoined()
{
    QRandomGenerator random(1);
    for (qsizetype size = 0; size < 300; ++size) {
        const QByteArray bytes = randomBytes(random, size);
        const QByteArray expected = QCryptographicHash::hash(bytes, kHash);
        for (const qsizetype cut : {qsizetype(0), size / 3, size})
            QCOMPARE(bytesOf(sha256(bytes.first(cut), bytes.sliced(cut))), expected);
    }
}

void tst_VDBHash::hmac_isThatOfTheStandard()
{
    // The second test case of RFC 4231.
    QCOMPARE(bytesOf(Hmac("Jefe").of("what do ya want for nothing?")).toHex(),
             "5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843");
}

void tst_VDBHash::hmac_hasNoKeyThatIsTooShortOrTooLong()
{
    QRandomGenerator random(2);
    for (qsizetype size = 1; size < 200; ++size) {
        const QByteArray key = randomBytes(random, size);
        const QByteArray message = randomBytes(random, random.bounded(100));
        QCOMPARE(bytesOf(Hmac(key).of(message)),
                 QMessageAuthenticationCode::hash(message, key, kHash));
    }
}

void tst_VDBHash::hmac_ofOneKeyMayBeMadeOnManyThreads()
{
    const Hmac shared("a key");
    QByteArray expected;
    for (int i = 0; i < 1000; ++i)
        expected += bytesOf(shared.of(QByteArray::number(i)));
    std::array<QByteArray, 4> made;
    {
        std::vector<std::jthread> threads;
        for (QByteArray &codes : made) {
            threads.emplace_back([&codes, copy = shared] {
                for (int i = 0; i < 1000; ++i)
                    codes += bytesOf(copy.of(QByteArray::number(i)));
            });
        }
    }
    for (const QByteArray &codes : made)
        QCOMPARE(codes, expected);
}

QTEST_GUILESS_MAIN(tst_VDBHash)
#include "tst_VDBHash.moc"
