// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBBatch.h"

using namespace Qt::StringLiterals;

namespace Norvane::Database {

void Batch::clear()
{
    m_changes.clear();
    m_byId.clear();
}

std::optional<bool> Batch::contains(const QString &id) const
{
    const auto change = m_byId.constFind(id);
    if (change == m_byId.constEnd())
        return std::nullopt;
    return m_changes[*change].kind == LineKind::Insert;
}

void Batch::insert(const QString &id, const QByteArray &payload)
{
    const auto known = m_byId.constFind(id);
    if (known == m_byId.constEnd()) {
        m_byId.insert(id, m_changes.size());
        m_changes.push_back({id, LineKind::Insert, payload});
    } else {
        m_changes[*known].kind = LineKind::Insert;
        m_changes[*known].payload = payload;
    }
}

void Batch::remove(const QString &id, bool wasStored)
{
    QByteArray payload;
    appendEscaped(payload, id.toUtf8());
    const auto known = m_byId.constFind(id);
    if (known != m_byId.constEnd()) {
        // A record that was only ever in the batch leaves a removal of nothing behind: harmless.
        m_changes[*known].kind = LineKind::Remove;
        m_changes[*known].payload = payload;
    } else if (wasStored) {
        m_byId.insert(id, m_changes.size());
        m_changes.push_back({id, LineKind::Remove, payload});
    }
}

QByteArray Batch::encode(const Signer &signer) const
{
    QByteArray bytes;
    QByteArray sums;
    for (const Change &change : m_changes) {
        const QByteArray line = encodeLine(change.kind, change.payload, signer);
        sums += splitLine(line)->sum.toByteArray();
        bytes += line;
    }
    return bytes + encodeCommit(m_changes.size(), sums, signer);
}

QByteArray encodeCommit(std::size_t count, const QByteArray &sums, const Signer &signer)
{
    const QByteArray payload =
        encodeFields({{u"lines"_s, QString::number(count)},
                      {u"digest"_s, QString::fromLatin1(Signer::sum(sums))}});
    return encodeLine(LineKind::Commit, payload, signer);
}

} // namespace Norvane::Database
