// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The pages of the manual: there is one for each command, and they are sound.

#include "Command.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

class tst_manual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommand_hasAPage_data();
    void everyCommand_hasAPage();
    void noOtherPage_isThere();
    void thePages_areSound_data();
    void thePages_areSound();
    void theFormatPage_hasTheWholeText();
    void thePages_sayTheDayThatTheBuildNames();
};

namespace {

QString section(int number)
{
    return QStringLiteral(EXTRAS "/man/man") + QString::number(number) + u'/';
}

/// The page as a reader sees it, in lines without an end.
QString shown(const QString &path)
{
    QProcess mandoc;
    mandoc.start(u"mandoc"_s, {u"-T"_s, u"utf8"_s, u"-O"_s, u"width=1000"_s, path});
    mandoc.waitForFinished();
    QString text = QString::fromUtf8(mandoc.readAllStandardOutput());
    // Bold and italic letters are struck twice.
    return text.remove(QRegularExpression(u".\\x08"_s));
}

} // namespace

void tst_manual::everyCommand_hasAPage_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Tool::commandTable().size(); ++i)
        QTest::newRow(Tool::commandTable().at(i).name.data()) << i;
}

void tst_manual::everyCommand_hasAPage()
{
    QFETCH(int, index);
    const Tool::Command &command = Tool::commandTable().at(index);
    const QString page = shown(section(1) + u"kilnjet-%1.1"_s.arg(command.name));
    QVERIFY2(page.contains(command.summary.sliced(1)), qPrintable(page));
    for (const Tool::Operand &operand : command.operands)
        QVERIFY2(page.contains(operand.summary.sliced(1)), qPrintable(page));
    for (const Tool::Option &option : command.options + Tool::globalOptions()) {
        QVERIFY2(page.contains(option.name), qPrintable(page));
        QVERIFY2(page.contains(option.summary.sliced(1)), qPrintable(page));
    }
    for (const Tool::ExitMeaning &code : command.exitCodes)
        QVERIFY2(page.contains(code.meaning.sliced(1)), qPrintable(page));
    for (const Tool::Example &example : command.examples)
        QVERIFY2(page.contains(u"kilnjet "_s + example.line), qPrintable(page));
    const QString all = shown(section(1) + u"kilnjet.1"_s);
    QVERIFY2(all.contains(command.summary), qPrintable(all));
}

void tst_manual::noOtherPage_isThere()
{
    QCOMPARE(QDir(section(1)).entryList(QDir::Files).size(), Tool::commandTable().size() + 1);
    QCOMPARE(QDir(section(5)).entryList(QDir::Files), QStringList{u"kilnjet-format.5"_s});
}

void tst_manual::thePages_areSound_data()
{
    QTest::addColumn<QString>("path");
    for (const int number : {1, 5}) {
        for (const QString &page : QDir(section(number)).entryList(QDir::Files))
            QTest::newRow(qPrintable(page)) << section(number) + page;
    }
}

void tst_manual::thePages_areSound()
{
    QFETCH(QString, path);
    QProcess mandoc;
    mandoc.start(u"mandoc"_s, {u"-T"_s, u"lint"_s, path});
    QVERIFY2(mandoc.waitForStarted(), "install Debian's mandoc, or run ./dev test, which does");
    QVERIFY(mandoc.waitForFinished());
    QCOMPARE(QString::fromUtf8(mandoc.readAllStandardOutput()), QString());
    QCOMPARE(mandoc.exitCode(), 0);
}

// Word by word, but for marks and addresses.
void tst_manual::theFormatPage_hasTheWholeText()
{
    QFile source(QStringLiteral(DOCS "/file-format.md"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString page = shown(section(5) + u"kilnjet-format.5"_s).simplified();
    int words = 0;
    static const QRegularExpression word(u"[A-Za-z]{4,}"_s);
    QString text = QString::fromUtf8(source.readAll());
    text.remove(QRegularExpression(u"<!--.*?-->|\\]\\([^)]*\\)|^# .*$"_s,
                                   QRegularExpression::MultilineOption));
    for (auto matches = word.globalMatch(text); matches.hasNext(); ++words) {
        const QString one = matches.next().captured();
        QVERIFY2(page.contains(one, Qt::CaseInsensitive), qPrintable(one));
    }
    QVERIFY(words > 500);
}

// And no other: the same sources make the same pages on any day.
void tst_manual::thePages_sayTheDayThatTheBuildNames()
{
    const Support::ToolFolder folder;
    const QStringList arguments{folder.path(u"."_s), QStringLiteral(DOCS "/file-format.md"),
                                u"2001-02-03"_s};
    QCOMPARE(QProcess::execute(QStringLiteral(GENERATOR), arguments), 0);
    for (const int number : {1, 5}) {
        for (const QString &page : QDir(section(number)).entryList(QDir::Files)) {
            QByteArray bytes = folder.read(u"man/man%1/%2"_s.arg(QString::number(number), page));
            const QByteArray head = bytes.first(bytes.indexOf('\n'));
            QVERIFY2(head.contains(" 2001-02-03 \"kilnjet "), head.constData());
            QFile built(section(number) + page);
            QVERIFY(built.open(QIODevice::ReadOnly));
            QCOMPARE(bytes.replace("2001-02-03", BUILD_DATE), built.readAll());
        }
    }
}

QTEST_GUILESS_MAIN(tst_manual)
#include "tst_manual.moc"
