// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "KeyValueContender.h"

namespace Bench {

KeyValueContender::KeyValueContender(const QString &name, std::unique_ptr<KeyValueStore> store,
                                     Decoder decoder)
    : m_name(name)
    , m_store(std::move(store))
    , m_decoder(decoder)
{ }

bool KeyValueContender::open(const QString &folder)
{
    return timed([&] { return m_store->open(folder); });
}

void KeyValueContender::close()
{
    timed([&] {
        m_store->close();
        return true;
    });
}

std::optional<Drivers> KeyValueContender::load()
{
    Drivers drivers;
    Clock::duration decoding{};
    const bool isRead = timed([&] {
        return m_store->readAll([&](QByteArrayView key, QByteArrayView text) {
            const Clock::time_point start = Clock::now();
            const std::optional<VPrinterDriver> driver = driverFrom(m_decoder, key, text);
            if (driver)
                drivers.append(*driver);
            decoding += Clock::now() - start;
            return driver.has_value();
        });
    });
    m_storeTime -= decoding;
    return isRead ? std::optional(drivers) : std::nullopt;
}

VPrinterDriver KeyValueContender::value(const QUuid &id)
{
    const QByteArray key = keyOf(id);
    const QByteArray text = timed([&] { return m_store->read(key); });
    return driverFrom(m_decoder, key, text).value_or(VPrinterDriver());
}

bool KeyValueContender::commit(const Drivers &drivers)
{
    QList<KeyValueStore::Change> changes;
    changes.reserve(drivers.size());
    for (const VPrinterDriver &driver : drivers)
        changes.append({keyOf(driver.dataId()), textOf(driver, m_decoder)});
    return timed([&] { return m_store->write(changes); });
}

bool KeyValueContender::remove(const QList<QUuid> &ids)
{
    QList<KeyValueStore::Change> changes;
    changes.reserve(ids.size());
    for (const QUuid &id : ids)
        changes.append({keyOf(id), {}});
    return timed([&] { return m_store->write(changes); });
}

bool KeyValueContender::compact()
{
    return timed([&] { return m_store->compact(); });
}

std::optional<Clock::duration> KeyValueContender::takeStoreTime()
{
    return std::exchange(m_storeTime, {});
}

} // namespace Bench
