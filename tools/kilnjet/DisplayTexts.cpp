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

#include <algorithm>
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

DisplayTexts::DisplayTexts() = default;
DisplayTexts::DisplayTexts(DisplayTexts &&other) noexcept = default;
DisplayTexts::~DisplayTexts() = default;

DisplayTexts::DisplayTexts(const QString &language)
{
    for (const QString &catalogue : displayCatalogues()) {
        auto texts = std::make_unique<QTranslator>();
        if (texts->load(u":/translations/%1_%2.qm"_s.arg(catalogue, language)))
            m_catalogues.emplace(catalogue, std::move(texts));
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
    return m_catalogues.contains(enumeration);
}

QString DisplayTexts::text(const QString &enumeration, const QString &name) const
{
    const auto catalogue = m_catalogues.find(enumeration);
    if (catalogue == m_catalogues.end())
        return name;
    const QString text =
        catalogue->second->translate(enumeration.toUtf8().constData(), name.toUtf8().constData());
    return text.isEmpty() ? name : text;
}

int DisplayTexts::count(const QString &enumeration) const
{
    const IVEnum *values = VEnumRegistry::find(enumeration);
    const auto catalogue = m_catalogues.find(enumeration);
    if (values == nullptr || catalogue == m_catalogues.end())
        return 0;
    const QByteArray context = enumeration.toUtf8();
    const auto &numbers = values->names().numbers();
    return int(std::count_if(numbers.begin(), numbers.end(), [&](qint64 number) {
        const QByteArray name = values->names().names(number).first().toUtf8();
        return !catalogue->second->translate(context.constData(), name.constData()).isEmpty();
    }));
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
