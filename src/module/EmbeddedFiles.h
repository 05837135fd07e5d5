// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

namespace Norvane::Kilnjet {

/// Files inside the library, in the form that Qt's resource compiler gives them, version 3.
struct EmbeddedFiles
{
    const unsigned char *tree;
    const unsigned char *names;
    const unsigned char *data;
};

// Made by the build; they need no initialisation, so they are there before any code runs.
extern constinit const EmbeddedFiles kTranslations;
extern constinit const EmbeddedFiles kScreeningData;

} // namespace Norvane::Kilnjet
