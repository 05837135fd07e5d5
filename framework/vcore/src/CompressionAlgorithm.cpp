// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/CompressionAlgorithm.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Compression {

namespace {
constexpr VEnumEntry<CompressionAlgorithm> kNames[] = {
    {CompressionAlgorithm::Uncompressed, "Uncompressed"_L1},
    {CompressionAlgorithm::Packbits, "Packbits"_L1},
    {CompressionAlgorithm::Lzw, "Lzw"_L1},
    {CompressionAlgorithm::Deflate, "Deflate"_L1},
    {CompressionAlgorithm::Zip, "Zip"_L1},
    {CompressionAlgorithm::Lzma, "Lzma"_L1},
    {CompressionAlgorithm::BZip2, "BZip2"_L1},
    {CompressionAlgorithm::Lzss, "Lzss"_L1},
    {CompressionAlgorithm::Lz4, "Lz4"_L1},
    {CompressionAlgorithm::UnicodeText, "UnicodeText"_L1},
    {CompressionAlgorithm::Jpeg, "Jpeg"_L1},
    {CompressionAlgorithm::Jpeg2000, "Jpeg2000"_L1},
    {CompressionAlgorithm::Unknown, "Unknown"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(CompressionAlgorithm, kNames)

} // namespace Norvane::Compression
