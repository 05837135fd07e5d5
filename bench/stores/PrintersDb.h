// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Contender.h"

#include <kilnjet/VPrintersDb.h>

namespace Bench {

/// Our own database, its file signed with a key.
class PrintersDb : public Contender
{
public:
    QString name() const override;
    bool open(const QString &folder) override;
    void close() override { m_db.reset(); }
    /// It holds the file while it reads or writes, and not in between.
    bool holdsItsFiles() const override { return false; }
    std::optional<Drivers> load() override { return m_db->values(); }
    VPrinterDriver value(const QUuid &id) override { return m_db->value(id); }
    bool commit(const Drivers &drivers) override;
    bool remove(const QList<QUuid> &ids) override;
    bool compact() override { return m_db->purge(); }

private:
    bool write();

    std::unique_ptr<Norvane::Kilnjet::VPrintersDb> m_db;
};

} // namespace Bench
