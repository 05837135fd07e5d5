// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QMessageAuthenticationCode>
#include <QtTest/QTest>

using namespace Support;

namespace {

const QList<QMap<QString, QString>> kGolden = {
    {{u"A"_s, u"alpha"_s}},
    {{u"B"_s, u"beta"_s}, {u"C"_s, u"gamma"_s}, {u"D"_s, u"tab\there, \\ and 日本語"_s}},
    {{u"B"_s, u"BETA"_s}, {u"C"_s, QString()}}};

QByteArray text(const QByteArray &hash)
{
    return hash.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

QByteArray sum(const QByteArray &bytes)
{
    return text(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256));
}

QByteArray code(const QByteArray &message, const QByteArray &key)
{
    return QMessageAuthenticationCode::hash(message, key, QCryptographicHash::Sha256);
}

} // namespace

// The stored format is a promise: these files must open, and come out the same, in every later
// version.
class tst_VDBTextFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goldenFile_opensAndIsWrittenTheSame_data();
    void goldenFile_opensAndIsWrittenTheSame();
    void documentedExample_holds();
    void codes_areMadeAsDocumented();
    void locale_ofTheProgramDoesNotReachTheFile();
};

void tst_VDBTextFormat::goldenFile_opensAndIsWrittenTheSame_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    QTest::newRow("without a key") << u"plain.tdb"_s << QString();
    QTest::newRow("with a key") << u"keyed.tdb"_s << u"golden"_s;
}

void tst_VDBTextFormat::goldenFile_opensAndIsWrittenTheSame()
{
    QFETCH(QString, name);
    QFETCH(QString, key);
    QFile file(QFINDTESTDATA("../data/format-1/") + name);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray golden = file.readAll();
    file.close();
    const Seen seen = readStore(golden, key);
    QVERIFY(seen.damage.empty());
    QCOMPARE(seen.sound,
             (QMap<QString, QString>{{u"A"_s, u"alpha"_s},
                                     {u"B"_s, u"BETA"_s},
                                     {u"D"_s, u"tab\there, \\ and 日本語"_s}}));
    QCOMPARE(storeWith(kGolden, key), golden);
}

void tst_VDBTextFormat::documentedExample_holds()
{
    const QByteArray payload = "culture=en-US\tid=A\ttext=alpha";
    const QByteArray line = "+\t29\t" + sum('+' + payload) + "\t-\t" + payload + '\n';
    const QByteArray commit = "lines=1\tdigest=" + sum(sum('+' + payload));
    const QByteArray commitLine = "=\t58\t" + sum('=' + commit) + "\t-\t" + commit + '\n';
    const QByteArray bytes = storeWith({{{u"A"_s, u"alpha"_s}}});
    QVERIFY(bytes.endsWith('\n' + line + commitLine + ".\n"));
    QCOMPARE(sum('+' + payload), "Pp7G7D6eId04Cn7X4qE3Phx8LTnkHcSl3G7j-6tLF9U"_ba);
    QVERIFY(commit.endsWith("0bAAB0YCnRK8tjuW9QWNRX9WFuTGIXCjFntFcUPXjWU"));
    const qsizetype copy = bytes.indexOf('\n') + 1;
    QCOMPARE(bytes.first(copy), bytes.mid(copy, copy));
    const qsizetype sumAt = bytes.indexOf("\tsum=");
    QCOMPARE(bytes.mid(sumAt + 5, 43), sum(bytes.first(sumAt)));
}

void tst_VDBTextFormat::codes_areMadeAsDocumented()
{
    const QByteArray lineKey = code("vdbtext line key", "golden");
    const QByteArray bytes = storeWith(kGolden, u"golden"_s);
    QVERIFY(bytes.contains("keycheck=" + text(code("vdbtext key check", lineKey)) + '\t'));
    const QByteArray lineSum = sum("+culture=en-US\tid=A\ttext=alpha");
    QVERIFY(bytes.contains(lineSum + '\t' + text(code(lineSum, lineKey)) + '\t'));
}

void tst_VDBTextFormat::locale_ofTheProgramDoesNotReachTheFile()
{
    const QByteArray expected = storeWith(kGolden);
    for (const QString &name : {u"bg_BG"_s, u"de_DE"_s, u"fr_FR"_s, u"sv_SE"_s, u"tr_TR"_s,
                                u"zh_CN"_s, u"ar_EG"_s, u"fa_IR"_s, u"C"_s}) {
        QLocale::setDefault(QLocale(name));
        QCOMPARE(storeWith(kGolden), expected);
    }
}

QTEST_GUILESS_MAIN(tst_VDBTextFormat)
#include "tst_VDBTextFormat.moc"
