// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBHash.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QMessageAuthenticationCode>

#include <gcrypt.h>

#include <algorithm>

namespace Norvane::Database {

namespace {

constexpr auto kQtHash = QCryptographicHash::Sha256;

/// Libgcrypt must be asked for its version before anything else.
bool isReady()
{
    static const bool ready = gcry_check_version(nullptr) != nullptr;
    return ready;
}

gcry_buffer_t bufferOf(QByteArrayView bytes)
{
    gcry_buffer_t buffer = {};
    buffer.data = const_cast<char *>(bytes.data()); // It is only read.
    buffer.len = std::size_t(bytes.size());
    return buffer;
}

/// False when libgcrypt refuses, as it does with short keys on systems in FIPS mode.
bool hash(unsigned flags, QByteArrayView first, QByteArrayView second, Digest &digest)
{
    const std::array buffers = {bufferOf(first), bufferOf(second)};
    return isReady()
        && gcry_md_hash_buffers(GCRY_MD_SHA256, flags, digest.data(), buffers.data(),
                                int(buffers.size()))
        == 0;
}

Digest digestOf(const QByteArray &bytes)
{
    Digest digest = {};
    std::copy_n(bytes.begin(), std::min(bytes.size(), qsizetype(digest.size())), digest.begin());
    return digest;
}

} // namespace

Digest sha256(QByteArrayView first, QByteArrayView rest)
{
    Digest digest = {};
    if (hash(0, first, rest, digest))
        return digest;
    QCryptographicHash slower(kQtHash);
    slower.addData(first);
    slower.addData(rest);
    return digestOf(slower.result());
}

Digest hmacSha256(QByteArrayView key, QByteArrayView message)
{
    // Of several texts libgcrypt takes the first one for the key.
    Digest digest = {};
    if (hash(GCRY_MD_FLAG_HMAC, key, message, digest))
        return digest;
    return digestOf(
        QMessageAuthenticationCode::hash(message.toByteArray(), key.toByteArray(), kQtHash));
}

} // namespace Norvane::Database
