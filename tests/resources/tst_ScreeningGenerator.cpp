// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What the generator of the screening files writes, on this machine, is what stands beside it.

#include "resources/ScreeningFiles.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Screening;

class tst_ScreeningGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFiles_areWhatTheGeneratorWrites();
};

void tst_ScreeningGenerator::theFiles_areWhatTheGeneratorWrites()
{
    const QTemporaryDir output;
    QProcess python;
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start(u"/usr/bin/python3"_s,
                 {u"-I"_s, folder().filePath(u"generate.py"_s), output.path()});
    QVERIFY2(python.waitForStarted(), "/usr/bin/python3 does not start: install Debian's python3");
    QVERIFY(python.waitForFinished(120'000));
    QVERIFY2(python.exitStatus() == QProcess::NormalExit && python.exitCode() == 0,
             python.readAll().constData());

    QCOMPARE(files(output.path(), {u"*"_s}), files(folder(), {u"*.ht3"_s, u"*.ht"_s, u"*.tif"_s}));
    const QStringList paths = cells() + patterns();
    for (const QString &path : paths) {
        QFile file(output.filePath(path));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
        QVERIFY2(file.readAll() == bytesOf(path), qPrintable(path));
    }
}

QTEST_GUILESS_MAIN(tst_ScreeningGenerator)
#include "tst_ScreeningGenerator.moc"
