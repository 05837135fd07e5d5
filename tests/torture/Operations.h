// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/FileCalls.h"
#include "support/Printers.h"

#include <QtCore/QFileInfo>

#include <vector>

// What a database does with files, one operation at a time, for tests that interfere.

namespace Torture {

using namespace Support;

/// One operation, and what the file holds before it and after it. It may leave nothing else.
struct Operation
{
    const char *name;
    QStringList before; ///< The names of the stored drivers; those of `after` are the whole rest.
    QStringList after;
    /// Whether the file is there before.
    bool isOnFile = true;
    /// Loads and edits; nothing interferes yet.
    void (*prepare)(VPrintersDb &database);
    /// True when the database says that it is done.
    bool (*run)(VPrintersDb &database, const QString &folder);
};

inline const QStringList kBase = {u"A"_s, u"B"_s, u"C"_s, u"D"_s};
inline const QStringList kOther = {u"C"_s, u"M"_s, u"N"_s};

inline void load(VPrintersDb &database)
{
    database.init(false);
}

inline bool commit(VPrintersDb &database, const QString & /*folder*/)
{
    int commits = 0;
    const auto connection = QObject::connect(
        &database, &VPrintersDb::committed, &database, [&commits] { ++commits; },
        Qt::DirectConnection);
    database.commit();
    QObject::disconnect(connection);
    return commits == 1;
}

inline bool init(VPrintersDb &database, const QString & /*folder*/)
{
    database.init(false);
    return database.isReady();
}

inline const std::vector<Operation> &operations()
{
    static const std::vector<Operation> all = {
        {"create", {}, {}, false, [](VPrintersDb &) {}, init},
        {"load", kBase, kBase, true, [](VPrintersDb &) {}, init},
        {"insert", kBase, kBase + QStringList{u"E"_s}, true,
         [](VPrintersDb &database) {
             load(database);
             database.insert(printer(u"E"_s));
         },
         commit},
        {"remove",
         kBase,
         {u"B"_s, u"C"_s, u"D"_s},
         true,
         [](VPrintersDb &database) {
             load(database);
             database.remove(printer(u"A"_s));
         },
         commit},
        {"batch",
         kBase,
         {u"C"_s, u"D"_s, u"E"_s, u"F"_s, u"G"_s},
         true,
         [](VPrintersDb &database) {
             load(database);
             database.insert(printers({u"E"_s, u"F"_s, u"G"_s}));
             database.removes(printers({u"A"_s, u"B"_s}));
         },
         commit},
        {"purge", kBase, kBase, true, load,
         [](VPrintersDb &database, const QString &) { return database.purge(); }},
        {"reindex", kBase, kBase, true, load,
         [](VPrintersDb &database, const QString &) { return database.reindex(); }},
        {"backup", kBase, kBase, true, load,
         [](VPrintersDb &database, const QString &folder) {
             return database.backup(folder, u"Copy.tdb"_s);
         }},
        {"restore", kBase, kOther, true, load,
         [](VPrintersDb &database, const QString &folder) {
             return database.restore(folder, u"Other.tdb"_s, false) && !database.isDirty();
         }},
    };
    return all;
}

inline QString fileIn(const QString &folder)
{
    return folder + u"/Printers.tdb"_s;
}

/// Lays out the folder as the operation finds it.
[[nodiscard]] inline bool layOut(const Operation &operation, const QString &folder)
{
    // With something to purge in it.
    static const QByteArray base = [] {
        QBuffer buffer;
        VPrintersDb database(&buffer, QString());
        database.init(false);
        database.insert(printers(kBase + kOther));
        database.commit();
        database.removes(printers({u"M"_s, u"N"_s}));
        database.commit();
        return buffer.data();
    }();
    static const QByteArray other = bytesWith(printers(kOther));
    for (const QString &name : {u"Printers.tdb"_s, u"Printers.tdb.new"_s, u"Copy.tdb"_s})
        QFile::remove(folder + u'/' + name);
    return (!operation.isOnFile || writeBytes(fileIn(folder), base))
        && writeBytes(folder + u"/Other.tdb"_s, other);
}

/// A call that an operation makes.
struct RecordedCall
{
    FileCall::Kind kind;
    std::string name;
    std::size_t size;
};

/// The calls when nobody interferes; none when the operation fails.
inline std::vector<RecordedCall> callsOf(const Operation &operation, const QString &folder)
{
    std::vector<RecordedCall> calls;
    VPrintersDb database(fileIn(folder), QString());
    operation.prepare(database);
    FileCalls::setJudge([&calls](const FileCall &call) {
        calls.push_back({call.kind, call.name, call.size});
        return FileCallFate();
    });
    const bool isDone = operation.run(database, folder);
    FileCalls::setJudge(nullptr);
    return isDone ? calls : std::vector<RecordedCall>();
}

} // namespace Torture
