// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QJsonArray>
#include <QtCore/QRandomGenerator>

#include <cmath>
#include <limits>

// Makers of driver records. None of them needs a GUI.

namespace Support {

using namespace Qt::StringLiterals;
using Norvane::Channel;
using Norvane::Hardware::VDeviceConfig;
using Norvane::Imaging::ResolutionUnit;
using Norvane::Imaging::VResolution;
using Norvane::Kilnjet::ElaborationType;
using Norvane::Kilnjet::LevelManagement;
using Norvane::Kilnjet::PrinterClass;
using Norvane::Kilnjet::PrinterFacesMode;
using Norvane::Kilnjet::PrinterFileCompression;
using Norvane::Kilnjet::PrinterFileProtection;
using Norvane::Kilnjet::VElaborationDriver;
using Norvane::Kilnjet::VMagnificationLimits;
using Norvane::Kilnjet::VPrinterDriver;
using Norvane::Kilnjet::VPrintUnitDriver;

/// The record's own object inside its envelope.
inline QJsonObject innerOf(const VDeviceConfig &config)
{
    return config.toJsonObject().value("config"_L1).toObject();
}

/// Has `config` read `inner` as its own object; the envelope stays what it is.
inline bool setInner(VDeviceConfig &config, const QJsonObject &inner)
{
    QJsonObject envelope = config.toJsonObject();
    envelope.insert("config"_L1, inner);
    return config.setJsonObject(envelope);
}

/// A valid elaboration.
inline VElaborationDriver elaboration(const QUuid &deviceId = QUuid::createUuid())
{
    VElaborationDriver driver(deviceId);
    driver.setElaborationType(ElaborationType::TetralevelBlueMask);
    driver.setLevelManagementList({LevelManagement::Legacy});
    driver.setResolutionList({VResolution(400, 360)});
    return driver;
}

/// A print unit with four inks.
inline VPrintUnitDriver printUnit(const QUuid &deviceId = QUuid::createUuid())
{
    VPrintUnitDriver driver(deviceId);
    driver.setChannels({Channel::Cyan, Channel::Brown, Channel::Yellow, Channel::Black});
    return driver;
}

/// A valid printer with a print unit and an elaboration, and no icon; the same for the same id.
inline VPrinterDriver validPrinter(const QUuid &deviceId = QUuid::createUuid())
{
    VPrinterDriver driver(deviceId);
    driver.setName(u"Printer"_s);
    driver.setPrinterClass(PrinterClass::Inkjet);
    driver.setFacesMode(PrinterFacesMode::Basic);
    driver.setMaximumFaces(4);
    VPrintUnitDriver unit = printUnit(QUuid::createUuidV5(deviceId, u"unit"_s));
    driver.insert(&unit, false);
    VElaborationDriver method = elaboration(QUuid::createUuidV5(deviceId, u"elaboration"_s));
    driver.insert(&method, false);
    return driver;
}

/// Random records: every field takes any value that has a stored form.
class RandomDrivers
{
public:
    explicit RandomDrivers(quint32 seed)
        : m_random(seed)
    { }

    /// A number below `bound`.
    int number(int bound) { return m_random.bounded(bound); }
    bool flag() { return number(2) != 0; }

    QUuid uuid()
    {
        quint32 words[4];
        m_random.fillRange(words);
        return QUuid::fromRfc4122(QByteArrayView(reinterpret_cast<const char *>(words), 16));
    }

    QString text()
    {
        static const char32_t kLetters[] =
            U"aZ09 \"\\/%{}[],:;\n\t\u0000\u0001\u007fé\u00a0ßЖ中文字\u202e\ufeff\U0001F3ED";
        QString text;
        for (int i = number(12); i > 0; --i) {
            const char32_t letter = kLetters[number(int(std::size(kLetters)) - 1)];
            text += QString::fromUcs4(&letter, 1);
        }
        return text;
    }

