// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "drivers/DriverIcon.h"

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QSharedData>

namespace Norvane::Kilnjet {

/// The fields of a printer driver, shared by its copies until one of them changes.
class VPrinterDriverPrivate : public QSharedData
{
public:
    DriverIcon icon; ///< At most one of the icons has an image: who sets one clears the other.
    QByteArray svgIcon;
    PrinterFileProtection fileProtection = PrinterFileProtection::None;
    PrinterFileCompression fileCompression = PrinterFileCompression::None;
    PrinterClass printerClass = PrinterClass::Unknown;
    PrinterFacesMode facesMode = PrinterFacesMode::None;
    int maximumFaces = 0;
    qint64 maximumImageBytes = 0;
    bool onlineElaboration = false;
    bool onlineLinearizations = false;
    bool experimental = false;

    bool equals(const VPrinterDriverPrivate &other) const;
    /// The text that the content id is made of, in the namespace of the device id.
    QString contentText() const;

    template<typename Object>
    void readJson(const Object &object);
    /// Reads what contentText() needs and no more.
    template<typename Object>
    void readContent(const Object &object);
    template<typename Writer>
    void writeJson(Writer &object) const;
};

} // namespace Norvane::Kilnjet
