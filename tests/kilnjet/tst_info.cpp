// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// info: what the library is, and what it carries.

#include "support/Tool.h"

#include <kilnjet/VKilnjetInfo.h>
#include <vcore/VEnumRegistry.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Support::ToolFolder;
using Support::ToolRun;

class tst_info : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void json_saysWhatTheLibraryIs();
    void json_countsWhatTheLibraryCarries();
    void text_saysTheSame();
    void noDatabase_isNeeded();
};

void tst_info::json_saysWhatTheLibraryIs()
{
    const ToolRun run = ToolFolder().run({u"info"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    const QJsonObject info = run.object();
    QCOMPARE(info["name"_L1].toString(), VKilnjetInfo::moduleName());
    QCOMPARE(info["title"_L1].toString(), VKilnjetInfo::title());
    QCOMPARE(info["description"_L1].toString(), VKilnjetInfo::description());
    QCOMPARE(info["version"_L1].toString(), VKilnjetInfo::version().toString());
    QCOMPARE(info["build"_L1].toInt(), int(VKilnjetInfo::build()));
    QCOMPARE(info["company"_L1].toString(), VKilnjetInfo::company());
    QCOMPARE(info["copyright"_L1].toString(), VKilnjetInfo::copyright());
    QCOMPARE(info["qtVersion"_L1].toString(), QString::fromLatin1(qVersion()));
    QCOMPARE(info["fileFormat"_L1].toInt(), 1);
}

void tst_info::json_countsWhatTheLibraryCarries()
{
    const QJsonObject info = ToolFolder().run({u"info"_s, u"--json"_s}).object();
    QCOMPARE(info["enumerations"_L1].toInt(), int(VEnumRegistry::names().size()));
    QCOMPARE(info["languages"_L1].toArray(),
             QJsonArray({u"bg"_s, u"cs"_s, u"de"_s, u"en"_s, u"es"_s, u"fr"_s, u"it"_s, u"nl"_s,
                         u"pl"_s, u"pt"_s, u"ru"_s, u"sv"_s, u"tlh"_s, u"tr"_s, u"zh"_s}));
    QCOMPARE(info["catalogues"_L1].toInt(), 3);
    QCOMPARE(info["texts"_L1].toInt(), 15 * 6 + (2 * 12 + 13 * 11) + (2 * 84 + 12 * 79 + 75));
    QCOMPARE(info["screeningFiles"_L1].toInt(), 72);
    QVERIFY(info["screeningBytes"_L1].toInt() > 72 * 4);
}

void tst_info::text_saysTheSame()
{
    const ToolRun run = ToolFolder().run({u"info"_s});
    VERIFY_CODE(run, 0);
    const QString text = run.text();
    QVERIFY2(text.startsWith(u"vkilnjet 2.0.12, build 1\nCommon Framework Library\n"_s),
             run.out.constData());
    QVERIFY2(text.contains(u"Display texts     1448, for 3 enumerations in 15 languages\n"_s),
             run.out.constData());
    QVERIFY2(text.contains(u"Screening files   72 ("_s), run.out.constData());
}

void tst_info::noDatabase_isNeeded()
{
    VERIFY_CODE(ToolFolder().run({u"--db=nowhere/x.tdb"_s, u"info"_s}), 0);
}

QTEST_GUILESS_MAIN(tst_info)
#include "tst_info.moc"
