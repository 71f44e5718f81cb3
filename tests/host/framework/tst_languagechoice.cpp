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

    void keepsTheUsersChoiceBelowTheOverride()
    {
        for (const char *text : {"en", "ja", "zh", "ko"}) {
            const QString code = QString::fromLatin1(text);
            QVERIFY(LanguageChoice::store(code));
            QCOMPARE(LanguageHelper::loadLanguageId(), code);
            QVERIFY(LanguageChoice::setOverride(QStringLiteral("ko")));
            QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ko"));
            QCOMPARE(LanguageChoice::stored(), code);
            QVERIFY(LanguageChoice::setOverride(QString()));
        }
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ko"));
    }

    void refusesUnknownLanguagesAlsoStoredOnes()
    {
        QVERIFY(LanguageChoice::store(QStringLiteral("ja")));
        for (const char *code : {"fr", "EN", "en_US"}) {
            QVERIFY2(!LanguageChoice::store(QLatin1String(code)), code);
            QVERIFY2(!LanguageChoice::setOverride(QLatin1String(code)), code);
        }
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ja"));
        QSettings settings;
        settings.setValue(settings.allKeys().constFirst(), QStringLiteral("klingon"));
        QCOMPARE(LanguageChoice::stored(), QString());
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("en"));
    }

private:
    QTemporaryDir m_folder;
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestLanguageChoice)
#include "tst_languagechoice.moc"
