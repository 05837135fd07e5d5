// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The translation sources, as they are before they become catalogues.

#include "enums/CatalogueTables.h"
#include "resources/DisplayTexts.h"
#include "resources/TsFile.h"

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <span>

using namespace Qt::StringLiterals;
using Texts::Language;
using Texts::Message;
using Texts::TsFile;

using Pairs = QList<std::pair<QString, QString>>; // Names of values, and their texts.

class tst_TranslationSources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folder_holdsEveryCatalogueInEveryLanguage();
    void file_saysWhatItIs_data();
    void file_saysWhatItIs();
    void file_namesValuesOnceAndInTheirOrder_data();
    void file_namesValuesOnceAndInTheirOrder();
    void libraryCatalogue_isEmpty_data();
    void libraryCatalogue_isEmpty();
    void printerClass_isWordForWord_data();
    void printerClass_isWordForWord();
    void levelManagement_isWordForWord_data();
    void levelManagement_isWordForWord();
    void elaborationType_isWordForWordInEnglish();
    void elaborationType_leavesOutNoOtherValues_data();
    void elaborationType_leavesOutNoOtherValues();
    void text_isNeitherEmptyNorPadded_data();
    void text_isNeitherEmptyNorPadded();
    void text_keepsTheCodesOfTheEnglishText_data();
    void text_keepsTheCodesOfTheEnglishText();
    void text_differsInCodesOnlyWhereTheEnglishTextDoes_data();
    void text_differsInCodesOnlyWhereTheEnglishTextDoes();
};

namespace {

using Names = std::span<const Tables::Row>;

/// The catalogues that have texts, and the names that these are for.
const QMap<QString, Names> kEnumerations = {{u"ElaborationType"_s, Tables::kElaborationType},
                                            {u"LevelManagement"_s, Tables::kLevelManagement},
                                            {u"PrinterClass"_s, Tables::kPrinterClass}};
const QString kLibrary = u"vkilnjet"_s;

/// An entry that no value carries. Klingon alone has it, behind the others.
const Message kLaserlab = {u"Laserlab"_s, u"laserlab"_s};

/// What only English and Italian have.
const QStringList kEnglishAndItalian = {u"FiftlevelStochastic"_s, u"FiftlevelNearest"_s,
                                        u"FiftlevelBlueMask"_s, u"Grayscale_8"_s,
                                        u"Grayscale_16"_s};

QString fileName(const QString &catalogue, const QString &suffix)
{
    return catalogue + u'_' + suffix + u".ts"_s;
}

TsFile read(const QString &catalogue, const QString &suffix)
{
    return Texts::readTsFile(
        QDir(QStringLiteral(TRANSLATIONS)).filePath(fileName(catalogue, suffix)));
}

Pairs pairs(const TsFile &file)
{
    Pairs all;
    for (const Message &message : file.messages)
        all.append({message.source, message.translation});
    return all;
}

QString nameAt(const QString &enumeration, qsizetype index)
{
    return QString::fromLatin1(kEnumerations[enumeration][size_t(index)].name);
}

/// The values' English texts, by name.
QMap<QString, QString> englishTexts(const QString &catalogue)
{
    QMap<QString, QString> texts;
    for (const Message &message : read(catalogue, u"en"_s).messages)
        texts.insert(message.source, message.translation);
    return texts;
}

bool isKlingon(const QString &suffix)
{
    return suffix == u"tlh"_s;
}

void addLanguages()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(Texts::kLanguages)); ++i)
        QTest::newRow(Texts::kLanguages[i].suffix) << i;
}

/// The language of the current row.
const Language &language()
{
    QFETCH(int, index);
    return Texts::kLanguages[index];
}

QString suffix()
{
    return QString::fromLatin1(language().suffix);
}

void addFiles(const QStringList &catalogues)
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<int>("index");
    for (const QString &catalogue : catalogues) {
        for (int i = 0; i < int(std::size(Texts::kLanguages)); ++i)
            QTest::addRow("%s in %s", qPrintable(catalogue), Texts::kLanguages[i].suffix)
                << catalogue << i;
    }
}

/// Codes such as C7, 45°, HiDPI or T, which stay as they are in every language.
const QRegularExpression
    kCode(u"(?<!\\pL)(?:HiDPI|[A-Z]{1,2}(?::?[0-9]+)?)(?!\\pL)|[0-9]+(?:px|°)?|[+]"_s);

QString codes(const QString &text)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : kCode.globalMatch(text))
        found.append(match.captured());
    return found.join(u' ');
}

QString withoutCodes(const QString &text)
{
    return QString(text).remove(kCode);
}

} // namespace

void tst_TranslationSources::folder_holdsEveryCatalogueInEveryLanguage()
{
    QStringList expected;
    for (const QString &catalogue : kEnumerations.keys() + QStringList(kLibrary)) {
        for (const Language &each : Texts::kLanguages)
            expected.append(fileName(catalogue, QString::fromLatin1(each.suffix)));
    }
    QCOMPARE(expected.size(), 60);
    const QDir folder(QStringLiteral(TRANSLATIONS));
    QCOMPARE(folder.entryList({u"*.ts"_s}, QDir::Files, QDir::Name), expected);
}

void tst_TranslationSources::file_saysWhatItIs_data()
{
    addFiles(kEnumerations.keys() + QStringList(kLibrary));
}

