// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBBatch.h"

#include <vcore/VConvert.h>
#include <vcore/VLocale.h>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

QString cultureName(const QLocale &locale)
{
    return locale.name().replace(u'_', u'-');
}

QLocale cultureLocale(const QString &name)
{
    return VLocale(name, QLocale::OmitGroupSeparator);
}

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
    appendEscaped(payload, id);
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

QByteArray encodeRecord(const VDBRecord &record, const QString &culture)
{
    const QLocale locale = cultureLocale(culture);
    QList<FormatField> fields;
    if (!culture.isEmpty())
        fields.append({VDBRecord::cultureKey(), culture});
    for (const QString &key : record.keys()) {
        if (key == VDBRecord::cultureKey())
            continue; // The store's own business.
        const QVariant value = record.search(key).value();
        fields.append(
            {key,
             value.isNull() ? std::nullopt : std::optional(VConvert::toString(value, locale))});
    }
    return encodeFields(fields);
}

} // namespace Norvane::Database
