// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

/// @def VIMAGING_EXPORT
/// Stands before what vimaging exports; the library itself is built with VIMAGING_LIBRARY defined.
#if defined(VIMAGING_LIBRARY)
#define VIMAGING_EXPORT Q_DECL_EXPORT
#else
#define VIMAGING_EXPORT Q_DECL_IMPORT
#endif
