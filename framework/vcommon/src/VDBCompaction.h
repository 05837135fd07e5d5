// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBContents.h"
#include "VDBDevice.h"

namespace Norvane::Database {

/// The content of a store with nothing but what is live in it: how to put it together from the
/// present content, and what it then holds.
class Compaction
{
public:
    Compaction(const Contents &contents, const Signer &signer);

    const std::vector<ContentPart> &parts() const { return m_parts; }
    /// False when the new content has to be read to know what it holds.
    bool isKnown() const { return m_isKnown; }
    /// What the new content holds, if it is known.
    Contents takeContents() { return std::move(m_contents); }
    /// The last bytes of the new content, as many as the last lines that it did not have before.
    QByteArray lastBytes() const { return m_parts.back().bytes; }

private:
    void addLine(const Entry &entry);
    void addBytes(const QByteArray &bytes);

    std::vector<ContentPart> m_parts;
    Contents m_contents;
    bool m_isKnown = true;
};

} // namespace Norvane::Database
