// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>
#include <vcore/VVersion.h>
#include <vimaging/VResolution.h>

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QString file = app.arguments().value(1);

    auto elaboration = std::make_unique<VElaborationDriver>(QUuid::createUuid());
    elaboration->setElaborationType(ElaborationType::BilevelStandard);
    elaboration->setLevelManagementList({LevelManagement::Binary});
    elaboration->setResolutionList({Imaging::VResolution(360, 360)});

    VPrinterDriver printer(QUuid::createUuid());
    printer.setName(QStringLiteral("Consumer"));
    printer.insert(elaboration.release(), true);
    printer.insert(std::make_unique<VPrintUnitDriver>(QUuid::createUuid()).release(), true);

    VPrintersDb kept(file, QString());
    kept.init(false);
    kept.insert(printer);
    kept.commit();

    VPrintersDb found(file, QString());
    found.init(false);
    const bool same = found.value(printer.dataId()) == printer;
    std::printf("version %s, %d in the database, %s\n", qPrintable(printer.version().toString()),
                found.count(), same ? "equal" : "not equal");
    return same ? 0 : 1;
}
