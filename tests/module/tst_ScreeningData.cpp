// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The screening files inside the library, which it carries for the host.

#include "Embedded.h"
#include "support/Kilnjet.h"

#include <QtCore/QResource>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

class tst_ScreeningData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_holdsTheScreeningFilesAndNothingElse();
    void file_isCarriedByteForByte_data();
    void file_isCarriedByteForByte();
    void collections_areAllThatIsCarried();
};

void tst_ScreeningData::folder_holdsTheScreeningFilesAndNothingElse()
{
    QCOMPARE(Embedded::filesIn(u"data"_s), Embedded::screeningFiles());
    QCOMPARE(Embedded::screeningFiles().size(), 72);
}

void tst_ScreeningData::file_isCarriedByteForByte_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : Embedded::screeningFiles())
        QTest::newRow(qPrintable(file)) << file;
}

void tst_ScreeningData::file_isCarriedByteForByte()
{
    QFETCH(const QString, file);
    const QResource resource(u":/"_s + file);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    const QByteArray bytes = Embedded::bytesOf(u":/"_s + file);
    QVERIFY(bytes.size() > 4);
    QCOMPARE(bytes, Embedded::bytesOf(QStringLiteral(RESOURCES) + u'/' + file));
    if (file.endsWith(".ht3"_L1))
        QCOMPARE(bytes.first(4).toHex(), "ab56aa55");
    else if (file.endsWith(".ht"_L1))
        QCOMPARE(bytes.first(4).toHex(), "aa55aa55");
}

void tst_ScreeningData::collections_areAllThatIsCarried()
{
    QStringList folders = QDir(u":/"_s).entryList(QDir::Dirs);
    folders.removeIf([](const QString &folder) { return folder.startsWith(u'q'); }); // Qt's own.
    QCOMPARE(folders, QStringList({u"data"_s, u"translations"_s}));
}

QTEST_GUILESS_MAIN(tst_ScreeningData)
#include "tst_ScreeningData.moc"
