// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Records store the names of values; people read texts in their language. Here is a list to choose
// a printer class from, as a window would show it.
//
//   07-show-texts [LANGUAGE]      LANGUAGE: "it" unless it is given; docs/resources.md has them all
//
// It prints each stored name, and the text that stands for it:
//
//   in it, stored names and what is shown for them:
//     Inkjet    Industriali a getto d'inchiostro
//     Plotter   Plotter
//     Engraver  Incisori laser
//     ...

#include <kilnjet/PrinterClass.h>
#include <kilnjet/VPrinterDriver.h>
#include <vcore/VEnumRegistry.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>
#include <QtCore/QTranslator>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

// [install]
// Makes Qt find the texts of an enumeration in a language; the library itself installs none. What
// a language lacks is shown as the name.
bool install(const QString &enumeration, const QString &language, QCoreApplication &app)
{
    auto *texts = new QTranslator(&app);
    return texts->load(u":/translations/%1_%2.qm"_s.arg(enumeration, language))
        && QCoreApplication::installTranslator(texts);
}
// [install]

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QString language = app.arguments().value(1, u"it"_s);
    if (!install(u"PrinterClass"_s, language, app)) {
        out << "there are no texts in " << language << '\n';
        return 1;
    }
    out << "in " << language << ", stored names and what is shown for them:\n";

    // [list]
    // Every loaded library makes its enumerations known by their names.
    const IVEnum *classes = VEnumRegistry::find(u"PrinterClass"_s);
    for (qint64 number : classes->names().numbers()) {
        const QString name = classes->names().name(number);
        const QString text = QCoreApplication::translate("PrinterClass", name.toUtf8().constData());
        out << "  " << name.leftJustified(10) << text << '\n';
    }
    // [list]

    // Whatever the language: what a record stores is the name.
    VPrinterDriver printer(QUuid::createUuid());
    printer.setPrinterClass(PrinterClass::Engraver);
    const bool stored = printer.toJson().contains(R"("printerClass":"Engraver")");
    const QString shown = QCoreApplication::translate("PrinterClass", "Unknown");
    return stored && (language != u"it" || shown == u"Sconosciuto") ? 0 : 1;
}
