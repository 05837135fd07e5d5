// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDatabase.h>
#include <vcommon/VDBStatus.h>

#include <QtCore/QList>

#include <chrono>
#include <memory>

namespace Norvane::Database {

class VDBTextPrivate;

/// A durable store of records in an append-only text file; docs/file-format.md has every byte.
///
/// A batch between open() and close() is all or nothing: after a crash at any byte the file opens
/// as it was before the batch or after it. When close() returns and wasDurable() is true, the batch
/// survives a power cut. A batch of k records costs O(k) and one sync, and opening a file that
/// nobody else has changed since does not read it again.
///
/// Two processes may use one file: a lock of the operating system stands between open() and
/// close(), shared by those who only read, and open() waits for it no longer than lockTimeout().
///
/// The key signs, it does not hide. A file made with a key opens with that key only; with an empty
/// key any file can be read, and a file without a key also written. setKey()'s second argument says
/// what the next open() is for: empty but not null to read, null to write.
///
/// The device is a closed QFile, which stays closed and only tells the name of the file, or any
/// random-access device given open or closed; it is left as it was found and stays the caller's.
///
/// Threads: one at a time.
/// Failures: bool results, status() and errorString(). Nothing throws, nothing is logged. A file
/// that cannot be used is left as it is, byte for byte.
class VCOMMON_EXPORT VDBText final : public IVDatabase
{
public:
    /// Options of create(), to be combined.
    enum Option
    {
        WithCulture = 1, ///< Each record names the locale of its values.
        WithSignature =
            2, ///< Each record is signed. Always so; kept in the header for other programs.
    };

    /// A store that is not open yet, without a key.
    VDBText();
    Q_DISABLE_COPY_MOVE(VDBText)
    ~VDBText() override;

    void close() override;
    [[nodiscard]] bool open(QIODevice *device) override;
    [[nodiscard]] bool create(QIODevice *device, const QString &keyField, const int &option,
                              const QLocale &locale, const QString &format) override;
    void setKey(const QString &key, const QString &extra) override;
    bool insert(const VDBRecord &record) override;
    bool remove(const QString &id) override;
    [[nodiscard]] bool purge() override;
    bool contains(const QString &id) override;
    void first(VDBRecord &record) override;
    void last(VDBRecord &record) override;
    QString key() override;
    [[nodiscard]] bool reindex() override;
    void next(VDBRecord &record) override;

    /// Every record in file order, as a walk from first() to last() meets them; cheap, since they
    /// share the bytes that were read. Each may be used on another thread, and after close().
    QList<VDBRecord> values();

    /// True between a successful open() or create() and close().
    bool isOpen() const;
    /// How the last open(), create(), close(), purge() or reindex() ended.
    VDBStatus status() const;
    /// The system's words for the last failure; empty when there was none.
    QString errorString() const;
    /// False when the last close() had a batch that did not become durable; the file is then as it
    /// was before that batch.
    bool wasDurable() const;
    /// How many records there are, damaged ones included; valid while open.
    qsizetype count() const;
    /// True when the store is signed with a key; valid while open.
    bool isKeyed() const;

    /// The version of the file's format that is written and read.
    static int formatVersion();

    /// How long open() and create() wait for another process; 10 seconds at first.
    std::chrono::milliseconds lockTimeout() const;
    /// Sets how long the next open() or create() waits; 0 does not wait.
    void setLockTimeout(std::chrono::milliseconds timeout);
    /// Who hears of damage during the next open() or reindex() that reads the file; may be empty. A
    /// store with a reporter always reads the whole file.
    void setReporter(const VDBReporter &reporter);

private:
    std::unique_ptr<VDBTextPrivate> d;
};

} // namespace Norvane::Database