    /// Any double, as JSON gives it back: it has no negative zero, infinity or NaN.
    double real()
    {
        static const double kReals[] = {0.0,   1.0,    -1.5,      0.1,
                                        1e308, 5e-324, 1.0 / 3.0, -std::ldexp(1.0, 60)};
        return flag() ? kReals[number(int(std::size(kReals)))] : m_random.generateDouble() * 100;
    }

    VPrintUnitDriver printUnit()
    {
        VPrintUnitDriver driver(uuid());
        fillBase(driver);
        QList<Channel> channels;
        for (int i = number(12); i > 0; --i)
            channels.append(Channel(number(81)));
        driver.setChannels(channels);
        driver.setCustomHorizontalResolution(flag());
        driver.setCustomVerticalResolution(flag());
        return driver;
    }

    VElaborationDriver elaboration()
    {
        static const LevelManagement kModes[] = {
            LevelManagement::None,           LevelManagement::Legacy,
            LevelManagement::Fixed,          LevelManagement::Dynamic,
            LevelManagement::Binary,         LevelManagement::Trilevel,
            LevelManagement::TetraL3Masking, LevelManagement::HexaGrayscale};
        VElaborationDriver driver(uuid());
        fillBase(driver);
        driver.setElaborationType(ElaborationType(number(84)));
        driver.setAllowOnlineElaboration(flag());
        driver.setPrefered(flag());
        driver.setMagnification({real(), real()});
        QList<LevelManagement> modes;
        for (int i = number(5); i > 0; --i)
            modes.append(kModes[number(int(std::size(kModes)))]);
        driver.setLevelManagementList(modes);
        QList<double> ratios;
        for (int i = number(5); i > 0; --i)
            ratios.append(real());
        driver.setScrollRatioList(ratios);
        QList<VResolution> resolutions;
        for (int i = number(4); i > 0; --i)
            resolutions.append(VResolution(real(), real(), ResolutionUnit(number(3))));
        driver.setResolutionList(resolutions);
        return driver;
    }

    /// With up to five children, and no icon.
    VPrinterDriver printer()
    {
        static const PrinterFileCompression kCompressions[] = {
            PrinterFileCompression::None, PrinterFileCompression::Lz4,
            PrinterFileCompression::ZipOnline,
            PrinterFileCompression::Rle | PrinterFileCompression::Lzw};
        static const PrinterFileProtection kProtections[] = {
            PrinterFileProtection::None, PrinterFileProtection::Obfuscation,
            PrinterFileProtection::ObfuscationOnline};
        VPrinterDriver driver(uuid());
        fillBase(driver);
        driver.setPrinterClass(PrinterClass(number(6)));
        driver.setFacesMode(PrinterFacesMode(number(3)));
        driver.setFileCompression(kCompressions[number(int(std::size(kCompressions)))]);
        driver.setFileProtection(kProtections[number(int(std::size(kProtections)))]);
        driver.setMaximumFaces(int(m_random.generate()));
        driver.setMaximumImageBytes(qint64(m_random.generate64()));
        driver.setOnlineElaboration(flag());
        driver.setOnlineLinearizations(flag());
        driver.setExperimental(flag());
        for (int i = number(6); i > 0; --i) {
            if (flag())
                driver.insert(std::make_unique<VPrintUnitDriver>(printUnit()).get(), false);
            else
                driver.insert(std::make_unique<VElaborationDriver>(elaboration()).get(), false);
        }
        return driver;
    }

private:
    void fillBase(VDeviceConfig &driver)
    {
        driver.setName(text());
        driver.setDescription(text());
        if (flag())
            driver.setVersion(Norvane::VVersion(number(256), number(256), number(256)));
        if (flag())
            driver.setDateTime(QDateTime::fromMSecsSinceEpoch(qint64(m_random.generate()) * 977));
    }

    QRandomGenerator m_random;
};

} // namespace Support
