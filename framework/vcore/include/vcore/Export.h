// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

/// @def VCORE_EXPORT
/// Stands before what vcore exports; the library itself is built with VCORE_LIBRARY defined.
#if defined(VCORE_LIBRARY)
#define VCORE_EXPORT Q_DECL_EXPORT
#else
#define VCORE_EXPORT Q_DECL_IMPORT
#endif
