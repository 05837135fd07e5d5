// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"

#include "Icons.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QRandomGenerator>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Norvane::Imaging::ResolutionUnit;
using Norvane::Imaging::VResolution;

namespace Bench {

namespace {

constexpr const char16_t *kMakes[] = {u"Línea", u"Decoline",   u"Rotadeco", u"Serigrafía 700",
                                      u"Onda",  u"Großformat", u"Pressa",   u"Tilemaster"};
constexpr const char16_t *kSites[] = {u"nave norte", u"Werk 2", u"hall B",   u"Fiorano",
                                      u"Onda, 3ª",   u"kiln 7", u"Sassuolo", u"pilot plant"};
constexpr const char16_t *kUnits[] = {u"Process colours, first bar", u"Effects and glue, rear bar"};
constexpr const char16_t *kMethods[] = {u"Photographic, stochastic", u"Marble, blue mask",
                                        u"Wood, nearest level",      u"Relief, ordered cell",
                                        u"Proof at half speed",      u"Effects, sixteen levels"};
constexpr const char16_t *kNotes[] = {
    u"Measured on the reference body at 1180 °C; check the profile after a change of glaze.",
    u"For line drawings and lettering, where edges matter more than smooth transitions.",
    u"Keeps flat areas calm; needs the recirculating heads of the second generation.",
    u"Use it below 25 m/min only, and clean the heads before a change of the body."};

constexpr ElaborationType kTypes[] = {
    ElaborationType::TetralevelStochasticGrow, ElaborationType::TetralevelBlueMask1024,
    ElaborationType::HexalevelNearestHI2,      ElaborationType::TetralevelOrdered,
    ElaborationType::BilevelHT45Cell7Diamond,  ElaborationType::HexaWithTetralevelStochastic};
constexpr LevelManagement kModes[] = {
    LevelManagement::Legacy,   LevelManagement::Fixed,         LevelManagement::Dynamic,
    LevelManagement::Trilevel, LevelManagement::OctaGrayscale, LevelManagement::HexaGrayscale};
constexpr Channel kInks[] = {Channel::Cyan,   Channel::Brown,     Channel::Yellow, Channel::Black,
                             Channel::Beige,  Channel::Magenta,   Channel::Ocher,  Channel::Pink,
                             Channel::Sinker, Channel::Turquoise, Channel::Green,  Channel::Blue};
constexpr Channel kEffects[] = {
    Channel::Glue, Channel::Matt, Channel::Glossy,     Channel::Luster, Channel::White,
    Channel::Frit, Channel::Gold, Channel::Metallized, Channel::Sinker, Channel::Vision};
constexpr int kSpeeds[] = {360, 400, 600, 720};

/// Makes the driver of one number.
class Maker
{
public:
    Maker(quint32 seed, int number)
        : m_random({seed, quint32(number)})
        , m_number(number)
    { }

    VPrinterDriver driver()
    {
        VPrinterDriver driver(uuid());
        const QString make = pick(kMakes);
        const QString site = pick(kSites);
        driver.setName(u"%1 %2, %3"_s.arg(make, QString::number(m_number + 1), site));
        driver.setDescription(u"%1 Revision 0000."_s.arg(pick(kNotes)));
        driver.setDateTime(date());
        driver.setPrinterClass(number(4) ? PrinterClass::Inkjet : PrinterClass::Dryjet);
        driver.setFacesMode(number(2) ? PrinterFacesMode::Basic : PrinterFacesMode::Advanced);
        driver.setMaximumFaces(4 << number(5));
        driver.setMaximumImageBytes(qint64(1) << (30 + number(5)));
        driver.setFileCompression(PrinterFileCompression::Lz4Online);
        driver.setFileProtection(PrinterFileProtection::Obfuscation);
        driver.setOnlineElaboration(number(2));
        driver.setOnlineLinearizations(number(2));
        driver.setExperimental(!number(10));
        for (int i = 0; i < int(std::size(kUnits)); ++i)
            driver.insert(printUnit(i).release(), true);
        for (int i = 0; i < int(std::size(kMethods)); ++i)
            driver.insert(elaboration(i).release(), true);
        return driver;
    }

private:
    int number(int bound) { return m_random.bounded(bound); }

    template<std::size_t N>
    QString pick(const char16_t *const (&texts)[N])
    {
        return QString::fromUtf16(texts[number(int(N))]);
    }

