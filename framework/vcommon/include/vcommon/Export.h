// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/qglobal.h>

#if defined(VCOMMON_LIBRARY)
#define VCOMMON_EXPORT Q_DECL_EXPORT
#else
#define VCOMMON_EXPORT Q_DECL_IMPORT
#endif
