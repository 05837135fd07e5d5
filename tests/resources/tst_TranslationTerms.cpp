// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The tables of terms beside the translation sources are what the sources say.

#include "resources/DisplayTexts.h"
#include "resources/TsFile.h"

#include <QtCore/QMap>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Texts::Message;

using Terms = QMap<QString, QString>; // By the English term.

class tst_TranslationTerms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tables_haveEveryLanguageButEnglish();
    void term_isInEveryTextThatHasItInEnglish_data();
    void term_isInEveryTextThatHasItInEnglish();

private:
    QMap<QString, Terms> m_languages;
};

namespace {

const QString kFolder = QStringLiteral(TRANSLATIONS) + u'/';
const QString kLeftOut = u"left out"_s;

/// The cells of a row of a Markdown table, without its outer bars.
QStringList cells(const QString &line)
{
    QStringList all;
    for (const QString &cell : line.split(u'|'))
        all.append(cell.trimmed().remove(u'`'));
    return all.mid(1, all.size() - 2);
}

Terms texts(const QString &language)
{
    Terms all;
    const QString path = kFolder + u"ElaborationType_"_s + language + u".ts"_s;
    for (const Message &message : Texts::readTsFile(path).messages)
        all.insert(message.source, message.translation);
    return all;
}

} // namespace

void tst_TranslationTerms::initTestCase()
{
    QFile page(kFolder + u"README.md"_s);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    QStringList head;
    for (const QString &line : text.mid(text.indexOf(u"## The terms"_s)).split(u'\n')) {
        const QStringList row = cells(line);
        if (row.size() < 2 || row[0].startsWith(u'-'))
            continue;
        if (row[0].isEmpty())
            head = row;
        QCOMPARE(row.size(), head.size());
        for (qsizetype i = 1; i < row.size() && !row[0].isEmpty(); ++i)
            m_languages[row[0]].insert(head[i], row[i]);
    }
}

void tst_TranslationTerms::tables_haveEveryLanguageButEnglish()
{
    QStringList expected;
    for (const Texts::Language &language : Texts::kLanguages)
        expected.append(QString::fromLatin1(language.suffix));
    expected.removeOne(u"en"_s);
    QCOMPARE(m_languages.keys(), expected);
    for (const Terms &terms : std::as_const(m_languages))
        QCOMPARE(terms.keys(), m_languages.first().keys());
}

void tst_TranslationTerms::term_isInEveryTextThatHasItInEnglish_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : m_languages.keys())
        QTest::newRow(qPrintable(language)) << language;
}

void tst_TranslationTerms::term_isInEveryTextThatHasItInEnglish()
{
    QFETCH(QString, language);
    const Terms english = texts(u"en"_s);
    const Terms translated = texts(language);
    const Terms &terms = m_languages[language];
    for (auto term = terms.begin(); term != terms.end(); ++term) {
        int found = 0;
        for (auto text = translated.begin(); text != translated.end(); ++text) {
            if (!english[text.key()].contains(term.key()))
                continue;
            ++found;
            QVERIFY2(text.value().contains(term.value(), Qt::CaseInsensitive),
                     qPrintable(term.value() + u" is not in "_s + text.value()));
        }
        QVERIFY2((found > 0) == (term.value() != kLeftOut), qPrintable(term.key()));
    }
}

QTEST_GUILESS_MAIN(tst_TranslationTerms)
#include "tst_TranslationTerms.moc"
