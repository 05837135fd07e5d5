// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DisplayTexts.h"

#include "Invocation.h"
#include "Text.h"

#include <vcore/VEnumRegistry.h>

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>

#include <optional>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr QLatin1StringView kLang = "--lang"_L1;

/// What stands before and behind the underscore in the names of the files with texts.
QStringList partsOfFiles(const QString &pattern, qsizetype part)
{
    QStringList parts;
    for (const QString &file : QDir(u":/translations"_s).entryList({pattern}, QDir::Files))
        parts.append(file.chopped(3).split(u'_').at(part));
    return parts;
}

/// The language of a locale as systems write it, "pt_BR.UTF-8" or "pt-BR": its code if there are
/// texts in it, empty for the names themselves ("C", "POSIX"), nothing for any other.
std::optional<QString> languageOf(const QString &locale)
{
    static const QRegularExpression end(u"[-_.@]"_s);
    const QString code = locale.left(locale.indexOf(end)).toLower();
    if (code == "c"_L1 || code == "posix"_L1)
        return QString();
    return displayLanguages().contains(code) ? std::optional(code) : std::nullopt;
}

/// The language of the environment; empty when there are no texts in it.
QString languageOfEnvironment()
{
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            return languageOf(value).value_or(QString());
    }
    return languageOf(QLocale::system().name()).value_or(QString());
}

} // namespace

DisplayTexts::DisplayTexts(const QString &language)
{
    for (const QString &catalogue : displayCatalogues()) {
        QTranslator translator;
        const IVEnum *enumeration = VEnumRegistry::find(catalogue);
        if (enumeration == nullptr
            || !translator.load(u":/translations/%1_%2.qm"_s.arg(catalogue, language)))
            continue;
        const QByteArray context = catalogue.toUtf8();
        for (const qint64 number : enumeration->names().numbers()) {
            const QString name = enumeration->names().names(number).first();
            const QString text =
                translator.translate(context.constData(), name.toUtf8().constData());
            if (!text.isEmpty())
                m_texts[catalogue].insert(name, text);
        }
    }
}

DisplayTexts DisplayTexts::from(const Invocation &invocation)
{
    if (invocation.has(kLang))
        return asked(invocation);
    const QString language = languageOfEnvironment();
    return language.isEmpty() ? DisplayTexts() : DisplayTexts(language);
}

DisplayTexts DisplayTexts::asked(const Invocation &invocation)
{
    const QString language = languageOf(invocation.value(kLang)).value_or(QString());
    return language.isEmpty() ? DisplayTexts() : DisplayTexts(language);
}

bool DisplayTexts::has(const QString &enumeration) const
{
    return m_texts.contains(enumeration);
}

QString DisplayTexts::text(const QString &enumeration, const QString &name) const
{
    return m_texts.value(enumeration).value(name, name);
}

QString DisplayTexts::label(const QString &enumeration, const QString &name) const
{
    const QString shown = text(enumeration, name);
    const bool isShared = m_texts.value(enumeration).keys(shown).size() > 1;
    return isShared ? u"%1 (%2)"_s.arg(shown, name) : shown;
}

qsizetype DisplayTexts::count() const
{
    qsizetype count = 0;
    for (const auto &texts : m_texts)
        count += texts.size();
    return count;
}

QStringList displayLanguages()
{
    // The library's own catalogue is there in every language.
    static const QStringList languages = partsOfFiles(u"vkilnjet_*.qm"_s, 1);
    return languages;
}

QStringList displayCatalogues()
{
    static const QStringList catalogues = [] {
        QStringList names = partsOfFiles(u"*_en.qm"_s, 0);
        names.removeIf([](const QString &name) { return VEnumRegistry::find(name) == nullptr; });
        return names;
    }();
    return catalogues;
}

void refuseUnknownLanguage(const Invocation &invocation)
{
    if (!invocation.has(kLang) || languageOf(invocation.value(kLang)))
        return;
    throw Failure{.code = ExitCode::Usage,
                  .where = kLang,
                  .what = u"there are no texts in %1"_s.arg(quoted(invocation.value(kLang))),
                  .hint = u"there are texts in %1; C shows the stored names"_s.arg(
                      displayLanguages().join(u", "_s))};
}

} // namespace Norvane::Kilnjet::Tool
