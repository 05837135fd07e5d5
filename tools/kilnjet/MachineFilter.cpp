// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineFilter.h"

#include "Invocation.h"
#include "Nearest.h"
#include "Text.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Hardware::Interfaces::IVDeviceConfig;
using Imaging::ResolutionUnit;
using Imaging::VResolution;

Failure misuse(QLatin1StringView option, const QString &what, const QString &hint = QString())
{
    return {.code = ExitCode::Usage, .where = option, .what = what, .hint = hint};
}

/// The number that `name` has in the enumeration; throws a Failure with the nearest name.
qint64 numberOf(QLatin1StringView option, const QString &enumeration, const QString &name)
{
    QStringList all;
    if (const IVEnum *values = VEnumRegistry::find(enumeration)) {
        for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
            if (const auto number = values->names().find(name.trimmed(), sensitivity))
                return *number;
        }
        for (const qint64 number : values->names().numbers())
            all += values->names().names(number);
    }
    QString hint = suggestion(name, all);
    if (hint.isEmpty())
        hint = u"'kilnjet enums %1' lists them"_s.arg(enumeration);
    throw misuse(option, u"%1 is no value of %2"_s.arg(quoted(name), enumeration), hint);
}

template<typename E>
std::optional<E> enumOption(const Invocation &invocation, QLatin1StringView option,
                            const QString &enumeration)
{
    if (!invocation.has(option))
        return {};
    return E(numberOf(option, enumeration, invocation.value(option)));
}

std::optional<bool> yesOrNo(const Invocation &invocation, QLatin1StringView option)
{
    if (!invocation.has(option))
        return {};
    const QString text = invocation.value(option);
    if (text != "yes"_L1 && text != "no"_L1)
        throw misuse(option, u"%1 is neither yes nor no"_s.arg(quoted(text)));
    return text == "yes"_L1;
}

/// A resolution as "400", "400x360", or "400 x 360 DPI".
std::optional<VResolution> resolutionOption(const Invocation &invocation, QLatin1StringView option)
{
    if (!invocation.has(option))
        return {};
    static const QRegularExpression form(
        u"\\A\\s*([0-9]+(?:\\.[0-9]+)?)"
        "(?:\\s*[xX\u00d7]\\s*([0-9]+(?:\\.[0-9]+)?))?\\s*((?![xX])[A-Za-z]*)\\s*\\z"_s);
    const QString text = invocation.value(option);
    const auto match = form.match(text);
    if (!match.hasMatch()) {
        throw misuse(option, u"%1 is no resolution"_s.arg(quoted(text)),
                     u"a resolution looks like 400x360DPI"_s);
    }
    const double x = match.captured(1).toDouble();
    const double y = match.capturedLength(2) > 0 ? match.captured(2).toDouble() : x;
    if (match.capturedLength(3) == 0)
        return VResolution(x, y, ResolutionUnit::DPI);
    return VResolution(x, y,
                       ResolutionUnit(numberOf(option, u"ResolutionUnit"_s, match.captured(3))));
}

QStringList wordsOption(const Invocation &invocation, QLatin1StringView option)
{
    if (!invocation.has(option))
        return {};
    const QStringList words = invocation.value(option).simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        throw misuse(option, u"there is no word to look for"_s);
    return words;
}

/// The machine and everything below it.
void collect(const IVDeviceConfig &config, QList<const IVDeviceConfig *> &configs)
{
    configs.append(&config);
    for (const IVDeviceConfig *child : config.values(QUuid()))
        collect(*child, configs);
}

template<typename T>
bool fits(const std::optional<T> &wanted, const T &actual)
{
    return !wanted || *wanted == actual;
}

template<typename T>
bool fitsOneOf(const std::optional<T> &wanted, const QList<T> &actual)
{
    return !wanted || actual.contains(*wanted);
}

} // namespace

MachineFilter MachineFilter::from(const Invocation &invocation)
{
    MachineFilter filter;
    filter.m_printerClass = enumOption<PrinterClass>(invocation, "--class"_L1, u"PrinterClass"_s);
    for (const QString &name : invocation.values("--channel"_L1))
        filter.m_channels.append(Channel(numberOf("--channel"_L1, u"Channel"_s, name)));
    filter.m_elaborationType =
        enumOption<ElaborationType>(invocation, "--elaboration"_L1, u"ElaborationType"_s);
    filter.m_levels = enumOption<LevelManagement>(invocation, "--levels"_L1, u"LevelManagement"_s);
    filter.m_resolution = resolutionOption(invocation, "--resolution"_L1);
    filter.m_onlineElaboration = yesOrNo(invocation, "--online-elaboration"_L1);
    filter.m_onlineLinearization = yesOrNo(invocation, "--online-linearization"_L1);
    filter.m_experimental = yesOrNo(invocation, "--experimental"_L1);
    filter.m_words = wordsOption(invocation, "--text"_L1);
    return filter;
}

bool MachineFilter::matches(const VPrinterDriver &machine) const
{
    Configs configs;
    collect(machine, configs);
    return fits(m_printerClass, machine.printerClass())
        && fits(m_onlineElaboration, machine.onlineElaboration())
        && fits(m_onlineLinearization, machine.onlineLinearizations())
        && fits(m_experimental, machine.experimental()) && matchesChannels(configs)
        && matchesElaboration(configs) && matchesWords(configs);
}

bool MachineFilter::matchesChannels(const Configs &configs) const
{
    QList<Channel> carried;
    for (const IVDeviceConfig *config : configs) {
        if (const auto *unit = dynamic_cast<const VPrintUnitDriver *>(config))
            carried += unit->channels();
    }
    return std::all_of(m_channels.begin(), m_channels.end(),
                       [&carried](Channel channel) { return carried.contains(channel); });
}

bool MachineFilter::matchesElaboration(const Configs &configs) const
{
    if (!m_elaborationType && !m_levels && !m_resolution)
        return true;
    return std::any_of(configs.begin(), configs.end(), [this](const IVDeviceConfig *config) {
        const auto *elaboration = dynamic_cast<const VElaborationDriver *>(config);
        return elaboration != nullptr && matchesElaboration(*elaboration);
    });
}

bool MachineFilter::matchesElaboration(const VElaborationDriver &elaboration) const
{
    return fits(m_elaborationType, elaboration.elaborationType())
        && fitsOneOf(m_levels, elaboration.levelManagementList())
        && fitsOneOf(m_resolution, elaboration.resolutionList());
}

bool MachineFilter::matchesWords(const Configs &configs) const
{
    QString text;
    for (const IVDeviceConfig *config : configs)
        text += config->name() + u'\n' + config->description() + u'\n';
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString &word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace Norvane::Kilnjet::Tool
