// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The catalogues of display texts inside the library.

#include "Embedded.h"
#include "resources/TsFile.h"
#include "support/Kilnjet.h"

#include <vcore/VEnumRegistry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QResource>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

// A catalogue is a magic number, then sections: a tag, a big-endian length, and that many bytes.
constexpr qsizetype kMagicSize = 16;
constexpr quint8 kHashesTag = 0x42; ///< Eight bytes a text.

QString pathOf(const QString &catalogue, const Texts::Language &language)
{
    return u":/translations/%1_%2.qm"_s.arg(catalogue, QLatin1String(language.suffix));
}

/// How many texts the bytes of a catalogue hold, known to anyone or not.
qsizetype countOf(const QByteArray &catalogue)
{
    for (qsizetype at = kMagicSize; at + 5 <= catalogue.size();) {
        const auto length = qFromBigEndian<quint32>(catalogue.constData() + at + 1);
        if (quint8(catalogue.at(at)) == kHashesTag)
            return length / 8;
        at += 5 + length;
    }
    return 0;
}

} // namespace

class tst_Catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_holdsEveryCatalogueInEveryLanguage();
    void catalogue_isStoredAsItShould_data();
    void catalogue_isStoredAsItShould();
    void catalogue_hasItsTagAndTexts_data();
    void catalogue_hasItsTagAndTexts();
    void catalogue_saysWhatItsSourceSays_data();
    void catalogue_saysWhatItsSourceSays();
    void moduleCatalogue_holdsItsTagOnly();
    void moduleCatalogue_opensWithoutMessages();
    void valueName_isTranslatedInItsEnumerationsContext();
    void valueName_withoutATextIsShownItself();

private:
    void addCatalogues();
};

void tst_Catalogues::addCatalogues()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<int>("language");
    for (const QString &catalogue : Embedded::kCatalogues) {
        for (int i = 0; i < int(std::size(Texts::kLanguages)); ++i) {
            QTest::addRow("%s in %s", qPrintable(catalogue), Texts::kLanguages[i].suffix)
                << catalogue << i;
        }
    }
}

void tst_Catalogues::folder_holdsEveryCatalogueInEveryLanguage()
{
    QCOMPARE(Embedded::filesIn(u"translations"_s), Embedded::translationFiles());
    QCOMPARE(Embedded::translationFiles().size(), 60);
}

void tst_Catalogues::catalogue_isStoredAsItShould_data()
{
    addCatalogues();
}

// Only those of the many texts are worth the time of unpacking.
void tst_Catalogues::catalogue_isStoredAsItShould()
{
    QFETCH(const QString, catalogue);
    QFETCH(const int, language);
    const QString path = pathOf(catalogue, Texts::kLanguages[language]);
    const QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(),
             catalogue == "ElaborationType"_L1 ? QResource::ZlibCompression
                                               : QResource::NoCompression);
    QCOMPARE(resource.uncompressedData(), Embedded::bytesOf(path));
}

void tst_Catalogues::catalogue_hasItsTagAndTexts_data()
{
    addCatalogues();
}

void tst_Catalogues::catalogue_hasItsTagAndTexts()
{
    QFETCH(const QString, catalogue);
    QFETCH(const int, language);
    const QString path = pathOf(catalogue, Texts::kLanguages[language]);
    QTranslator translator;
    QVERIFY(translator.load(path));
    QCOMPARE(translator.language(), QLatin1String(Texts::kLanguages[language].tag));

    const int expected = Embedded::textCount(catalogue, Texts::kLanguages[language]);
    QCOMPARE(countOf(Embedded::bytesOf(path)), expected);
    int found = translator.translate("PrinterClass", "Laserlab").isEmpty() ? 0 : 1;
    if (const IVEnum *enumeration = VEnumRegistry::find(catalogue)) {
        const QByteArray context = catalogue.toLatin1();
        for (const qint64 number : enumeration->names().numbers()) {
            const QByteArray name = enumeration->names().names(number).first().toLatin1();
            found += translator.translate(context.constData(), name.constData()).isEmpty() ? 0 : 1;
        }
    }
    QCOMPARE(found, expected);
}

void tst_Catalogues::catalogue_saysWhatItsSourceSays_data()
{
    addCatalogues();
}

void tst_Catalogues::catalogue_saysWhatItsSourceSays()
{
    QFETCH(const QString, catalogue);
    QFETCH(const int, language);
    const QString path = pathOf(catalogue, Texts::kLanguages[language]);
    const Texts::TsFile source =
        Texts::readTsFile(QStringLiteral(RESOURCES) + path.sliced(1).replace(u".qm"_s, u".ts"_s));
    QCOMPARE(source.error, QString());
    QCOMPARE(source.messages.size(), Embedded::textCount(catalogue, Texts::kLanguages[language]));
    QTranslator translator;
    QVERIFY(translator.load(path));
    const QByteArray context = catalogue.toLatin1();
    for (const Texts::Message &message : source.messages) {
        QCOMPARE(translator.translate(context.constData(), message.source.toLatin1().constData()),
                 message.translation);
    }
}

void tst_Catalogues::moduleCatalogue_holdsItsTagOnly()
{
    for (const Texts::Language &language : Texts::kLanguages) {
        QByteArray expected = QByteArray::fromHex("3CB86418CAEF9C95CD211CBF60A1BDDD");
        if (language.tag != nullptr)
            expected += QByteArray::fromHex("A700000005") + language.tag;
        QCOMPARE(Embedded::bytesOf(pathOf(u"vkilnjet"_s, language)), expected);
    }
}

void tst_Catalogues::moduleCatalogue_opensWithoutMessages()
{
    QTranslator translator;
    QVERIFY(translator.load(u"vkilnjet_en.qm"_s, u":/translations"_s));
    QVERIFY(translator.isEmpty());
    QCOMPARE(translator.language(), u"en_US"_s);
    QCOMPARE(translator.translate("PrinterClass", "Inkjet"), QString());
}

void tst_Catalogues::valueName_isTranslatedInItsEnumerationsContext()
{
    QTranslator translator;
    QVERIFY(translator.load(u":/translations/LevelManagement_en.qm"_s));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(QCoreApplication::translate("LevelManagement", "Fixed"), u"Automatic (deprecated)"_s);
    QCOMPARE(QCoreApplication::translate("PrinterClass", "Fixed"), u"Fixed"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

void tst_Catalogues::valueName_withoutATextIsShownItself()
{
    QTranslator italian;
    QVERIFY(italian.load(u":/translations/LevelManagement_it.qm"_s));
    QTranslator german;
    QVERIFY(german.load(u":/translations/LevelManagement_de.qm"_s));
    QVERIFY(QCoreApplication::installTranslator(&german));
    QCOMPARE(QCoreApplication::translate("LevelManagement", "TetraL3Masking"), u"TetraL3Masking"_s);
    QVERIFY(QCoreApplication::removeTranslator(&german));
    QVERIFY(QCoreApplication::installTranslator(&italian));
    QCOMPARE(QCoreApplication::translate("LevelManagement", "TetraL3Masking"), u"Mascheramento"_s);
    QVERIFY(QCoreApplication::removeTranslator(&italian));
}

QTEST_GUILESS_MAIN(tst_Catalogues)
#include "tst_Catalogues.moc"
