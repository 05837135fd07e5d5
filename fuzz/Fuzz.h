// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>

#include <cstddef>
#include <cstdint>

// The two functions that a fuzzer, or the replay, calls.

/// Prepares the process, once.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
/// Tries one input; aborts when it breaks a rule. Always 0.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace Fuzz {

/// Ends the process with `rule` as its last words when the rule does not hold.
void require(bool holds, const char *rule);

/// The bytes of an input, as a copy of their own.
inline QByteArray bytesOf(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), qsizetype(size));
}

/// True when `json` holds a byte order mark. Qt's parser drops one that begins a text or a key, so
/// that such a text is not the same after a round trip, and two keys may become one.
inline bool hasByteOrderMark(const QByteArray &json)
{
    return json.contains("\xEF\xBB\xBF");
}

} // namespace Fuzz
