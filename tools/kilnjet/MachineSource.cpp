// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineSource.h"

#include "Catalogue.h"
#include "CheckedFile.h"
#include "Console.h"
#include "Text.h"

#include <QtCore/QFileInfo>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

QList<VPrinterDriver> machinesIn(const QString &name, const QByteArray &text, Console &console)
{
    QList<CheckedFile> files{checkFile(name, text)};
    findRepeats(files);
    const CheckedFile &file = files.constFirst();
    if (hasErrors(file.findings)) {
        if (!console.isJson()) {
            for (const Finding &finding : file.findings)
                console.warn(finding);
        }
        // Not Finding, which means that sound records differ.
        throw Failure{.code = ExitCode::Io,
                      .where = name,
                      .what = u"the records cannot be compared"_s,
                      .why = counted(countErrors(file.findings), u"error"_s),
                      .hint = u"'kilnjet validate' shows them"_s,
                      .details = {{u"findings"_s, toJsonArray(file.findings)}}};
    }
    for (const Finding &finding : file.findings)
        console.warn(finding);
    QList<VPrinterDriver> machines;
    for (const AcceptedRecord &accepted : file.accepted)
        machines.append(accepted.driver);
    return machines;
}

} // namespace

bool isSource(const QString &name)
{
    return RecordFile::isStandardInput(name) || QFileInfo::exists(name);
}

QList<VPrinterDriver> readMachines(const QString &name, const StoreSettings &settings,
                                   Console &console)
{
    const QByteArray text = RecordFile::readAll(name);
    if (!RecordFile::isStandardInput(name) && isStore(text)) {
        StoreSettings own = settings;
        own.path = name;
        return Catalogue(own, Catalogue::Mode::Read, console).machines();
    }
    return byName(machinesIn(name, text, console));
}

} // namespace Norvane::Kilnjet::Tool
