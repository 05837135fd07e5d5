// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBContents.h"

#include <vcommon/VDBStatus.h>

namespace Norvane::Database {

/// How large the pieces are in which lines are checked in parallel.
constexpr qsizetype kPieceSize = qsizetype(64) * 1024;

/// Reads the whole of a file's bytes. Takes any bytes, in time proportional to their number.
///
/// `signer` holds the key that was given; without one, sums alone are checked. `reporter` may be
/// empty. The result does not depend on `pieceSize`; with zero, lines are checked one by one.
Contents scan(QByteArrayView bytes, const Signer &signer, const VDBReporter &reporter,
              qsizetype pieceSize = kPieceSize);

} // namespace Norvane::Database
