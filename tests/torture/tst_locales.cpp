// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Child.h"
#include "support/Printers.h"
#include "support/Torture.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Support;

/// The file of a catalogue is the same wherever it is written.
class tst_locales : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void file_isTheSameInEveryLocale_data();
    void file_isTheSameInEveryLocale();
    void figures();

private:
    QTemporaryDir m_folder;
    QByteArray m_file; ///< As the first locale has it.
    QByteArray m_ids;
    int m_count = 0;
    int m_equal = 0;
};

namespace {

/// The languages of the catalogue's texts, the locale of no language, and two that write digits of
/// their own.
constexpr const char *kLocales[] = {"C",     "bg_BG", "cs_CZ", "de_DE", "en_US", "es_ES",
                                    "fr_FR", "it_IT", "nl_NL", "pl_PL", "pt_PT", "ru_RU",
                                    "sv_SE", "tlh",   "tr_TR", "zh_CN", "ar_EG", "fa_IR"};

} // namespace

void tst_locales::file_isTheSameInEveryLocale_data()
{
    QTest::addColumn<QString>("setDefault");
    QTest::addColumn<QString>("environment");
    for (const char *locale : kLocales) {
        const QString name = QString::fromLatin1(locale);
        QTest::addRow("%s as the default locale", locale) << name << u"C.UTF-8"_s;
        QTest::addRow("%s in the environment", locale) << QString() << name + u".UTF-8"_s;
    }
}

void tst_locales::file_isTheSameInEveryLocale()
{
    QFETCH(QString, setDefault);
    QFETCH(QString, environment);
    const QString path = m_folder.filePath(QString::number(++m_count));
    QStringList arguments = {path};
    if (!setDefault.isEmpty())
        arguments.append(setDefault);
    Child child(QStringLiteral(RECORDER), arguments, {u"LC_ALL="_s + environment});
    QCOMPARE(child.wait(), 0);
    if (m_file.isEmpty()) {
        m_file = bytesOf(path);
        m_ids = child.output();
    }
    QVERIFY(!m_ids.isEmpty());
    QCOMPARE(child.output(), m_ids);
    QCOMPARE(bytesOf(path), m_file);
    ++m_equal;
}

void tst_locales::figures()
{
    figure(u"%1 files written under %2 locales: %3 byte for byte the same"_s.arg(m_count)
               .arg(std::size(kLocales))
               .arg(m_equal));
}

QTEST_GUILESS_MAIN(tst_locales)
#include "tst_locales.moc"
