// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

/// @def VCOMMON_EXPORT
/// Stands before what vcommon exports; the library itself is built with VCOMMON_LIBRARY defined.
#if defined(VCOMMON_LIBRARY)
#define VCOMMON_EXPORT Q_DECL_EXPORT
#else
#define VCOMMON_EXPORT Q_DECL_IMPORT
#endif
