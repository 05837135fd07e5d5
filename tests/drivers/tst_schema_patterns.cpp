// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The patterns of the JSON Schemas match exactly the texts that the library writes: those that it
// reads as something, and writes back unchanged.

#include "support/Schemas.h"
#include "support/Seed.h"

#include <vcore/VVersion.h>

#include <QtCore/QDateTime>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>
#include <QtTest/QTest>

#include <limits>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

/// The pattern of a definition in record.schema.json, or of a property of one.
QRegularExpression patternOf(const QString &name, const QString &property = {})
{
    QJsonValue described = Support::schema(u"record"_s)["$defs"_L1][name];
    if (!property.isEmpty())
        described = described["properties"_L1][property];
    // JSON Schema's `$` is the very end, this one's may be before a last line feed.
    return QRegularExpression(described["pattern"_L1].toString().chopped(1) + u"\\z"_s);
}

bool matches(const QRegularExpression &pattern, const QString &text)
{
    return pattern.isValid() && pattern.match(text).hasMatch();
}

bool isWrittenSo(qint64 number, bool ok, const QString &text)
{
    return ok && QString::number(number) == text;
}

/// Numbers on both sides of every power of ten and of two, and beyond 64 bits.
QStringList numbersAround(quint64 limit)
{
    const QString most = QString::number(limit);
    QStringList texts{u""_s,   u"0"_s,   u"-0"_s,  u"00"_s,    u"01"_s,  u"+1"_s, u"-"_s,
                      u"1 "_s, u"1.0"_s, u"1e3"_s, u"1,000"_s, u"0x1"_s, u"١"_s,  u"1\n"_s};
    for (qsizetype i = 0; i < most.size(); ++i) {
        for (const QChar digit : u"0123456789"_s) {
            const QString changed = most.first(i) + digit + most.sliced(i + 1);
            texts += {changed, most.first(i) + digit, changed + u'0', u'-' + changed};
        }
    }
    return texts;
}

} // namespace

class tst_schema_patterns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signedNumbers_are64BitsAsTheyAreWritten();
    void metadataKeys_are64BitsAsTheyAreWritten();
    void versions_areThreeNumbersOf8Bits();
    void days_areThoseOfTheCalendar();
    void times_areInUtcWithMilliseconds_data();
    void times_areInUtcWithMilliseconds();
    void ids_areInBracesAndLowerCase();
    void base64_isOfTheStandardAlphabetWithPadding();
};

void tst_schema_patterns::signedNumbers_are64BitsAsTheyAreWritten()
{
    const QRegularExpression int64 = patternOf(u"int64"_s);
    QRandomGenerator random(Support::seed());
    QStringList texts = numbersAround(std::numeric_limits<qint64>::max());
    texts += numbersAround(quint64(std::numeric_limits<qint64>::max()) + 1);
    for (int i = 0; i < 1000; ++i)
        texts.append(QString::number(qint64(random.generate64()) >> random.bounded(64)));
    for (const QString &text : std::as_const(texts)) {
        bool ok = false;
        const qint64 number = text.toLongLong(&ok);
        QVERIFY2(matches(int64, text) == isWrittenSo(number, ok, text), qPrintable(text));
    }
}

void tst_schema_patterns::metadataKeys_are64BitsAsTheyAreWritten()
{
    const QRegularExpression key = patternOf(u"metadataEntry"_s, u"key"_s);
    const QStringList texts = numbersAround(std::numeric_limits<quint64>::max());
    for (const QString &text : texts) {
        bool ok = false;
        const quint64 number = text.toULongLong(&ok);
        QVERIFY2(matches(key, text) == (ok && QString::number(number) == text), qPrintable(text));
    }
}

