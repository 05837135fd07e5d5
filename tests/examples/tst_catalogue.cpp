// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The sample catalogue says what the reader understands: every key, name and image of every file
// survives reading and writing.

#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>

#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString &file)
{
    QFile source(QDir(QStringLiteral(CATALOGUE)).filePath(file));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

std::unique_ptr<VPrinterDriver> driverOf(const QString &file)
{
    std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> config(
        Hardware::VDeviceConfig::fromJson(bytesOf(file)));
    auto *driver = dynamic_cast<VPrinterDriver *>(config.get());
    if (driver)
        static_cast<void>(config.release());
    return std::unique_ptr<VPrinterDriver>(driver);
}

QStringList files()
{
    return QDir(QStringLiteral(CATALOGUE)).entryList({u"*.json"_s}, QDir::Files, QDir::Name);
}

/// The envelope of a machine without its icon: processors round the colours of transparent pixels
/// differently when an image is written anew.
QJsonObject withoutImages(QJsonObject envelope)
{
    QJsonObject config = envelope.value("config"_L1).toObject();
    config.remove("icon"_L1);
    envelope.insert("config"_L1, config);
    return envelope;
}

} // namespace

class tst_catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFile_isAValidDriverOfTheCurrentFormat_data() { addFiles(); }
    void everyFile_isAValidDriverOfTheCurrentFormat();
    void everyFile_isWrittenBackAsItCame_data() { addFiles(); }
    void everyFile_isWrittenBackAsItCame();
    void theFiles_haveContentIdsOfTheirOwn();
    void theFiles_coverEveryClassOfMachine();
    void theFiles_surviveADatabase();
    void theLegacyMachine_keepsTheContentIdOfItsFormat();

private:
    static void addFiles();
};

void tst_catalogue::addFiles()
{
    QTest::addColumn<QString>("file");
    for (const QString &file : files())
        QTest::newRow(qPrintable(file)) << file;
}

void tst_catalogue::everyFile_isAValidDriverOfTheCurrentFormat()
{
    QFETCH(QString, file);
    const auto driver = driverOf(file);
    QVERIFY(driver);
    QVERIFY(driver->isValid());
    QCOMPARE(driver->version(), VPrinterDriver().version());
    QVERIFY(!driver->name().isEmpty());
    for (auto *child : driver->values(QUuid()))
        QVERIFY2(child->isValid(), qPrintable(child->name()));
}

// A misspelt key would be dropped and a misspelt name would turn into the value 0: both show here.
void tst_catalogue::everyFile_isWrittenBackAsItCame()
{
    QFETCH(QString, file);
    const auto driver = driverOf(file);
    QVERIFY(driver);
    const QJsonObject stored = QJsonDocument::fromJson(bytesOf(file)).object();
    const QJsonObject written = driver->toJsonObject();
    QCOMPARE(QJsonDocument(withoutImages(written)).toJson(),
             QJsonDocument(withoutImages(stored)).toJson());
    QCOMPARE(written.value("config"_L1)["icon"_L1].toArray().size(),
             stored.value("config"_L1)["icon"_L1].toArray().size());
}

void tst_catalogue::theFiles_haveContentIdsOfTheirOwn()
{
    QSet<QUuid> ids;
    for (const QString &file : files()) {
        const auto driver = driverOf(file);
        QVERIFY(driver);
        ids.insert(driver->dataId());
    }
    QCOMPARE(ids.size(), files().size());
    QVERIFY(ids.size() >= 14);
}

void tst_catalogue::theFiles_coverEveryClassOfMachine()
{
    QSet<PrinterClass> classes;
    for (const QString &file : files()) {
        const auto driver = driverOf(file);
        QVERIFY(driver);
        classes.insert(driver->printerClass());
    }
    const QSet<PrinterClass> expected{PrinterClass::Inkjet, PrinterClass::Plotter,
                                      PrinterClass::Engraver, PrinterClass::Dryjet,
                                      PrinterClass::Develop};
    QCOMPARE(classes, expected);
}

void tst_catalogue::theFiles_surviveADatabase()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(VPrintersDb::defaultFilename());
    {
        VPrintersDb db(path, u"key"_s);
        db.init(false);
        for (const QString &file : files()) {
            const auto driver = driverOf(file);
            QVERIFY(driver);
            db.insert(*driver);
        }
        db.commit();
        QVERIFY(!db.isDirty());
    }
    VPrintersDb db(path, u"key"_s);
    db.init(false);
    QCOMPARE(db.count(), int(files().size()));
    for (const QString &file : files()) {
        const auto driver = driverOf(file);
        QVERIFY(driver);
        QCOMPARE(db.value(driver->dataId()).toJsonObject(), driver->toJsonObject());
    }
}

void tst_catalogue::theLegacyMachine_keepsTheContentIdOfItsFormat()
{
    const auto driver = driverOf(u"inkjet-04-legacy.json"_s);
    QVERIFY(driver);
    auto *unit = dynamic_cast<VPrintUnitDriver *>(driver->values(VPrintUnitDriver().id()).value(0));
    QVERIFY(unit);
    QCOMPARE(unit->version(), VVersion(1, 0, 0));
    QCOMPARE(unit->dataId(), QUuid::createUuidV5(unit->deviceId(), u"Black;Blue;Beige;Brown"_s));
}

QTEST_GUILESS_MAIN(tst_catalogue)
#include "tst_catalogue.moc"
