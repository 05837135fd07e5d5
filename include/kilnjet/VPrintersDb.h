// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Export.h>
#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QIODevice>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUuid>

#include <memory>

namespace Norvane::Kilnjet {

class VPrintersDbPrivate;

/// The persistent catalogue of printer drivers, keyed by content id (`dataId()`).
///
/// Edits change memory at once and reach the file 5 s after the last one, at commit(), or at
/// destruction. Drivers go in and come out as copies; nothing returned refers into the database.
/// Volatile entries live in memory only. Listings come in ascending order of the keys.
///
/// Threads: edits and queries from any thread, serialised by one recursive lock; construct, init()
/// and destroy in the owner's thread. After init(true) the load and the commits run on the global
/// thread pool, one at a time and in order; signals come from the thread that does the work. An
/// edit waits for a load that was asked for before it; a query gives what is there. Every operation
/// may be called from a slot, direct or queued: none waits for the thread that calls it.
/// Failures: bool results, isNull() and error(). Nothing throws, nothing is logged. A commit that
/// fails keeps what it could not write for the next one.
class VKILNJET_EXPORT VPrintersDb : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VPrintersDb)

public:
    /// Keeps its entries in the file `fileName`, signed with `key` (empty: not signed). Nothing is
    /// read before init().
    VPrintersDb(const QString &fileName, const QString &key, QObject *parent = nullptr);
    /// Uses `device`, which stays the caller's and must outlive the database; null means "no file".
    VPrintersDb(QIODevice *device, const QString &key, QObject *parent = nullptr);
    /// Waits for the running job and writes what is still pending.
    ~VPrintersDb() override;

    /// The usual name of the file, without a folder: "Printers.tdb".
    static QString defaultFilename();

    /// Loads the file, or creates it when it is missing or empty. With `background` this returns at
    /// once and later commits run in the background too; else all is done on return.
    void init(bool background);
    /// True when no load or commit is outstanding and the last load did not fail. Takes no lock,
    /// like isNull().
    bool isReady() const;
    /// True when the last load failed.
    bool isNull() const;
    /// True when there are edits that the file does not have yet.
    bool isDirty() const;
    /// Blocks until the outstanding loads and commits are done and have said so. Inside a slot that
    /// one of them calls it does the others.
    void waitForFinished();

    /// Stores each valid driver under its content id; an invalid one removes the entry of that id.
    /// Always true.
    bool insert(const QList<VPrinterDriver> &drivers);
    /// The same for one driver.
    bool insert(const VPrinterDriver &driver);
    /// Adds valid drivers that are never written, unless their content id belongs to a persistent
    /// entry. Volatile entries of earlier calls stay, but are no longer marked. True when anything
    /// changed.
    bool insertVolatile(const QList<VPrinterDriver> &drivers);
    /// The same for one driver.
    bool insertVolatile(const VPrinterDriver &driver);
    /// As insertVolatile(), and drops the volatile entries that are not in the list.
    bool replaceVolatile(const QList<VPrinterDriver> &drivers);
    /// The same for one driver: it becomes the only volatile entry.
    bool replaceVolatile(const VPrinterDriver &driver);
    /// Removes the entries; true when there was at least one.
    bool removes(const QList<QUuid> &ids);
    /// Removes the entries that have the content ids of `drivers`; true when there was at least
    /// one.
    bool removes(const QList<VPrinterDriver> &drivers);
    /// Removes the entry; true when there was one.
    bool remove(const QUuid &id);
    /// Removes the entry that has the content id of `driver`; true when there was one.
    bool remove(const VPrinterDriver &driver);
    /// Removes all entries; true when there was at least one.
    bool clear();

    /// True when there is an entry, volatile or not, under the content id.
    bool contains(const QUuid &id) const;
    /// True when the last volatile call placed an entry under `id`, also after it was removed.
    bool isVolatile(const QUuid &id) const;
    /// How many entries there are, volatile ones included.
    int count() const;
    /// How many ids isVolatile() is true for.
    int volatileCount() const;
    /// A copy of the entry, or an empty driver when there is none.
    VPrinterDriver value(const QUuid &id);
    /// A copy of the entry that has the content id of `driver`, or an empty driver.
    VPrinterDriver value(const VPrinterDriver &driver);
    /// Copies of all entries, volatile ones included, in ascending order of their content ids.
    QList<VPrinterDriver> values();
    /// The content ids of all entries, volatile ones included, ascending.
    QList<QUuid> idList();
    /// A name that no entry but that of `id` has: `name` up to its first " - ", with `suffix`
    /// appended, and " - 1" to " - 99" behind it if need be. Null when all of these are taken.
    QString createUniqueName(const QUuid &id, const QString &name, const QString &suffix);
    /// The same for the content id and the name of `driver`.
    QString createUniqueName(const VPrinterDriver &driver, const QString &suffix);

    /// Copies every entry, volatile ones too, into another file, then compacts this one. The result
    /// is the compaction's; the copy is not checked. An empty file name is defaultFilename().
    bool backup(const QString &directory, const QString &fileName);
    /// Takes the entries of another file in, replacing this database's content unless `merge`, and
    /// writes them. False, and nothing changed, when there is no such file or it cannot be read.
    bool restore(const QString &directory, const QString &fileName, bool merge);
    /// The same from the file defaultFilename() in `directory`.
    bool restore(const QString &directory, bool merge);
    /// Drops what is no longer live from the file.
    bool purge();
    /// Builds the file's index anew, then writes what is pending and loads everything again.
    bool reindex();

Q_SIGNALS:
    /// A load has succeeded.
    void initialized();
    /// A commit has written its changes.
    void committed();
    /// Entries have changed in memory. Emitted with the lock held.
    void changed();
    /// Follows every initialized(), in the owner's thread.
    void ready();
    /// A load or a commit has failed.
    void error();

public Q_SLOTS:
    /// Writes the changes made so far; in the background after init(true).
    void commit();
    /// Drops every volatile entry.
    void clearVolatile();

private Q_SLOTS:
    void onInitialized();
    void onCommitted();

private:
    void _init(); ///< Loads. Takes the lock by itself.
    void _commit(); ///< Writes. Likewise.
    bool _insert(const QList<VPrinterDriver> &drivers); ///< Lock held by the caller; emits nothing.
    bool _insertVolatile(const QList<VPrinterDriver> &drivers, bool replace); ///< Likewise.
    bool _removes(const QList<QUuid> &ids); ///< Likewise.
    bool _clear(); ///< Likewise.
    QString _createUniqueName(const QUuid &id, const QString &name,
                              const QString &suffix) const; ///< Likewise.

    std::unique_ptr<VPrintersDbPrivate> d;
};

} // namespace Norvane::Kilnjet