void tst_schema_patterns::versions_areThreeNumbersOf8Bits()
{
    const QRegularExpression version = patternOf(u"version"_s);
    QStringList texts{u""_s, u"1.2"_s, u"1.2.3.4"_s, u"1.2.03"_s, u"1,2,3"_s, u" 1.2.3"_s};
    for (int i = 0; i < 300; ++i)
        texts += {u"%1.0.0"_s.arg(i), u"1.%1.255"_s.arg(i), u"0.0.%1"_s.arg(i)};
    for (const QString &text : std::as_const(texts)) {
        bool ok = false;
        VVersion::fromString(text, &ok);
        QVERIFY2(matches(version, text) == ok, qPrintable(text));
    }
}

// Of a leap year, since a pattern cannot tell one.
void tst_schema_patterns::days_areThoseOfTheCalendar()
{
    const QRegularExpression dateTime = patternOf(u"dateTime"_s);
    for (int month = 0; month <= 13; ++month) {
        for (int day = 0; day <= 32; ++day) {
            const QString text = u"2028-%1-%2T23:59:59.999Z"_s.arg(month, 2, 10, QChar(u'0'))
                                     .arg(day, 2, 10, QChar(u'0'));
            QVERIFY2(matches(dateTime, text) == QDate::isValid(2028, month, day), qPrintable(text));
        }
    }
}

void tst_schema_patterns::times_areInUtcWithMilliseconds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("the first moment") << u"0001-01-01T00:00:00.000Z"_s << true;
    QTest::newRow("the last moment") << u"9999-12-31T23:59:59.999Z"_s << true;
    QTest::newRow("there is no year 0") << u"0000-01-01T00:00:00.000Z"_s << false;
    QTest::newRow("without milliseconds") << u"2026-11-21T09:30:00Z"_s << false;
    QTest::newRow("in another zone") << u"2026-11-21T09:30:00.000+01:00"_s << false;
    QTest::newRow("in no zone") << u"2026-11-21T09:30:00.000"_s << false;
    QTest::newRow("with a small z") << u"2026-11-21T09:30:00.000z"_s << false;
    QTest::newRow("with a blank for the T") << u"2026-11-21 09:30:00.000Z"_s << false;
    QTest::newRow("a leap second") << u"2026-12-31T23:59:60.000Z"_s << false;
    QTest::newRow("the hour 24") << u"2026-11-21T24:00:00.000Z"_s << false;
}

void tst_schema_patterns::times_areInUtcWithMilliseconds()
{
    const QRegularExpression dateTime = patternOf(u"dateTime"_s);
    QFETCH(QString, text);
    QFETCH(bool, isWritten);
    QCOMPARE(matches(dateTime, text), isWritten);
    if (isWritten) {
        const QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
        QCOMPARE(moment.toUTC().toString(Qt::ISODateWithMs), text);
    }
}

void tst_schema_patterns::ids_areInBracesAndLowerCase()
{
    const QRegularExpression uuid = patternOf(u"uuid"_s);
    for (int i = 0; i < 100; ++i)
        QVERIFY(matches(uuid, QUuid::createUuid().toString()));
    const QUuid id(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s);
    for (const QString &text :
         {id.toString(QUuid::WithoutBraces), id.toString(QUuid::Id128), id.toString().toUpper(),
          id.toString() + u"}"_s, id.toString().chopped(1), u"{}"_s, u""_s})
        QVERIFY2(!matches(uuid, text), qPrintable(text));
}

void tst_schema_patterns::base64_isOfTheStandardAlphabetWithPadding()
{
    const QRegularExpression base64 = patternOf(u"base64"_s);
    QByteArray bytes;
    for (int i = 1; i < 300; ++i) {
        bytes.append(char(i * 37));
        QVERIFY(matches(base64, QString::fromLatin1(bytes.toBase64())));
    }
    for (const QString &text : {u""_s, u"A"_s, u"AA"_s, u"AAA"_s, u"AA="_s, u"A==="_s, u"===="_s,
                                u"AA-_"_s, u"AAAA\nAAAA"_s, u"AAAA AAAA"_s, u"AA==AAAA"_s})
        QVERIFY2(!matches(base64, text), qPrintable(text));
}

QTEST_GUILESS_MAIN(tst_schema_patterns)
#include "tst_schema_patterns.moc"
