// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What happens when the library is loaded, in order, and undone in reverse when it is unloaded.

#include "enums/ChannelV100Sort_T.h"
#include "enums/Channel_T.h"
#include "enums/ElaborationType_T.h"
#include "enums/LevelManagement_T.h"
#include "enums/PrinterClass_T.h"
#include "enums/PrinterFacesMode_T.h"
#include "enums/PrinterFileCompression_T.h"
#include "enums/PrinterFileProtection_T.h"
#include "module/ResourceRegistration.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <vcore/BinaryUnit.h>
#include <vcore/Bool.h>
#include <vcore/ByteOrder.h>
#include <vcore/CompressionAlgorithm.h>
#include <vcore/IconStyle.h>
#include <vcore/MetadataFlags.h>
#include <vcore/OperatingSystemType.h>
#include <vcore/QtColor.h>
#include <vcore/SCSLengthUnit.h>
#include <vcore/SILengthUnit.h>
#include <vcore/SIPrefix.h>
#include <vcore/VEnumRegistration.h>
#include <vcore/WebColor.h>
#include <vimaging/ClassSignature.h>
#include <vimaging/ColorSpace.h>
#include <vimaging/ColorSpaceSignature.h>
#include <vimaging/FilterOptions.h>
#include <vimaging/ImageFormat.h>
#include <vimaging/ImageLoadOptions.h>
#include <vimaging/ImageSaveOptions.h>
#include <vimaging/ImageUnusual.h>
#include <vimaging/IntentDirection.h>
#include <vimaging/MeasureUnits.h>
#include <vimaging/PaletteOrder.h>
#include <vimaging/ProcessFlags.h>
#include <vimaging/ProfileHeaderAttributes.h>
#include <vimaging/ProfileHeaderFlags.h>
#include <vimaging/ProfileInfoType.h>
#include <vimaging/RenderingIntent.h>
#include <vimaging/ResolutionUnit.h>
#include <vimaging/RotateFlipType.h>
#include <vimaging/VirtualFacesMode.h>

#include <array>

namespace Norvane {

namespace {

using OwnEnumerations =
    VEnumRegistration<Kilnjet::PrinterClass_T, Kilnjet::PrinterFacesMode_T,
                      Kilnjet::PrinterFileCompression_T, Kilnjet::PrinterFileProtection_T,
                      Kilnjet::ElaborationType_T, Kilnjet::LevelManagement_T, Channel_T,
                      ChannelV100Sort_T>;

/// One prototype of each driver, from which stored records are rebuilt. They belong to the
/// framework, which keeps them for good; unloading makes it forget them, since their code goes.
class DriverPrototypes
{
public:
    DriverPrototypes()
    {
        for (Hardware::VDeviceConfig *prototype : m_prototypes)
            Hardware::VDeviceConfig::registerConfig(prototype);
    }
    ~DriverPrototypes()
    {
        for (auto it = m_prototypes.rbegin(); it != m_prototypes.rend(); ++it)
            Hardware::VDeviceConfig::unregisterConfig(*it);
    }
    Q_DISABLE_COPY_MOVE(DriverPrototypes)

private:
    const std::array<Hardware::VDeviceConfig *, 3> m_prototypes{
        new Kilnjet::VPrinterDriver(QUuid()),
        new Kilnjet::VElaborationDriver(QUuid()),
        new Kilnjet::VPrintUnitDriver(QUuid()),
    };
};

using CoreEnumerations =
    VEnumRegistration<Bool_T, MetadataFlags_T, Compression::CompressionAlgorithm_T,
                      OperatingSystemType_T, ByteOrder_T, BinaryUnit_T, IconStyle_T, QtColor_T,
                      SCSLengthUnit_T, SILengthUnit_T, SIPrefix_T, WebColor_T>;

using ImagingEnumerations =
    VEnumRegistration<Imaging::ResolutionUnit_T, Imaging::ColorSpace_T,
                      Imaging::Filters::FilterOptions_T, Imaging::ImageFormat_T,
                      Imaging::ImageLoadOptions_T, Imaging::ImageSaveOptions_T,
                      Imaging::ImageUnusual_T, Imaging::MeasureUnits_T, Imaging::PaletteOrder_T,
                      Imaging::RotateFlipType_T, Imaging::VirtualFacesMode_T>;

namespace Lcms = ColorManagement::LittleCMS;
using ColorManagementEnumerations =
    VEnumRegistration<Lcms::ClassSignature_T, Lcms::ColorSpaceSignature_T, Lcms::IntentDirection_T,
                      Lcms::ProcessFlags_T, Lcms::ProfileHeaderAttributes_T,
                      Lcms::ProfileHeaderFlags_T, Lcms::ProfileInfoType_T, Lcms::RenderingIntent_T>;

/// The members are the steps of loading, in this order.
struct Load
{
    OwnEnumerations ownEnumerations;
    DriverPrototypes driverPrototypes;
    CoreEnumerations coreEnumerations;
    ImagingEnumerations imagingEnumerations;
    ColorManagementEnumerations colorManagementEnumerations;
    Kilnjet::ResourceRegistration translations{Kilnjet::kTranslations};
    Kilnjet::ResourceRegistration screeningData{Kilnjet::kScreeningData};
};

const Load load;

} // namespace

} // namespace Norvane
