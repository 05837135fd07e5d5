// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/WebColor.h>

#include <QtGui/QColor>
#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_WebColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_areTheColoursThatQtKnowsByTheSameName();
    void names_missNoneThatQtKnows();
    void rebeccaPurple_isThere();
    void transparent_isZero();
    void aliases_areReadAsTheSameColour_data();
    void aliases_areReadAsTheSameColour();
    void numbers_serveAsQRgb();
};

void tst_WebColor::numbers_areTheColoursThatQtKnowsByTheSameName()
{
    const VEnumNames &names = WebColor_T::instance().names();
    int count = 0;
    for (const qint64 number : names.numbers()) {
        for (const QString &name : names.names(number)) {
            ++count;
            if (name == "RebeccaPurple"_L1)
                continue; // Younger than Qt's list.
            QCOMPARE(QColor(name).rgba(), QRgb(int(number)));
        }
    }
    QCOMPARE(count, 149);
    QCOMPARE(names.numbers().size(), 140);
}

void tst_WebColor::names_missNoneThatQtKnows()
{
    for (const QString &name : QColor::colorNames()) {
        bool ok = false;
        const int number = WebColor_T::instance().fromString(name, 1, Qt::CaseInsensitive, &ok);
        QVERIFY2(ok, qPrintable(name));
        QCOMPARE(QRgb(number), QColor(name).rgba());
    }
}

void tst_WebColor::rebeccaPurple_isThere()
{
    QCOMPARE(QColor(QRgb(WebColor::RebeccaPurple)), QColor(0x66, 0x33, 0x99));
    QCOMPARE(WebColor_T::instance().textOf(WebColor::RebeccaPurple), u"RebeccaPurple"_s);
}

// The value that an unknown name falls back to paints nothing.
void tst_WebColor::transparent_isZero()
{
    QCOMPARE(int(WebColor::Transparent), 0);
    QCOMPARE(WebColor_T::instance().valueOf(u"no colour"_s), WebColor::Transparent);
    QCOMPARE(WebColor_T::instance().textOf(WebColor::Black), u"Black"_s);
}

void tst_WebColor::aliases_areReadAsTheSameColour_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("alias");
    for (const auto &[written, alias] :
         std::initializer_list<std::pair<const char *, const char *>>{
             {"Aqua", "Cyan"},
             {"Fuchsia", "Magenta"},
             {"Gray", "Grey"},
             {"DarkGray", "DarkGrey"},
             {"DimGray", "DimGrey"},
             {"LightGray", "LightGrey"},
             {"SlateGray", "SlateGrey"},
             {"DarkSlateGray", "DarkSlateGrey"},
             {"LightSlateGray", "LightSlateGrey"}})
        QTest::newRow(alias) << QString::fromLatin1(written) << QString::fromLatin1(alias);
}

void tst_WebColor::aliases_areReadAsTheSameColour()
{
    QFETCH(const QString, written);
    QFETCH(const QString, alias);
    const WebColor_T &colors = WebColor_T::instance();
    QCOMPARE(colors.valueOf(alias), colors.valueOf(written));
    QCOMPARE(colors.textOf(colors.valueOf(alias)), written);
}

void tst_WebColor::numbers_serveAsQRgb()
{
    QCOMPARE(QColor::fromRgba(QRgb(WebColor::Tomato)), QColor(0xFF, 0x63, 0x47));
    QCOMPARE(QColor::fromRgba(QRgb(WebColor::Transparent)).alpha(), 0);
}

QTEST_GUILESS_MAIN(tst_WebColor)
#include "tst_WebColor.moc"
