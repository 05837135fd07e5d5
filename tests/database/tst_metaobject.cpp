// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <QtTest/QTest>

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QMetaMethod>

using namespace Qt::StringLiterals;
using Norvane::Kilnjet::VPrintersDb;

/// What a host sees of the class through the meta-object system.
class tst_metaobject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void class_hasItsFullName();
    void methods_keepTheirIndices_data();
    void methods_keepTheirIndices();
    void methods_areNoMoreThanThese();
    void class_translatesInItsOwnContext();
};

void tst_metaobject::class_hasItsFullName()
{
    QCOMPARE(VPrintersDb::staticMetaObject.className(), "Norvane::Kilnjet::VPrintersDb");
    QCOMPARE(VPrintersDb::staticMetaObject.superClass()->className(), "QObject");
}

void tst_metaobject::methods_keepTheirIndices_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<QMetaMethod::MethodType>("type");
    QTest::addColumn<QMetaMethod::Access>("access");

    const auto row = [](int index, const char *signature, QMetaMethod::MethodType type,
                        QMetaMethod::Access access) {
        QTest::addRow("%d is %s", index, signature)
            << index << QByteArray(signature) << type << access;
    };
    row(0, "initialized()", QMetaMethod::Signal, QMetaMethod::Public);
    row(1, "committed()", QMetaMethod::Signal, QMetaMethod::Public);
    row(2, "changed()", QMetaMethod::Signal, QMetaMethod::Public);
    row(3, "ready()", QMetaMethod::Signal, QMetaMethod::Public);
    row(4, "error()", QMetaMethod::Signal, QMetaMethod::Public);
    row(5, "commit()", QMetaMethod::Slot, QMetaMethod::Public);
    row(6, "clearVolatile()", QMetaMethod::Slot, QMetaMethod::Public);
    row(7, "onInitialized()", QMetaMethod::Slot, QMetaMethod::Private);
    row(8, "onCommitted()", QMetaMethod::Slot, QMetaMethod::Private);
}

void tst_metaobject::methods_keepTheirIndices()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    QFETCH(QMetaMethod::MethodType, type);
    QFETCH(QMetaMethod::Access, access);
    const QMetaObject &meta = VPrintersDb::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodType(), type);
    QCOMPARE(method.access(), access);
}

void tst_metaobject::methods_areNoMoreThanThese()
{
    const QMetaObject &meta = VPrintersDb::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 9);
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_metaobject::class_translatesInItsOwnContext()
{
    // Without a catalogue the text comes back as it went in.
    QCOMPARE(VPrintersDb::tr("%n printer(s)", "count", 2), u"2 printer(s)"_s);
}

QTEST_GUILESS_MAIN(tst_metaobject)
#include "tst_metaobject.moc"