    /// `count` neighbours of a table, from a random one on.
    template<typename T, std::size_t N>
    QList<T> some(const T (&table)[N], int count)
    {
        QList<T> list;
        const int first = number(int(N));
        for (int i = 0; i < count; ++i)
            list.append(table[(first + i) % int(N)]);
        return list;
    }

    QUuid uuid()
    {
        quint32 words[4];
        m_random.fillRange(words);
        QUuid id = QUuid::fromRfc4122(QByteArrayView(reinterpret_cast<const char *>(words), 16));
        // As createUuid() marks its own: random, of the common layout.
        id.data3 = ushort((id.data3 & 0x0FFF) | 0x4000);
        id.data4[0] = uchar((id.data4[0] & 0x3F) | 0x80);
        return id;
    }

    QDateTime date()
    {
        const QDateTime start(QDate(2019, 1, 1), QTime(6, 0), Qt::UTC);
        return start.addSecs(qint64(number(7 * 365 * 24)) * 3'600);
    }

    std::unique_ptr<VPrintUnitDriver> printUnit(int index)
    {
        auto unit = std::make_unique<VPrintUnitDriver>(uuid());
        unit->setName(QString::fromUtf16(kUnits[index]));
        unit->setDescription(pick(kNotes));
        unit->setDateTime(date());
        unit->setChannels(index ? some(kEffects, 5) : some(kInks, 7));
        unit->setCustomHorizontalResolution(number(2));
        unit->setCustomVerticalResolution(number(2));
        return unit;
    }

    std::unique_ptr<VElaborationDriver> elaboration(int index)
    {
        auto method = std::make_unique<VElaborationDriver>(uuid());
        method->setName(QString::fromUtf16(kMethods[index]));
        method->setDescription(pick(kNotes));
        method->setElaborationType(kTypes[index]);
        method->setLevelManagementList(some(kModes, 2 + number(2)));
        QList<VResolution> resolutions;
        for (const int speed : some(kSpeeds, 2))
            resolutions.append(VResolution(400, speed, ResolutionUnit::DPI));
        method->setResolutionList(resolutions);
        method->setScrollRatioList({1, 0.5, 1.0 / (3 + number(6))});
        method->setMagnification({0.5, 2 + number(8) * 0.25});
        method->setAllowOnlineElaboration(number(2));
        method->setPrefered(index == 0);
        return method;
    }

    QRandomGenerator m_random;
    int m_number;
};

/// What stands in a driver's own JSON for the icon.
QJsonValue iconJson(Variant variant, int number)
{
    if (variant == Variant::Svg)
        return QString::fromLatin1(qCompress(svgIcon(number)).toBase64());
    QJsonArray images;
    for (const QByteArray &image : pngIcon(number))
        images.append(QJsonObject{{"format"_L1, u"png"_s},
                                  {"data"_L1, QString::fromLatin1(image.toBase64())}});
    return images;
}

} // namespace

QString nameOf(Variant variant)
{
    constexpr const char16_t *kNames[] = {u"plain", u"png", u"svg"};
    return QString::fromUtf16(kNames[int(variant)]);
}

std::optional<Variant> variantFrom(const QString &name)
{
    for (const Variant variant : {Variant::Plain, Variant::Png, Variant::Svg}) {
        if (nameOf(variant) == name)
            return variant;
    }
    return std::nullopt;
}

Drivers catalogue(int count, Variant variant, quint32 seed)
{
    QList<QJsonValue> icons;
    for (int i = 0; variant != Variant::Plain && i < kIcons; ++i)
        icons.append(iconJson(variant, i));
    Drivers drivers;
    drivers.reserve(count);
    for (int i = 0; i < count; ++i) {
        VPrinterDriver driver = Maker(seed, i).driver();
        if (!icons.isEmpty()) {
            // As a driver that comes from a file; to set a QIcon would take a GUI.
            QJsonObject envelope = driver.toJsonObject();
            QJsonObject config = envelope.value("config"_L1).toObject();
            config.insert(variant == Variant::Svg ? "svgIcon"_L1 : "icon"_L1, icons[i % kIcons]);
            envelope.insert("config"_L1, config);
            driver.setJsonObject(envelope);
        }
        drivers.append(driver);
    }
    return drivers;
}

} // namespace Bench
