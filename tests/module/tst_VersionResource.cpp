// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The version resource of the library's file on Windows, compiled by a Windows resource compiler:
// it says the same as VKilnjetInfo.

#include <kilnjet/VKilnjetInfo.h>

#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kHeaderSize = 0x20; ///< Of a resource in a .res file, behind an empty first.
constexpr quint16 kTypeVersion = 16;
constexpr quint32 kFixedSignature = 0xFEEF04BD;

quint16 word(const QByteArray &bytes, qsizetype at)
{
    return at + 2 <= bytes.size() ? qFromLittleEndian<quint16>(bytes.constData() + at) : 0;
}

quint32 dword(const QByteArray &bytes, qsizetype at)
{
    return quint32(word(bytes, at)) | quint32(word(bytes, at + 2)) << 16;
}

qsizetype aligned(qsizetype at)
{
    return (at + 3) & ~qsizetype(3);
}

/// The UTF-16 text at `at` up to its null.
QString textAt(const QByteArray &bytes, qsizetype at)
{
    QString text;
    for (; word(bytes, at) != 0; at += 2)
        text += QChar(word(bytes, at));
    return text;
}

/// One block of the resource: its key, its value, and, in the same form, the blocks within.
struct Block
{
    QString key;
    qsizetype value = 0; ///< Where its value begins.
    qsizetype children = 0; ///< Where the first block within begins.
    qsizetype end = 0;
    bool isText = false;

    Block(const QByteArray &bytes, qsizetype at)
        : key(textAt(bytes, at + 6))
        , value(aligned(at + 6 + (key.size() + 1) * 2))
        , end(at + word(bytes, at))
        , isText(word(bytes, at + 4) == 1)
    {
        children = aligned(value + qsizetype(word(bytes, at + 2)) * (isText ? 2 : 1));
    }
};

/// All values of the resource by the path of their keys.
void collect(const QByteArray &bytes, qsizetype at, const QString &path,
             QMap<QString, qsizetype> &values)
{
    const Block block(bytes, at);
    const QString name = path + u'/' + block.key;
    values.insert(name, block.value);
    for (qsizetype child = block.children; child + 6 <= block.end;
         child = aligned(Block(bytes, child).end)) {
        if (word(bytes, child) == 0)
            return;
        collect(bytes, child, name, values);
    }
}

} // namespace

class tst_VersionResource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void numbers_areThoseOfTheVersion();
    void file_isALibraryForWindows();
    void texts_areThoseOfTheModule_data();
    void texts_areThoseOfTheModule();
    void language_isTheOneOfTheTexts();

private:
    QByteArray m_bytes; ///< The resource, without its header.
    QMap<QString, qsizetype> m_values;
};

void tst_VersionResource::initTestCase()
{
    const QTemporaryDir folder;
    const QString output = folder.filePath(u"version.res"_s);
    QProcess compiler;
    compiler.setProcessChannelMode(QProcess::MergedChannels);
    // Without the option it would look for a preprocessor of its own, which need not be installed.
    compiler.start(QStringLiteral(WINDRES),
                   {u"--preprocessor="_s + QStringLiteral(PREPROCESSOR), u"--preprocessor-arg=-E"_s,
                    u"--preprocessor-arg=-xc"_s, QStringLiteral(RESOURCE), u"-O"_s, u"res"_s,
                    output});
    QVERIFY2(compiler.waitForStarted(),
             "no resource compiler: Debian's is in the package binutils-mingw-w64-x86-64");
    QVERIFY(compiler.waitForFinished(60'000));
    QVERIFY2(compiler.exitCode() == 0, compiler.readAll().constData());

    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    QCOMPARE(word(whole, kHeaderSize + 10), kTypeVersion);
    QCOMPARE(word(whole, kHeaderSize + 14), quint16(1));
    m_bytes = whole.mid(2 * kHeaderSize, dword(whole, kHeaderSize));
    collect(m_bytes, 0, QString(), m_values);
}

void tst_VersionResource::numbers_areThoseOfTheVersion()
{
    const qsizetype fixed = m_values.value(u"/VS_VERSION_INFO"_s);
    QCOMPARE(dword(m_bytes, fixed), kFixedSignature);
    const auto version = VKilnjetInfo::version();
    const quint32 high = quint32(version.majorNumber()) << 16 | quint32(version.minorNumber());
    const quint32 low = quint32(version.patchNumber()) << 16;
    QCOMPARE(dword(m_bytes, fixed + 8), high); // of the file
    QCOMPARE(dword(m_bytes, fixed + 12), low);
    QCOMPARE(dword(m_bytes, fixed + 16), high); // of the product
    QCOMPARE(dword(m_bytes, fixed + 20), low);
}

void tst_VersionResource::file_isALibraryForWindows()
{
    const qsizetype fixed = m_values.value(u"/VS_VERSION_INFO"_s);
    QCOMPARE(dword(m_bytes, fixed + 28), 0u); // neither a debug nor a private build
    QCOMPARE(dword(m_bytes, fixed + 32), 0x40004u);
    QCOMPARE(dword(m_bytes, fixed + 36), 2u);
}

void tst_VersionResource::texts_areThoseOfTheModule_data()
{
    QTest::addColumn<QString>("text");
    const QString version = VKilnjetInfo::version().toString() + u".0"_s;
    QTest::newRow("CompanyName") << VKilnjetInfo::company();
    QTest::newRow("FileDescription") << VKilnjetInfo::description();
    QTest::newRow("FileVersion") << version;
    QTest::newRow("InternalName") << VKilnjetInfo::moduleName();
    QTest::newRow("LegalCopyright") << VKilnjetInfo::copyright();
    QTest::newRow("OriginalFilename") << u"vkilnjet.dll"_s;
    QTest::newRow("ProductName") << VKilnjetInfo::title();
    QTest::newRow("ProductVersion") << version;
}

void tst_VersionResource::texts_areThoseOfTheModule()
{
    QFETCH(const QString, text);
    const QString key = u"/VS_VERSION_INFO/StringFileInfo/040904B0/"_s
        + QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(m_values.contains(key));
    QCOMPARE(textAt(m_bytes, m_values.value(key)), text);
}

void tst_VersionResource::language_isTheOneOfTheTexts()
{
    const QString key = u"/VS_VERSION_INFO/VarFileInfo/Translation"_s;
    QVERIFY(m_values.contains(key));
    QCOMPARE(dword(m_bytes, m_values.value(key)), 0x04B00409u);
}

QTEST_GUILESS_MAIN(tst_VersionResource)
#include "tst_VersionResource.moc"
