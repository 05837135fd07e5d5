// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Contender.h"
#include "DriverText.h"
#include "KeyValueStore.h"

namespace Bench {

/// A catalogue kept as compact JSON texts in a store of keys and values.
class KeyValueContender : public Contender
{
public:
    KeyValueContender(const QString &name, std::unique_ptr<KeyValueStore> store,
                      Decoder decoder = Decoder::QtJson);

    QString name() const override { return m_name; }
    bool open(const QString &folder) override;
    void close() override;
    bool holdsItsFiles() const override { return m_store->holdsItsFiles(); }
    std::optional<Drivers> load() override;
    VPrinterDriver value(const QUuid &id) override;
    bool commit(const Drivers &drivers) override;
    bool remove(const QList<QUuid> &ids) override;
    bool compact() override;
    std::optional<Clock::duration> takeStoreTime() override;

protected:
    const KeyValueStore &store() const { return *m_store; }

private:
    /// Runs `call`, and adds what it takes to the time of the store.
    template<typename Call>
    auto timed(Call call)
    {
        const Clock::time_point start = Clock::now();
        const auto result = call();
        m_storeTime += Clock::now() - start;
        return result;
    }

    QString m_name;
    std::unique_ptr<KeyValueStore> m_store;
    Decoder m_decoder;
    Clock::duration m_storeTime{};
};

} // namespace Bench
