// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBHash.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QMessageAuthenticationCode>

#include <gcrypt.h>

#include <algorithm>
#include <cstring>

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

bool hash(QByteArrayView first, QByteArrayView second, Digest &digest)
{
    const std::array buffers = {bufferOf(first), bufferOf(second)};
    return isReady()
        && gcry_md_hash_buffers(GCRY_MD_SHA256, 0, digest.data(), buffers.data(),
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
    if (hash(first, rest, digest))
        return digest;
    QCryptographicHash slower(kQtHash);
    slower.addData(first);
    slower.addData(rest);
    return digestOf(slower.result());
}

Hmac::Hmac(QByteArrayView key)
    : m_key(key.toByteArray())
{
    gcry_md_hd_t handle = nullptr;
    if (!isReady() || gcry_md_open(&handle, GCRY_MD_SHA256, GCRY_MD_FLAG_HMAC) != 0)
        return;
    m_prepared.reset(handle, gcry_md_close);
    // Short keys are refused on systems in FIPS mode.
    if (gcry_md_setkey(handle, key.data(), std::size_t(key.size())) != 0)
        m_prepared.reset();
}

Digest Hmac::of(QByteArrayView message) const
{
    gcry_md_hd_t handle = nullptr;
    // The prepared one is only copied, so that threads may share it.
    if (!m_prepared || gcry_md_copy(&handle, m_prepared.get()) != 0)
        return digestOf(QMessageAuthenticationCode::hash(message.toByteArray(), m_key, kQtHash));
    Digest digest = {};
    gcry_md_write(handle, message.data(), std::size_t(message.size()));
    std::memcpy(digest.data(), gcry_md_read(handle, GCRY_MD_SHA256), digest.size());
    gcry_md_close(handle);
    return digest;
}

} // namespace Norvane::Database