void tst_TranslationSources::file_saysWhatItIs()
{
    QFETCH(QString, catalogue);
    const TsFile file = read(catalogue, suffix());
    QCOMPARE(file.error, QString());
    QCOMPARE(file.version, u"2.1"_s);
    QCOMPARE(file.language, QString::fromLatin1(language().tag));
    QCOMPARE(file.language.isNull(), isKlingon(suffix()));
    QCOMPARE(file.context, catalogue == kLibrary ? QString() : catalogue);
}

void tst_TranslationSources::file_namesValuesOnceAndInTheirOrder_data()
{
    addFiles(kEnumerations.keys());
}

void tst_TranslationSources::file_namesValuesOnceAndInTheirOrder()
{
    QFETCH(QString, catalogue);
    const TsFile file = read(catalogue, suffix());
    QStringList unseen;
    for (const Tables::Row &row : kEnumerations[catalogue])
        unseen.append(QString::fromLatin1(row.name));
    if (catalogue == u"PrinterClass"_s && isKlingon(suffix()))
        unseen.append(kLaserlab.source);
    for (const Message &message : file.messages) {
        const qsizetype at = unseen.indexOf(message.source);
        QVERIFY2(at >= 0, qPrintable(message.source));
        unseen.remove(0, at + 1);
    }
}

void tst_TranslationSources::libraryCatalogue_isEmpty_data()
{
    addLanguages();
}

void tst_TranslationSources::libraryCatalogue_isEmpty()
{
    QCOMPARE(read(kLibrary, suffix()).messages.size(), 0);
}

void tst_TranslationSources::printerClass_isWordForWord_data()
{
    addLanguages();
}

void tst_TranslationSources::printerClass_isWordForWord()
{
    Pairs expected;
    for (const char *text : language().printerClass)
        expected.append({nameAt(u"PrinterClass"_s, expected.size()), QString::fromUtf8(text)});
    if (isKlingon(suffix()))
        expected.append({kLaserlab.source, kLaserlab.translation});
    QCOMPARE(pairs(read(u"PrinterClass"_s, suffix())), expected);
}

void tst_TranslationSources::levelManagement_isWordForWord_data()
{
    addLanguages();
}

void tst_TranslationSources::levelManagement_isWordForWord()
{
    const auto &texts = language().levelManagement;
    Pairs expected;
    for (size_t i = 0; i < std::size(Tables::kLevelManagement); ++i) {
        if (const char *text = i < std::size(texts) ? texts[i] : texts[1])
            expected.append({nameAt(u"LevelManagement"_s, qsizetype(i)), QString::fromUtf8(text)});
    }
    QCOMPARE(pairs(read(u"LevelManagement"_s, suffix())), expected);
}

void tst_TranslationSources::elaborationType_isWordForWordInEnglish()
{
    Pairs expected;
    for (const char *text : Texts::kElaborationType)
        expected.append({nameAt(u"ElaborationType"_s, expected.size()), QString::fromUtf8(text)});
    QCOMPARE(expected.size(), 84);
    QCOMPARE(pairs(read(u"ElaborationType"_s, u"en"_s)), expected);
}

void tst_TranslationSources::elaborationType_leavesOutNoOtherValues_data()
{
    addLanguages();
}

void tst_TranslationSources::elaborationType_leavesOutNoOtherValues()
{
    const TsFile file = read(u"ElaborationType"_s, suffix());
    QCOMPARE(file.messages.size(), language().elaborationTypes);
    const bool whole = suffix() == u"en"_s || suffix() == u"it"_s;
    for (const Message &message : file.messages)
        QVERIFY2(whole || !kEnglishAndItalian.contains(message.source), qPrintable(message.source));
}

void tst_TranslationSources::text_isNeitherEmptyNorPadded_data()
{
    addFiles(kEnumerations.keys());
}

void tst_TranslationSources::text_isNeitherEmptyNorPadded()
{
    QFETCH(QString, catalogue);
    for (const Message &message : read(catalogue, suffix()).messages) {
        QString text = message.translation;
        text.replace(u"\u00a0; "_s, u"; "_s); // As French sets its semicolon.
        QVERIFY2(!text.isEmpty(), qPrintable(message.source));
        QCOMPARE(text, text.simplified());
    }
}

void tst_TranslationSources::text_keepsTheCodesOfTheEnglishText_data()
{
    addLanguages();
}

void tst_TranslationSources::text_keepsTheCodesOfTheEnglishText()
{
    const QMap<QString, QString> english = englishTexts(u"ElaborationType"_s);
    QCOMPARE(codes(english[u"BilevelHT45Cell7"_s]), u"45° C7"_s);
    for (const Message &message : read(u"ElaborationType"_s, suffix()).messages)
        QCOMPARE(codes(message.translation), codes(english[message.source]));
}

void tst_TranslationSources::text_differsInCodesOnlyWhereTheEnglishTextDoes_data()
{
    addLanguages();
}

void tst_TranslationSources::text_differsInCodesOnlyWhereTheEnglishTextDoes()
{
    QMap<QString, QString> terms; // By the English term, of all catalogues together.
    for (const QString &catalogue : kEnumerations.keys()) {
        const QMap<QString, QString> english = englishTexts(catalogue);
        for (const Message &message : read(catalogue, suffix()).messages) {
            const QString term = withoutCodes(message.translation);
            const QString key = withoutCodes(english.value(message.source, message.source));
            QCOMPARE(term, terms.value(key, term));
            terms.insert(key, term);
        }
    }
}

QTEST_GUILESS_MAIN(tst_TranslationSources)
#include "tst_TranslationSources.moc"
