// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "CheckedFile.h"

#include <vcore/VParallel.h>

#include <QtCore/QHash>

#include <vector>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// How many records make a thread of their own worth while.
constexpr std::size_t kWorthAThread = 16;

} // namespace

CheckedFile checkFile(const QString &name, const QByteArray &text)
{
    CheckedFile file{RecordFile(name, text), {}, {}};
    file.findings = file.source.findings();
    QList<RecordFinding> found;
    const QList<RecordInput> &records = file.source.records();
    std::vector<CheckedRecord> checked(std::size_t(records.size()));
    parallelFor(checked.size(), kWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            checked[i] = checkRecord(records.at(qsizetype(i)).value);
    });
    for (qsizetype i = 0; i < records.size(); ++i) {
        const CheckedRecord &record = checked[std::size_t(i)];
        for (const Finding &finding : record.findings)
            found.append({i, finding});
        if (record.driver)
            file.accepted.append({*record.driver, i});
    }
    file.findings += file.source.located(found);
    return file;
}

void findRepeats(QList<CheckedFile> &files)
{
    QHash<QUuid, QString> places;
    for (CheckedFile &file : files) {
        QList<RecordFinding> repeats;
        for (const AcceptedRecord &accepted : file.accepted) {
            const QUuid id = accepted.driver.dataId();
            const QString label = file.source.records().at(accepted.record).label;
            const QString place =
                label.isEmpty() ? file.source.name() : file.source.name() + u": "_s + label;
            if (!places.contains(id)) {
                places.insert(id, place);
                continue;
            }
            const Finding finding{
                .reason = u"this record has the content id of %1 and would replace it"_s.arg(
                    places.value(id)),
                .hint = u"it is made of device id, faces mode, printer class and maximum faces"_s};
            repeats.append({accepted.record, finding});
        }
        file.findings += file.source.located(repeats);
    }
}

} // namespace Norvane::Kilnjet::Tool
