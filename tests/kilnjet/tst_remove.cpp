// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// remove: all that were named, or none.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_remove : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void machines_areRemoved();
    void aMachineNamedTwice_isRemovedOnce();
    void oneNotFound_removesNone();
    void anAmbiguousName_removesNone();
    void json_listsWhatIsGone();

private:
    QStringList names() const;

    std::unique_ptr<Support::ToolFolder> m_folder;
};

void tst_remove::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
    const QJsonArray records{printerJson(u"A"_s), printerJson(u"B"_s), printerJson(u"C"_s),
                             Support::with(printerJson(u"D"_s), u"/name"_s, u"C"_s)};
    VERIFY_CODE(m_folder->run({u"import"_s, m_folder->write(u"in.json"_s, records)}), 0);
}

QStringList tst_remove::names() const
{
    QStringList names;
    for (const QJsonValue &machine : m_folder->run({u"list"_s, u"--json"_s}).array())
        names.append(machine["name"_L1].toString());
    return names;
}

void tst_remove::machines_areRemoved()
{
    const QString id = Support::idOfPrinterJson(u"B"_s);
    const ToolRun run = m_folder->run({u"remove"_s, u"A"_s, id});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(),
             u"removed %1 'A'\nremoved %2 'B'\n"_s.arg(Support::idOfPrinterJson(u"A"_s), id));
    QCOMPARE(names(), QStringList({u"C"_s, u"C"_s}));
    VERIFY_CODE(m_folder->run({u"verify"_s}), 0);
}

void tst_remove::aMachineNamedTwice_isRemovedOnce()
{
    const ToolRun run =
        m_folder->run({u"remove"_s, u"A"_s, u"a"_s, Support::idOfPrinterJson(u"A"_s)});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text().count(u'\n'), 1);
    QCOMPARE(names(), QStringList({u"B"_s, u"C"_s, u"C"_s}));
}

void tst_remove::oneNotFound_removesNone()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    const ToolRun run = m_folder->run({u"remove"_s, u"A"_s, u"Z"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

void tst_remove::anAmbiguousName_removesNone()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    const ToolRun run = m_folder->run({u"remove"_s, u"C"_s});
    VERIFY_CODE(run, 1);
    for (const QString &name : {u"C"_s, u"D"_s})
        QVERIFY2(run.messages().contains(Support::idOfPrinterJson(name)), run.err.constData());
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
}

void tst_remove::json_listsWhatIsGone()
{
    const ToolRun run = m_folder->run({u"remove"_s, u"A"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    const QJsonObject entry{{u"id"_s, Support::idOfPrinterJson(u"A"_s)}, {u"name"_s, u"A"_s}};
    QCOMPARE(run.object(), QJsonObject({{u"removed"_s, QJsonArray{entry}}}));
}

QTEST_GUILESS_MAIN(tst_remove)
#include "tst_remove.moc"
