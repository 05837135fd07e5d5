// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// In which order the library registers what it has when it is loaded, and takes it back.
//
// The library's calls of the functions below end here first, because a program's symbols come
// before those of its libraries. Each call is noted and then passed on.

#include <vcommon/VDeviceConfig.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <QtTest/QTest>

#include <cstdlib>
#include <cxxabi.h>
#include <dlfcn.h>
#include <memory>

using namespace Norvane;
using Hardware::VDeviceConfig;
using Hardware::Interfaces::IVDeviceConfig;
using namespace Qt::StringLiterals;

namespace {

QStringList calls;

/// The function that a call of `own`, which is one of this program, would reach without it.
template<typename Function>
Function *next(Function *own)
{
    Dl_info info = {};
    dladdr(reinterpret_cast<void *>(own), &info);
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, info.dli_sname));
}

void noteConverter(const QString &call, int metaTypeId)
{
    const QByteArray type = QMetaType(metaTypeId).name();
    const bool isOwn = type.startsWith("Norvane::Kilnjet::") || type == "Norvane::Channel";
    calls.append(
        u"%1 a converter of %2"_s.arg(call, isOwn ? u"the library"_s : u"the framework"_s));
}

/// The name of the one folder at the root of a collection: "translations".
QString folderOf(const unsigned char *names)
{
    // A name is its length, a hash, and UTF-16, all big-endian.
    QString name;
    for (int i = 0; i < (names[0] << 8 | names[1]); ++i)
        name += QChar(names[6 + 2 * i] << 8 | names[7 + 2 * i]);
    return name;
}

/// Notes a call with a collection of files; not so Qt Gui's, which comes with the library.
void noteFiles(const QString &call, int version, const unsigned char *names)
{
    const QString folder = folderOf(names);
    if (!folder.startsWith(u'q'))
        calls.append(u"%1 %2, version %3"_s.arg(call, folder).arg(version));
}

/// The name of the class of a record.
QString classOf(const IVDeviceConfig &config)
{
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(config).name(), nullptr, nullptr, nullptr), &std::free);
    return QString::fromLatin1(name.get());
}

} // namespace

void VDeviceConfig::registerConfig(IVDeviceConfig *prototype)
{
    calls.append(u"register a %1 with %2"_s.arg(
        classOf(*prototype), prototype->deviceId().isNull() ? u"the null id"_s : u"an id"_s));
    next (&VDeviceConfig::registerConfig)(prototype);
}

void VDeviceConfig::unregisterConfig(const IVDeviceConfig *prototype)
{
    calls.append(u"forget a "_s + classOf(*prototype));
    next (&VDeviceConfig::unregisterConfig)(prototype);
}

void VVariantConvert::sVariantToStringRegister(int metaTypeId, Converter converter)
{
    noteConverter(u"register"_s, metaTypeId);
    next (&VVariantConvert::sVariantToStringRegister)(metaTypeId, converter);
}

void VVariantConvert::sVariantToStringUnregister(int metaTypeId, Converter converter)
{
    noteConverter(u"forget"_s, metaTypeId);
    next (&VVariantConvert::sVariantToStringUnregister)(metaTypeId, converter);
}

QT_BEGIN_NAMESPACE
Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char *tree,
                                         const unsigned char *names, const unsigned char *data);
Q_DECL_EXPORT bool qUnregisterResourceData(int version, const unsigned char *tree,
                                           const unsigned char *names, const unsigned char *data);

bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                           const unsigned char *data)
{
    noteFiles(u"register"_s, version, names);
    return next(&qRegisterResourceData)(version, tree, names, data);
}

bool qUnregisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                             const unsigned char *data)
{
    noteFiles(u"forget"_s, version, names);
    return next(&qUnregisterResourceData)(version, tree, names, data);
}
QT_END_NAMESPACE

namespace {

/// Whether the framework knows what the library registers.
bool isRegistered()
{
    const QMetaType type = QMetaType::fromName("Norvane::Kilnjet::PrinterClass");
    return VVariantConvert::converter(type.id()) != nullptr
        && VDeviceConfig::isRegistered(QUuid(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s))
        && QFile::exists(u":/translations"_s) && QFile::exists(u":/data"_s);
}

/// The steps noted since the last call, one a line; one that is repeated stands once.
QString takeSteps()
{
    QStringList steps = std::exchange(calls, {});
    steps.erase(std::unique(steps.begin(), steps.end()), steps.end());
    return steps.join(u'\n') + u'\n';
}

} // namespace

class tst_Order : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void calls_arePassedOn();
    void load_registersStepByStep();
    void unload_goesBackwards();

private:
    QString m_load; ///< The steps, one a line.
    QString m_unload;
    bool m_wasRegistered = false; ///< Whether the functions behind the calls did their work.
};

void tst_Order::initTestCase()
{
    QVERIFY(!isRegistered());
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    m_load = takeSteps();
    m_wasRegistered = isRegistered();
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    m_unload = takeSteps();
}

void tst_Order::calls_arePassedOn()
{
    QVERIFY(m_wasRegistered);
    QVERIFY(!isRegistered());
}

void tst_Order::load_registersStepByStep()
{
    QCOMPARE(m_load,
             u"register a converter of the library\n"
             "register a Norvane::Kilnjet::VPrinterDriver with the null id\n"
             "register a Norvane::Kilnjet::VElaborationDriver with the null id\n"
             "register a Norvane::Kilnjet::VPrintUnitDriver with the null id\n"
             "register a converter of the framework\n"
             "register translations, version 3\n"
             "register data, version 3\n"_s);
}

void tst_Order::unload_goesBackwards()
{
    QCOMPARE(m_unload,
             u"forget data, version 3\n"
             "forget translations, version 3\n"
             "forget a converter of the framework\n"
             "forget a Norvane::Kilnjet::VPrintUnitDriver\n"
             "forget a Norvane::Kilnjet::VElaborationDriver\n"
             "forget a Norvane::Kilnjet::VPrinterDriver\n"
             "forget a converter of the library\n"_s);
}

QTEST_GUILESS_MAIN(tst_Order)
#include "tst_Order.moc"
