// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "PrintersDb.h"

using namespace Qt::StringLiterals;

namespace Bench {

QString PrintersDb::name() const
{
    return u"vkilnjet"_s;
}

bool PrintersDb::open(const QString &folder)
{
    using Norvane::Kilnjet::VPrintersDb;
    m_db = std::make_unique<VPrintersDb>(folder + u'/' + VPrintersDb::defaultFilename(), u"key"_s);
    m_db->init(false);
    return m_db->isReady();
}

bool PrintersDb::commit(const Drivers &drivers)
{
    m_db->insert(drivers);
    return write();
}

bool PrintersDb::remove(const QList<QUuid> &ids)
{
    m_db->removes(ids);
    return write();
}

bool PrintersDb::write()
{
    m_db->commit();
    return !m_db->isDirty();
}

} // namespace Bench
