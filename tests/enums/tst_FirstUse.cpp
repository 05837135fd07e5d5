// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/Enumerations.h"

#include <vcore/VConvert.h>
#include <vcore/VEnumRuntimeLoader.h>

#include <QtTest/QTest>

#include <atomic>
#include <barrier>
#include <thread>
#include <vector>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

constexpr int kThreads = 8;

/// Adds one name and counts how often it was asked to. It is registered while it lives.
class CountingLoader final : public IVEnumRuntimeLoader
{
public:
    explicit CountingLoader(const QString &name)
        : m_name(name)
        , m_isInserted(VEnumRuntimeLoader::insert(this))
    { }
    ~CountingLoader() override { VEnumRuntimeLoader::remove(this); }
    Q_DISABLE_COPY_MOVE(CountingLoader)

    QString name() const override { return m_name; }
    void applyTo(IVEnum *object) override
    {
        ++m_calls;
        object->names().add(1000, u"Added"_s);
    }
    bool isInserted() const { return m_isInserted; }
    int calls() const { return m_calls; }

private:
    QString m_name;
    bool m_isInserted;
    std::atomic<int> m_calls = 0;
};

/// Runs `work` on all threads at once and gives their results.
template<typename Work>
auto onAllThreads(Work work)
{
    std::vector<decltype(work())> results(kThreads);
    std::barrier start(kThreads);
    std::vector<std::jthread> threads;
    threads.reserve(results.size());
    for (auto &result : results) {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            result = work();
        });
    }
    threads.clear();
    return results;
}

} // namespace

// Each test is the first to use its enumeration in this process.
class tst_FirstUse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_buildsNoRuntimeObject();
    void directory_buildsOneObjectForAllThreads();
    void converter_buildsOneObjectForAllThreads();
    void framework_buildsOneObjectForAllThreads();
};

// A loader that comes after the library was loaded is still in time.
void tst_FirstUse::load_buildsNoRuntimeObject()
{
    const CountingLoader loader(u"ElaborationType"_s);
    QVERIFY(loader.isInserted());
    QVERIFY(VEnumRegistry::names().contains(u"ElaborationType"_s));
    QCOMPARE(loader.calls(), 0);
    const IVEnum *const runtime = VEnumRegistry::find(u"ElaborationType"_s);
    QCOMPARE(loader.calls(), 1);
    QCOMPARE(runtime->names().numbers().size(), 85);
    QCOMPARE(Tables::typed<ElaborationType>(*runtime).textOf(ElaborationType(1000)), u"Added"_s);
}

void tst_FirstUse::directory_buildsOneObjectForAllThreads()
{
    const CountingLoader loader(u"Channel"_s);
    QVERIFY(loader.isInserted());
    const auto objects = onAllThreads([] { return VEnumRegistry::find(u"Channel"_s); });
    QCOMPARE(loader.calls(), 1);
    for (const IVEnum *object : objects) {
        QVERIFY(object != nullptr);
        QCOMPARE(object, objects.front());
    }
    QCOMPARE(objects.front()->names().numbers().size(), 82);
}

void tst_FirstUse::converter_buildsOneObjectForAllThreads()
{
    const CountingLoader loader(u"LevelManagement"_s);
    QVERIFY(loader.isInserted());
    const auto texts = onAllThreads([] {
        return VConvert::toString(QVariant::fromValue(LevelManagement::HexaGrayscale),
                                  QLocale::c());
    });
    QCOMPARE(loader.calls(), 1);
    for (const QString &text : texts)
        QCOMPARE(text, u"HexaGrayscale"_s);
}

void tst_FirstUse::framework_buildsOneObjectForAllThreads()
{
    const CountingLoader loader(u"WebColor"_s);
    QVERIFY(loader.isInserted());
    const auto objects = onAllThreads([] { return &WebColor_T::instance(); });
    QCOMPARE(loader.calls(), 1);
    for (const WebColor_T *object : objects) {
        QCOMPARE(object, objects.front());
        QCOMPARE(object->valueOf(u"Added"_s), WebColor(1000));
    }
}

QTEST_GUILESS_MAIN(tst_FirstUse)
#include "tst_FirstUse.moc"
