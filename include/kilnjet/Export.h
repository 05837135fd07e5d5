// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

/// @def VKILNJET_EXPORT
/// Stands before what vkilnjet exports; the library itself is built with VKILNJET_LIBRARY defined.
#if defined(VKILNJET_LIBRARY)
#define VKILNJET_EXPORT Q_DECL_EXPORT
#else
#define VKILNJET_EXPORT Q_DECL_IMPORT
#endif
