// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Any text read as a combination of flags, and written again. The first byte chooses the
// enumeration, the second one the fallback and how case counts; the rest is the text.

#include "Fuzz.h"

#include <vcore/IVEnum.h>
#include <vcore/MetadataFlags.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QList>

using Norvane::IVEnum;
using Norvane::VEnumNames;
using Norvane::VEnumRegistry;

namespace {

/// Every flags enumeration that the libraries have made known.
const QList<const IVEnum *> &flagsEnumerations()
{
    static const QList<const IVEnum *> all = [] {
        QList<const IVEnum *> found;
        for (const QString &name : VEnumRegistry::names()) {
            const IVEnum *const enumeration = VEnumRegistry::find(name);
            if (enumeration->isFlags())
                found.append(enumeration);
        }
        return found;
    }();
    return all;
}

struct Reading
{
    qint64 number = 0;
    bool ok = false;
};

Reading read(const VEnumNames &names, const QString &text, qint64 fallback, Qt::CaseSensitivity cs)
{
    Reading reading;
    reading.number = names.flagsFromString(text, fallback, cs, &reading.ok);
    Fuzz::require(names.flagsFromString(text, fallback, cs, nullptr) == reading.number,
                  "a text reads the same whether or not success is asked for");
    return reading;
}

/// What is written reads back as the same number.
void checkRoundTrip(const VEnumNames &names, const Reading &reading)
{
    const QString written = names.flagsToString(reading.number, QLocale::c());
    const Reading again = read(names, written, 0, Qt::CaseSensitive);
    if (again.ok)
        Fuzz::require(again.number == reading.number, "written flags read back as they were");
    else
        Fuzz::require(written == QLocale::c().toString(reading.number),
                      "what has no names is written as its number");
    const bool hasName = reading.number != 0 || !names.names(0).isEmpty();
    Fuzz::require(again.ok || !reading.ok || !hasName, "a union of names is written as names");
}

/// The typed road of the one enumeration that every record's metadata go through.
void checkTyped(const QString &text)
{
    using Norvane::MetadataFlags_T;
    const auto &flags = MetadataFlags_T::instance();
    const qint64 number = flags.names().flagsFromString(text, 0, Qt::CaseSensitive, nullptr);
    Fuzz::require(qint64(flags.valueOf(text)) == number, "typed flags read as untyped ones");
    const auto value = flags.valueOf(text);
    Fuzz::require(flags.valueOf(flags.textOf(value)) == value, "typed flags read back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::require(flagsEnumerations().size() >= 10, "the flags enumerations are known");
    if (size < 2)
        return 0;
    const VEnumNames &names = flagsEnumerations().at(data[0] % flagsEnumerations().size())->names();
    const auto cs = (data[1] & 1) != 0 ? Qt::CaseInsensitive : Qt::CaseSensitive;
    const qint64 fallback = (data[1] & 2) != 0 ? names.numbers().last() : 0;
    const QString text = QString::fromUtf8(Fuzz::bytesOf(data + 2, size - 2));

    const Reading reading = read(names, text, fallback, cs);
    if (cs == Qt::CaseSensitive)
        Fuzz::require(!reading.ok || read(names, text, fallback, Qt::CaseInsensitive).ok,
                      "who ignores case reads all that others read");
    Fuzz::require(reading.ok || read(names, text, ~qint64(0), cs).number == -1,
                  "an unknown part adds the fallback");
    checkRoundTrip(names, reading);
    checkTyped(text);
    return 0;
}
