// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VKilnjetInfo.h>

#include "module/Identity.h"

namespace Norvane::Kilnjet {

VKilnjetInfo &VKilnjetInfo::operator=(const VKilnjetInfo &) = default;
VKilnjetInfo &VKilnjetInfo::operator=(VKilnjetInfo &&) noexcept = default;

quint32 VKilnjetInfo::build()
{
    return Identity::kBuild;
}

VVersion VKilnjetInfo::version()
{
    return Identity::kVersion;
}

QString VKilnjetInfo::company()
{
    return Identity::kCompany.toString();
}

QString VKilnjetInfo::copyright()
{
    return Identity::kCopyright.toString();
}

QString VKilnjetInfo::description()
{
    return Identity::kDescription.toString();
}

QString VKilnjetInfo::title()
{
    return Identity::kName.toString();
}

QString VKilnjetInfo::moduleName()
{
    return title();
}

} // namespace Norvane::Kilnjet
