// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDBText.h>

#include "VDBBatch.h"
#include "VDBContents.h"
#include "VDBDevice.h"

namespace Norvane::Database {

/// The state of a store. What it reads stands in VDBTextReading.cpp, what it writes in
/// VDBTextWriting.cpp.
class VDBTextPrivate
{
public:
    bool fail(VDBStatus newStatus);
    bool begin(QIODevice *device, Device::Intent intent);
    bool isUnchanged();
    bool readFile(const VDBReporter &reporter);
    bool acceptContents();
    void forget();
    void forgetBytes();

    bool ensureBytes();
    void listLive();
    VDBRecord recordAt(qsizetype ordinal) const; ///< A null one beyond the ends.
    void giveNext(VDBRecord &record);

    bool addToBatch(const VDBRecord &record);
    bool writeBatch();
    bool compact();

    Device access;
    Device::Intent intent = Device::Intent::Read;
    QString key;
    Signer signer;
    std::chrono::milliseconds lockTimeout = std::chrono::seconds(10);
    VDBReporter reporter;
    VDBStatus status = VDBStatus::Ok;
    bool wasDurable = true;

    // What the file held when it was last seen, and the state of the file at that moment.
    Contents contents;
    std::optional<FileIdentity> identity;
    QByteArray lastBytes; ///< The last ones before the end of the content.

    // Only while open.
    bool mayWrite = false;
    Batch batch;
    QByteArray bytes;
    bool hasBytes = false;
    std::vector<std::size_t> live; ///< The entries to iterate over; valid with the bytes.

private:
    QByteArray tailRepair() const;
    bool syncTail();
    void fillAhead(qint64 end);
    void takeBack(qint64 sizeBefore, qint64 written);
    void rememberBatch(EncodedBatch &&encoded, const QByteArray &repair);
    void rememberEnd(QByteArrayView written);

    bool m_mayFillAhead = true;
};

} // namespace Norvane::Database
