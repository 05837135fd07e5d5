// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace Norvane {

/// The numbers and names of one enumeration, and the conversions between them.
///
/// A number may carry several names: the first one is written, each is read. Numbers keep the order
/// in which they were added, which is the order in which a combination of flags is written.
/// Threads: any number may read; adding must be over by then.
class VCORE_EXPORT VEnumNames
{
public:
    /// Adds `name` to `number`; a name that the number already carries (same case) stays single.
    void add(qint64 number, const QString &name);

    /// The numbers in the order of their first add().
    const QList<qint64> &numbers() const { return m_numbers; }
    /// The names that `number` carries, the written one first.
    QStringList names(qint64 number) const { return m_names.value(number); }
    /// The number that carries `name`; the smallest, should several do.
    std::optional<qint64> find(const QString &name, Qt::CaseSensitivity cs) const;
    /// The number that fromString() and flagsFromString() read in the UTF-8 text `name`, if it is
    /// one name and nothing else.
    std::optional<qint64> find(std::string_view name) const;

    /// The written name of `number`; a null text without one.
    QString name(qint64 number) const
    {
        const auto names = m_names.constFind(number);
        return names == m_names.constEnd() ? QString() : names->constFirst();
    }
    /// The name of `number`; without one, the number as `locale` writes it.
    QString toString(qint64 number, const QLocale &locale) const;
    /// As toString(); a number without a name of its own is written as the names of the flags that
    /// it contains, joined by ", ", if these make it up exactly.
    QString flagsToString(qint64 number, const QLocale &locale) const;

    /// The number whose name is `text` without outer blanks, else `fallback`. `ok` may be null.
    qint64 fromString(const QString &text, qint64 fallback, Qt::CaseSensitivity cs, bool *ok) const;
    /// Reads a list of names separated by commas into their union; a part that is no name adds
    /// `fallback` and clears `*ok`. `ok` may be null.
    qint64 flagsFromString(const QString &text, qint64 fallback, Qt::CaseSensitivity cs,
                           bool *ok) const;

private:
    QList<qint64> m_numbers;
    QHash<qint64, QStringList> m_names;
    QHash<QString, qint64> m_byName;

    /// Makes look-ups possible without a string.
    struct Hash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };
    std::unordered_map<std::string, qint64, Hash, std::equal_to<>> m_byUtf8;
};

} // namespace Norvane
