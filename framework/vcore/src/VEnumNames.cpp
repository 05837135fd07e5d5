// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumNames.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane {

void VEnumNames::add(qint64 number, const QString &name)
{
    const auto names = m_names.find(number);
    if (names == m_names.end()) {
        m_numbers.append(number);
        m_names.insert(number, {name});
    } else if (!names->contains(name)) {
        names->append(name);
    } else {
        return;
    }
    const auto known = m_byName.constFind(name);
    if (known == m_byName.constEnd() || number < *known)
        m_byName.insert(name, number);
    // Such names cannot be read: a text is trimmed, and a list of flags split at its commas.
    if (name == name.trimmed() && !name.contains(u','))
        m_byUtf8.insert_or_assign(name.toStdString(), m_byName.value(name));
}

std::optional<qint64> VEnumNames::find(std::string_view name) const
{
    const auto known = m_byUtf8.find(name);
    return known == m_byUtf8.end() ? std::nullopt : std::optional(known->second);
}

std::optional<qint64> VEnumNames::find(const QString &name, Qt::CaseSensitivity cs) const
{
    if (cs == Qt::CaseSensitive) {
        const auto known = m_byName.constFind(name);
        return known == m_byName.constEnd() ? std::nullopt : std::optional(*known);
    }
    std::optional<qint64> smallest;
    for (auto known = m_byName.constBegin(); known != m_byName.constEnd(); ++known) {
        if (QString::compare(name, known.key(), cs) == 0 && (!smallest || *known < *smallest))
            smallest = *known;
    }
    return smallest;
}

QString VEnumNames::toString(qint64 number, const QLocale &locale) const
{
    const auto names = m_names.constFind(number);
    return names == m_names.constEnd() ? locale.toString(number) : names->first();
}

QString VEnumNames::flagsToString(qint64 number, const QLocale &locale) const
{
    if (m_names.contains(number))
        return toString(number, locale);
    qint64 covered = 0;
    QStringList list;
    for (const qint64 flag : m_numbers) {
        if (flag != 0 && (number & flag) == flag) {
            covered |= flag;
            list.append(toString(flag, QLocale()));
        }
    }
    // Combinations that have a name of their own stay in the list beside their single flags: the
    // stored records have always been written that way.
    return covered == number && !list.isEmpty() ? list.join(", "_L1) : locale.toString(number);
}

qint64 VEnumNames::fromString(const QString &text, qint64 fallback, Qt::CaseSensitivity cs,
                              bool *ok) const
{
    const std::optional<qint64> number = find(text.trimmed(), cs);
    if (ok != nullptr)
        *ok = number.has_value();
    return number.value_or(fallback);
}

qint64 VEnumNames::flagsFromString(const QString &text, qint64 fallback, Qt::CaseSensitivity cs,
                                   bool *ok) const
{
    bool allKnown = true;
    qint64 result = 0;
    for (const QString &part : text.split(u',', Qt::KeepEmptyParts, Qt::CaseSensitive)) {
        const std::optional<qint64> number = find(part.trimmed(), cs);
        allKnown = allKnown && number.has_value();
        result |= number.value_or(fallback);
    }
    if (ok != nullptr)
        *ok = allKnown;
    return result;
}

} // namespace Norvane
