// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Channel.h>
#include <kilnjet/ElaborationType.h>
#include <kilnjet/LevelManagement.h>
#include <kilnjet/VPrinterDriver.h>
#include <vimaging/VResolution.h>

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <optional>

namespace Norvane::Kilnjet {
class VElaborationDriver;
}

namespace Norvane::Kilnjet::Tool {

struct Invocation;

/// Which machines are looked for: those that meet every condition given.
class MachineFilter
{
public:
    /// As the options say; throws a Failure when one of them makes no sense.
    static MachineFilter from(const Invocation &invocation);

    bool matches(const VPrinterDriver &machine) const;

private:
    using Configs = QList<const Hardware::Interfaces::IVDeviceConfig *>;

    bool matchesChannels(const Configs &configs) const;
    bool matchesElaboration(const Configs &configs) const;
    bool matchesElaboration(const VElaborationDriver &elaboration) const;
    bool matchesWords(const Configs &configs) const;

    std::optional<PrinterClass> m_printerClass;
    QList<Channel> m_channels;
    std::optional<ElaborationType> m_elaborationType;
    std::optional<LevelManagement> m_levels;
    std::optional<Imaging::VResolution> m_resolution;
    std::optional<bool> m_onlineElaboration;
    std::optional<bool> m_onlineLinearization;
    std::optional<bool> m_experimental;
    QStringList m_words;
};

} // namespace Norvane::Kilnjet::Tool
