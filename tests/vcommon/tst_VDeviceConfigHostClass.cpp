// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Children of a class that implements the interface by itself, without our base.

#include "support/TestConfig.h"

#include <QtCore/QJsonArray>
#include <QtTest/QTest>

using namespace Support;
using Config = TestConfig<>;

namespace {

/// A record of the host's own, which happens to keep its data in one of another class.
class HostRecord final : public IVDeviceConfig
{
public:
    explicit HostRecord(const QString &name)
        : m_data(name)
    { }

    static QUuid kind() { return QUuid::createUuidV5(QUuid(), u"kind of the host"_s); }

    Norvane::Interfaces::ICloneable *clone() const override { return new HostRecord(*this); }
    bool equalsTo(const Norvane::Interfaces::IEquatable *other) const override
    {
        return sameTypeAs(other) && m_data == static_cast<const HostRecord &>(*other).m_data;
    }
    using IVDeviceConfig::toString;
    QString toString(const QString &format, const QLocale &locale) const override
    {
        return m_data.toString(format, locale);
    }
    QJsonObject toJsonObject() const override
    {
        QJsonObject object = m_data.toJsonObject();
        object.insert("id"_L1, kind().toString());
        return object;
    }
    QByteArray hash() const override { return m_data.hash(); }

    QUuid id() const override { return kind(); }
    QUuid deviceId() const override { return m_data.deviceId(); }
    void setDeviceId(const QUuid &deviceId) override { m_data.setDeviceId(deviceId); }
    bool isNull() const override { return m_data.isNull(); }
    bool isEmpty() const override { return m_data.isEmpty(); }
    bool isValid() const override { return m_data.isValid(); }
    VVersion version() const override { return m_data.version(); }
    void setVersion(const VVersion &version) override { m_data.setVersion(version); }
    QDateTime dateTime() const override { return m_data.dateTime(); }
    void setDateTime(const QDateTime &dateTime) override { m_data.setDateTime(dateTime); }
    QString name() const override { return m_data.name(); }
    void setName(const QString &name) override { m_data.setName(name); }
    QString description() const override { return m_data.description(); }
    void setDescription(const QString &text) override { m_data.setDescription(text); }
    void insert(const QList<IVDeviceConfig *> &configs) override { m_data.insert(configs); }
    void insert(IVDeviceConfig *config, bool takeOwnership) override
    {
        m_data.insert(config, takeOwnership);
    }
    bool remove(const QUuid &id, bool deep) override { return m_data.remove(id, deep); }
    bool remove(IVDeviceConfig *config, bool deep) override { return m_data.remove(config, deep); }
    bool contains(const QUuid &id, bool deep) const override { return m_data.contains(id, deep); }
    bool contains(IVDeviceConfig *config, bool deep) const override
    {
        return m_data.contains(config, deep);
    }
    int count(const QUuid &id, bool deep) const override { return m_data.count(id, deep); }
    QList<IVDeviceConfig *> values(const QUuid &id) const override { return m_data.values(id); }
    bool save(QIODevice *device) override { return m_data.save(device); }
    bool load(QIODevice *device) override { return m_data.load(device); }
    bool setJsonObject(const QJsonObject &object) override { return m_data.setJsonObject(object); }
    QUuid dataId() const override { return m_data.dataId(); }

private:
    Config m_data;
};

/// A record with a child of the host's, which has a child of our class.
Config family()
{
    Config parent(u"parent"_s);
    auto host = std::make_unique<HostRecord>(u"host"_s);
    host->insert(newConfig(u"grandchild"_s), true);
    parent.insert(host.release(), true);
    return parent;
}

} // namespace

class tst_VDeviceConfigHostClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void child_isCountedAndWrittenLikeAnyOther();
    void copies_areEqualAndIndependent();
    void copiesOfCopies_areNeverShared();
    void grandchild_isFoundAndRemovedThroughIt();
};

void tst_VDeviceConfigHostClass::child_isCountedAndWrittenLikeAnyOther()
{
    const Config parent = family();
    QCOMPARE(parent.count(HostRecord::kind(), false), 1);
    QCOMPARE(parent.count(QUuid(), true), 2);
    QCOMPARE(childNames(parent), QStringList{u"host"_s});
    const QJsonArray children = parent.toJsonObject().value("children"_L1).toArray();
    QCOMPARE(children.size(), 1);
    QCOMPARE(children[0].toObject().value("id"_L1).toString(), HostRecord::kind().toString());
}

void tst_VDeviceConfigHostClass::copies_areEqualAndIndependent()
{
    const Config parent = family();
    Config copy = parent;
    QVERIFY(copy == parent);
    copy.values(QUuid()).first()->setName(u"renamed"_s);
    QVERIFY(copy != parent);
    QCOMPARE(childNames(parent), QStringList{u"host"_s});
    copy = parent;
    QVERIFY(copy == parent);
}

// Of its class nothing is known, such as whether many threads may look at one object.
void tst_VDeviceConfigHostClass::copiesOfCopies_areNeverShared()
{
    const Config parent = family();
    // NOLINTBEGIN(performance-unnecessary-copy-initialization): the copies are what is tested.
    const Config copy = parent;
    const Config another = copy;
    // NOLINTEND(performance-unnecessary-copy-initialization)
    const IVDeviceConfig *const one = copy.values(QUuid()).first();
    const IVDeviceConfig *const two = another.values(QUuid()).first();
    QVERIFY(one != two);
    QVERIFY(one->equalsTo(two));
}

void tst_VDeviceConfigHostClass::grandchild_isFoundAndRemovedThroughIt()
{
    Config parent = family();
    IVDeviceConfig *const grandchild = parent.values(QUuid()).first()->values(QUuid()).first();
    QVERIFY(parent.contains(grandchild, true));
    QVERIFY(!parent.contains(grandchild, false));
    QVERIFY(!parent.remove(grandchild, false));
    QVERIFY(parent.remove(grandchild, true));
    QVERIFY(!parent.contains(Config::kind(), true));
    QCOMPARE(parent.count(QUuid(), true), 1);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigHostClass)
#include "tst_VDeviceConfigHostClass.moc"
