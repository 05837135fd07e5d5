// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

struct Invocation;

/// What people read instead of the stored names of values, in one language.
class DisplayTexts
{
public:
    /// The stored names themselves.
    DisplayTexts() = default;
    /// The texts of the language with that code; the names where there is none.
    explicit DisplayTexts(const QString &language);

    /// The texts of the language that the option --lang asks for, else of the environment's.
    static DisplayTexts from(const Invocation &invocation);
    /// Only those that --lang asks for: what scripts read does not depend on the environment.
    static DisplayTexts asked(const Invocation &invocation);

    /// True when there are texts for values of the enumeration with this short name.
    bool has(const QString &enumeration) const;
    /// The text of the value with this name, or the name when there is none.
    QString text(const QString &enumeration, const QString &name) const;
    /// As text(), with the name behind it where other values have the same text: "Grayscale
    /// (HexaGrayscale)".
    QString label(const QString &enumeration, const QString &name) const;
    /// How many texts there are altogether.
    qsizetype count() const;

private:
    QHash<QString, QHash<QString, QString>> m_texts; ///< By short name, then by the value's name.
};

/// The codes of the languages that the library has texts in, in alphabetical order.
QStringList displayLanguages();
/// The short names of the enumerations that it has texts for.
QStringList displayCatalogues();
/// Throws a Failure when --lang names a language that there is none of.
void refuseUnknownLanguage(const Invocation &invocation);

} // namespace Norvane::Kilnjet::Tool
