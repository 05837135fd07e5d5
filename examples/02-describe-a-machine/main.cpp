// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What a driver says: a machine with its limits, its print unit and a way to screen images for it;
// who owns what; when it is valid; and its JSON, there and back. No database is involved.
//
// It prints the machine, line by line:
//
//   Line 2 (Inkjet), up to 4 faces
//     a print unit of Cyan, Brown, Yellow, Black
//     screened by BilevelStandard at 400 x 400 DPI
//   valid: yes; as JSON: 1043 bytes, which read back are equal

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <vcore/VConvert.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

VPrinterDriver describe()
{
    // [describe]
    // The device id is the machine's own: make it once and keep it.
    VPrinterDriver printer(QUuid::createUuid());
    printer.setName(u"Line 2"_s);
    printer.setPrinterClass(PrinterClass::Inkjet);
    printer.setFacesMode(PrinterFacesMode::Basic);
    printer.setMaximumFaces(4);
    printer.setFileCompression(PrinterFileCompression::Zip | PrinterFileCompression::OnlineOnly);

    auto unit = std::make_unique<VPrintUnitDriver>(QUuid::createUuid());
    unit->setChannels({Channel::Cyan, Channel::Brown, Channel::Yellow, Channel::Black});

    auto screening = std::make_unique<VElaborationDriver>(QUuid::createUuid());
    screening->setElaborationType(ElaborationType::BilevelStandard);
    screening->setLevelManagementList({LevelManagement::Binary});
    screening->setResolutionList({Imaging::VResolution(400, 400)});

    // The printer takes both over, and deletes them with itself.
    printer.insert(unit.release(), true);
    printer.insert(screening.release(), true);
    // [describe]
    return printer;
}

// [name]
// The stored name of a value. What users should read instead is the matter of example 07.
template<typename Value>
QString nameOf(Value value)
{
    return VConvert::toString(QVariant::fromValue(value), QLocale::c());
}
// [name]

void print(const VPrinterDriver &printer, QTextStream &out)
{
    out << printer.name() << " (" << nameOf(printer.printerClass()) << "), up to "
        << printer.maximumFaces() << " faces\n";
    // [children]
    // All children, whatever their kind: they stay the printer's.
    for (auto *child : printer.values(QUuid())) {
        if (const auto *unit = dynamic_cast<VPrintUnitDriver *>(child)) {
            QStringList names;
            for (Channel channel : unit->channels())
                names.append(nameOf(channel));
            out << "  a print unit of " << names.join(u", "_s) << '\n';
        } else if (const auto *screening = dynamic_cast<VElaborationDriver *>(child)) {
            out << "  screened by " << nameOf(screening->elaborationType()) << " at "
                << screening->resolutionList().constFirst().toString(QLocale::c()) << '\n';
        }
    }
    // [children]
}

// True when the JSON of `printer` makes an equal driver.
bool roundTrip(const VPrinterDriver &printer)
{
    // [json]
    const QByteArray json = printer.toJson();
    // Null when the bytes are not the JSON of a record. What fromJson() gives is the caller's.
    const std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> read(
        Hardware::VDeviceConfig::fromJson(json));
    return read && printer.equalsTo(read.get());
    // [json]
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const VPrinterDriver printer = describe();
    print(printer, out);

    const bool equal = roundTrip(printer);
    out << "valid: " << (printer.isValid() ? "yes" : "no")
        << "; as JSON: " << printer.toJson().size() << " bytes, which read back are "
        << (equal ? "equal" : "not equal") << '\n';

    // A copy has children of its own, and a driver without children is not valid.
    VPrinterDriver bare = printer;
    bare.remove(QUuid(), false);
    const bool copied = printer.count(QUuid(), false) == 2 && !bare.isValid();
    return printer.isValid() && equal && copied ? 0 : 1;
}
