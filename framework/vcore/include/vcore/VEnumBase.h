// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IVEnum.h>
#include <vcore/VEnumFlags.h>
#include <vcore/VJsonText.h>

#include <QtCore/QLatin1StringView>
#include <QtCore/QVariant>

#include <type_traits>

namespace Norvane {

/// One row of an enumeration's table: a value and one of its names.
template<typename E>
struct VEnumEntry
{
    /// The value.
    E value;
    /// Its name; the first one of a value in the table is the one that is written.
    QLatin1StringView name;
};

/// The runtime object of the plain enumeration `E`, whose numbers are of type `U`.
///
/// Threads: built once, then only read, from any thread.
template<typename E, typename U = std::underlying_type_t<E>>
class VEnumBase : public IVEnum
{
public:
    /// The enumeration.
    using Enum = E;

    /// False: a value is one of those named.
    bool isFlags() const override { return false; }

    /// The name of `value`; without one, the number as `locale` writes it.
    virtual QString toString(const U &value, const QLocale &locale) const
    {
        return names().toString(qint64(value), locale);
    }

    /// The number whose name is `text`, compared with `cs` after trimming; else `fallback`.
    /// `*ok` says whether a name was found; `ok` may be null. Digits are never read as a number.
    virtual U fromString(const QString &text, const U &fallback, Qt::CaseSensitivity cs,
                         bool *ok) const
    {
        return U(names().fromString(text, qint64(fallback), cs, ok));
    }

    /// The text of `value` for stored records: its name, else its number in the default locale.
    QString textOf(E value) const
    {
        // A name needs no locale, and to make one costs more than all the rest.
        const QString name = names().name(qint64(value));
        return name.isNull() ? toString(static_cast<U>(value), QLocale()) : name;
    }

    /// The value named `text`, case-sensitively, in stored records; anything else is the value 0.
    E valueOf(const QString &text) const
    {
        return static_cast<E>(fromString(text, U(0), Qt::CaseSensitive, nullptr));
    }
    /// The same for a text in UTF-8; one that is a single name needs no QString.
    E valueOf(QUtf8StringView text) const
    {
        const std::optional<qint64> number =
            names().find(std::string_view(text.data(), std::size_t(text.size())));
        return number ? static_cast<E>(U(*number)) : valueOf(text.toString());
    }
    /// The value that a JSON string names, as above; any other JSON value is the value 0.
    E valueOf(const QJsonValue &value) const { return valueOf(value.toString()); }
    /// The same for a value in JSON text.
    E valueOf(const VJsonTextValue &value) const { return valueOf(value.utf8()); }

protected:
    /// The text of the `E` in `value`, read in place: a conversion would go through the meta-type
    /// system and could fail.
    QString variantToString(const QVariant &value, const QLocale &locale) const
    {
        return toString(static_cast<U>(*static_cast<const E *>(value.constData())), locale);
    }
};

/// The runtime object of an enumeration of flags, whose values combine.
template<typename E, typename U = std::underlying_type_t<E>>
class VEnumBaseFlags : public VEnumBase<E, U>
{
public:
    /// True: values are combinations of those named.
    bool isFlags() const override { return true; }

    /// As VEnumBase; a combination without a name is written as the names that make it up exactly.
    QString toString(const U &value, const QLocale &locale) const override
    {
        return this->names().flagsToString(qint64(value), locale);
    }

    /// The union of the values named in the comma-separated `text`; a part that is no name adds
    /// `fallback` and clears `*ok`.
    U fromString(const QString &text, const U &fallback, Qt::CaseSensitivity cs,
                 bool *ok) const override
    {
        return U(this->names().flagsFromString(text, qint64(fallback), cs, ok));
    }
};

} // namespace Norvane

/// Declares the runtime class `Enum_T`, which derives from `Base` (VEnumBase or VEnumBaseFlags).
///
/// Its instance() is built at the first use, once, whatever the number of threads, and is destroyed
/// when the library that holds it is unloaded. shortName() is its name() without building it,
/// object() is the same object for those who do not know its class, and convert() writes a variant
/// that holds an `Enum`; its format has no meaning.
#define VCORE_DECLARE_ENUM_RUNTIME(EXPORT, Enum, Base)                                             \
    class EXPORT Enum##_T final : public Norvane::Base<Enum>                                       \
    {                                                                                              \
    public:                                                                                        \
        Enum##_T();                                                                                \
        QString name() const override;                                                             \
        static QString shortName();                                                                \
        static const Enum##_T &instance();                                                         \
        static const Norvane::IVEnum &object();                                                    \
        static QString convert(const QVariant &value, const QString &format,                       \
                               const QLocale &locale);                                             \
    };

/// Defines `Enum_T`, filled from the VEnumEntry rows of `table` and then by the host's loader.
#define VCORE_DEFINE_ENUM_RUNTIME(Enum, table)                                                     \
    Enum##_T::Enum##_T()                                                                           \
    {                                                                                              \
        for (const auto &entry : table)                                                            \
            names().add(qint64(entry.value), QString(entry.name));                                 \
        if (auto *loader = Norvane::VEnumRuntimeLoader::loader(shortName()))                       \
            loader->applyTo(this);                                                                 \
    }                                                                                              \
    QString Enum##_T::name() const                                                                 \
    {                                                                                              \
        return shortName();                                                                        \
    }                                                                                              \
    QString Enum##_T::shortName()                                                                  \
    {                                                                                              \
        return QStringLiteral(#Enum);                                                              \
    }                                                                                              \
    const Enum##_T &Enum##_T::instance()                                                           \
    {                                                                                              \
        static const Enum##_T object;                                                              \
        return object;                                                                             \
    }                                                                                              \
    const Norvane::IVEnum &Enum##_T::object()                                                      \
    {                                                                                              \
        return instance();                                                                         \
    }                                                                                              \
    QString Enum##_T::convert(const QVariant &value, const QString &, const QLocale &locale)       \
    {                                                                                              \
        return instance().variantToString(value, locale);                                          \
    }
