// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The language in which the tool shows values: the option's, the environment's, or none.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::ToolFolder;
using Support::ToolRun;

namespace {

const QStringList kShowClasses{u"enums"_s, u"PrinterClass"_s};

/// What the tool shows beside the name of the first printer class, Inkjet.
QString shownIn(const ToolFolder &folder, const QStringList &options = {})
{
    const QString text = folder.run(kShowClasses + options).text();
    const QString line = text.section(u'\n', 1, 1).trimmed();
    return line.section(u"Inkjet"_s, 1).trimmed();
}

} // namespace

class tst_language : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void option_choosesTheLanguage_data();
    void option_choosesTheLanguage();
    void option_ofAnUnknownLanguageIsRefusedByEveryCommand();
    void environment_choosesTheLanguage_data();
    void environment_choosesTheLanguage();
    void environment_yieldsToTheOption();
    void enums_showsTextsBesideNames();
    void enums_showsTheNameWhereATextIsMissing();
    void enums_hasNoColumnWithoutTexts();
    void json_keepsNamesAndAddsTextsWhenAsked();
    void machines_areShownInTheLanguage();
    void machines_keepTheirNamesInJson();
};

void tst_language::option_choosesTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("its code") << u"it"_s << u"Industriali a getto d'inchiostro"_s;
    QTest::newRow("in capitals") << u"DE"_s << u"Industrielle Tintenstrahldrucker"_s;
    QTest::newRow("a locale") << u"fr_FR.UTF-8"_s << u"Industriels \u00E0 jet d'encre"_s;
    QTest::newRow("another country's") << u"pt-PT"_s << u"Industriais com jato de tinta"_s;
    QTest::newRow("of three letters") << u"tlh"_s << u"industrial inkjet"_s;
    QTest::newRow("none") << u"C"_s << QString();
    QTest::newRow("none, with an encoding") << u"C.UTF-8"_s << QString();
    QTest::newRow("none, by its other name") << u"POSIX"_s << QString();
}

void tst_language::option_choosesTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, text);
    const ToolFolder folder;
    QCOMPARE(shownIn(folder, {u"--lang"_s, language}), text);
}

void tst_language::option_ofAnUnknownLanguageIsRefusedByEveryCommand()
{
    const ToolFolder folder;
    for (const auto &language : {u"xx"_s, u"ja_JP.UTF-8"_s, u""_s, u"it it"_s, u"../it"_s}) {
        for (const auto &command : {u"enums"_s, u"info"_s, u"list"_s}) {
            const ToolRun run = folder.run({u"--lang"_s, language, command});
            VERIFY_CODE(run, 2);
            QVERIFY(run.out.isEmpty());
            QVERIFY2(run.messages().contains(u"there are no texts in '%1'"_s.arg(language)),
                     run.err.constData());
            QVERIFY2(run.messages().contains(u"bg, cs, de, en, es, fr, it, nl, pl, pt, ru, sv, "
                                             "tlh, tr, zh"_s),
                     run.err.constData());
        }
    }
}

void tst_language::environment_choosesTheLanguage_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<QString>("text");
    const QString italian = u"Industriali a getto d'inchiostro"_s;
    QTest::newRow("LANG") << QStringList{u"LC_ALL="_s, u"LANG=it_IT.UTF-8"_s} << italian;
    QTest::newRow("LC_MESSAGES before LANG")
        << QStringList{u"LC_ALL="_s, u"LC_MESSAGES=it_IT.UTF-8"_s, u"LANG=C.UTF-8"_s} << italian;
    QTest::newRow("LC_ALL before all")
        << QStringList{u"LC_ALL=it_CH"_s, u"LC_MESSAGES=de_CH"_s, u"LANG=fr_CH"_s} << italian;
    QTest::newRow("C: the names") << QStringList{u"LC_ALL=C.UTF-8"_s, u"LANG=it_IT.UTF-8"_s}
                                  << QString();
    QTest::newRow("a language without texts: the names")
        << QStringList{u"LC_ALL=ja_JP.UTF-8"_s} << QString();
    QTest::newRow("no variable: the names") << QStringList{u"LC_ALL="_s} << QString();
}

