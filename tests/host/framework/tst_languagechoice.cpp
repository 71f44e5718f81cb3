// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/languagechoice.h"
#include "plugin/contract/core/languagehelper.h"
#include "support/warningguard.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace LanguageChoice = Host::LanguageChoice;

class TestLanguageChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("TesseraTests"));
        QCoreApplication::setApplicationName(QStringLiteral("tst_languagechoice"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    }

    void init()
    {
        m_guard.begin();
        QSettings().clear();
        LanguageChoice::setOverride(QString());
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void speaksTheSystemsLanguageOrEnglish_data()
    {
        QTest::addColumn<QByteArray>("system");
        QTest::addColumn<QString>("code");
        QTest::newRow("plain") << QByteArray("C") << QStringLiteral("en");
        QTest::newRow("Japanese") << QByteArray("ja_JP.UTF-8") << QStringLiteral("ja");
        QTest::newRow("Chinese") << QByteArray("zh_CN.UTF-8") << QStringLiteral("zh");
        QTest::newRow("Korean") << QByteArray("ko_KR.UTF-8") << QStringLiteral("ko");
        QTest::newRow("one without translation")
            << QByteArray("fr_FR.UTF-8") << QStringLiteral("en");
    }

    void speaksTheSystemsLanguageOrEnglish()
    {
        QFETCH(QByteArray, system);
        QFETCH(QString, code);
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LC_ALL", system);
        QLocale::system(); // reads the environment again
        const QString current = LanguageHelper::loadLanguageId();
        qputenv("LC_ALL", before);
        QLocale::system();
        QCOMPARE(current, code);
    }

    void keepsTheUsersChoice_data()
    {
        QTest::addColumn<QString>("code");
        const QVector<Host::Language> languages = LanguageChoice::languages();
        for (const Host::Language &language : languages) {
            QTest::newRow(qPrintable(language.code)) << language.code;
            QVERIFY(!language.nativeName.isEmpty());
        }
    }

    void keepsTheUsersChoice()
    {
        QFETCH(QString, code);
        QVERIFY(LanguageChoice::store(code));
        QCOMPARE(LanguageHelper::loadLanguageId(), code);
        QVERIFY(LanguageChoice::setOverride(QStringLiteral("ko")));
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ko"));
        QCOMPARE(LanguageChoice::stored(), code);
        QVERIFY(LanguageChoice::setOverride(QString()));
        QCOMPARE(LanguageHelper::loadLanguageId(), code);
    }

    void refusesUnknownLanguages_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("other language") << QStringLiteral("fr");
        QTest::newRow("other case") << QStringLiteral("EN");
        QTest::newRow("country") << QStringLiteral("en_US");
    }

    void refusesUnknownLanguages()
    {
        QFETCH(QString, code);
        QVERIFY(LanguageChoice::store(QStringLiteral("ja")));
        QVERIFY(!LanguageChoice::store(code));
        QVERIFY(!LanguageChoice::setOverride(code));
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ja"));
    }

    void passesOverAStoredCodeThatIsUnknown()
    {
        LanguageChoice::store(QStringLiteral("ja"));
        QSettings settings;
        const QStringList keys = settings.allKeys();
        QCOMPARE(keys.size(), 1);
        settings.setValue(keys.constFirst(), QStringLiteral("klingon"));
        settings.sync();
        QCOMPARE(LanguageChoice::stored(), QString());
        QVERIFY(LanguageChoice::isKnown(LanguageHelper::loadLanguageId()));
    }

private:
    QTemporaryDir m_folder;
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestLanguageChoice)
#include "tst_languagechoice.moc"
