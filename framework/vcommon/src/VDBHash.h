// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <array>
#include <memory>

struct gcry_md_handle;

// Libgcrypt's SHA-256 uses the processor's own instructions for it, which Qt's does not: that is
// nine times as fast, and a load is mostly sums. Threads: any number at once.

namespace Norvane::Database {

/// A SHA-256 (FIPS 180-4), or a code made with it.
using Digest = std::array<char, 32>;

/// The SHA-256 of two texts, one behind the other.
Digest sha256(QByteArrayView first, QByteArrayView rest = {});

/// Makes the HMAC-SHA-256 (RFC 2104) of texts under one key, which is prepared once. Copies are
/// cheap.
class Hmac
{
public:
    explicit Hmac(QByteArrayView key);

    Digest of(QByteArrayView message) const;

private:
    QByteArray m_key;
    std::shared_ptr<gcry_md_handle> m_prepared; ///< Null when libgcrypt refuses the key.
};

} // namespace Norvane::Database