void tst_language::environment_choosesTheLanguage()
{
    QFETCH(const QStringList, variables);
    QFETCH(const QString, text);
    ToolFolder folder;
    for (const QString &variable : variables)
        folder.setEnvironment(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    QCOMPARE(shownIn(folder), text);
}

void tst_language::environment_yieldsToTheOption()
{
    ToolFolder folder;
    folder.setEnvironment(u"LC_ALL"_s, u"it_IT.UTF-8"_s);
    QCOMPARE(shownIn(folder, {u"--lang=tr"_s}), u"End\u00FCstriyel ink-jet"_s);
    QCOMPARE(shownIn(folder, {u"--lang=C"_s}), QString());
}

void tst_language::enums_showsTextsBesideNames()
{
    const ToolRun run = ToolFolder().run({u"enums"_s, u"PrinterClass"_s, u"--lang"_s, u"it"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(),
             u"NUMBER  NAME      TEXT\n"
             "     0  Inkjet    Industriali a getto d'inchiostro\n"
             "     1  Plotter   Plotter\n"
             "     2  Engraver  Incisori laser\n"
             "     3  Dryjet    Industriali a secco\n"
             "     4  Develop   Sviluppo\n"
             "     5  Unknown   Sconosciuto\n"_s);
}

void tst_language::enums_showsTheNameWhereATextIsMissing()
{
    const ToolRun run = ToolFolder().run({u"enums"_s, u"LevelManagement"_s, u"--lang=de"_s});
    QVERIFY2(run.text().contains(u"TetraL3Masking  TetraL3Masking\n"_s), run.out.constData());
}

void tst_language::enums_hasNoColumnWithoutTexts()
{
    const ToolFolder folder;
    const QStringList command{u"enums"_s, u"Channel"_s};
    QCOMPARE(folder.run(command + QStringList{u"--lang=it"_s}).out, folder.run(command).out);
}

void tst_language::json_keepsNamesAndAddsTextsWhenAsked()
{
    ToolFolder folder;
    folder.setEnvironment(u"LC_ALL"_s, u"it_IT.UTF-8"_s);
    const QStringList command{u"enums"_s, u"PrinterClass"_s, u"--json"_s};
    const QJsonObject first = folder.run(command).object()["values"_L1][2].toObject();
    QCOMPARE(first["name"_L1].toString(), u"Engraver"_s);
    QVERIFY(!first.contains("text"_L1));
    const QJsonObject asked =
        folder.run(command + QStringList{u"--lang=it"_s}).object()["values"_L1][2].toObject();
    QCOMPARE(asked["name"_L1].toString(), u"Engraver"_s);
    QCOMPARE(asked["text"_L1].toString(), u"Incisori laser"_s);
}

void tst_language::machines_areShownInTheLanguage()
{
    const ToolFolder folder;
    VERIFY_CODE(folder.run({u"import"_s, folder.write(u"a.json"_s, Support::printerJson(u"A"_s))}),
                0);
    const auto shown = [&folder](const QStringList &command, const QString &language) {
        return folder.run(command + QStringList{u"--lang"_s, language}).text();
    };
    for (const QStringList &command :
         {QStringList{u"list"_s}, QStringList{u"query"_s, u"--class"_s, u"Inkjet"_s},
          QStringList{u"show"_s, u"A"_s}}) {
        const QString italian = shown(command, u"it"_s);
        QVERIFY2(italian.contains(u"Industriali a getto d'inchiostro"_s), qPrintable(italian));
        QVERIFY2(!italian.contains(u"Inkjet"_s), qPrintable(italian));
        QVERIFY(shown(command, u"C"_s).contains(u"Inkjet"_s));
    }
    const QString sheet = shown({u"show"_s, u"A"_s}, u"it"_s);
    QVERIFY2(sheet.contains(u"Binario"_s) && !sheet.contains(u"Binary"_s), qPrintable(sheet));
}

void tst_language::machines_keepTheirNamesInJson()
{
    const ToolFolder folder;
    VERIFY_CODE(folder.run({u"import"_s, folder.write(u"a.json"_s, Support::printerJson(u"A"_s))}),
                0);
    for (const QStringList &command :
         {QStringList{u"list"_s, u"--json"_s}, QStringList{u"show"_s, u"A"_s, u"--json"_s},
          QStringList{u"export"_s}}) {
        QCOMPARE(folder.run(command + QStringList{u"--lang=it"_s}).out, folder.run(command).out);
    }
}

QTEST_GUILESS_MAIN(tst_language)
#include "tst_language.moc"
