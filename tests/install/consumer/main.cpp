// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VKilnjetInfo.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>
#include <kilnjet/Version.h>
#include <vcommon/Version.h>
#include <vcore/VVersion.h>
#include <vcore/Version.h>
#include <vimaging/VResolution.h>
#include <vimaging/Version.h>

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;

static_assert(VKILNJET_VERSION >= QT_VERSION_CHECK(2, 0, 0));
static_assert(VKILNJET_VERSION
              == QT_VERSION_CHECK(VKILNJET_VERSION_MAJOR, VKILNJET_VERSION_MINOR,
                                  VKILNJET_VERSION_PATCH));
static_assert(VCORE_VERSION == VKILNJET_VERSION && VCOMMON_VERSION == VKILNJET_VERSION
              && VIMAGING_VERSION == VKILNJET_VERSION);

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
    const bool isOwnVersion = VKilnjetInfo::version()
        == VVersion(VKILNJET_VERSION_MAJOR, VKILNJET_VERSION_MINOR, VKILNJET_VERSION_PATCH);
    std::printf("version %s, %s; %d in the database, %s\n", VKILNJET_VERSION_STRING,
                isOwnVersion ? "that of the library" : "not that of the library", found.count(),
                same ? "equal" : "not equal");
    return same && isOwnVersion ? 0 : 1;
}
