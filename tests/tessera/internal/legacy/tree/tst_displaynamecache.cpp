// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/displaynamecache.h"
#include "support/warningguard.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

class tst_DisplayNameCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        m_guard.begin();
    }
    void cleanup()
    {
        m_guard.verify();
    }
    void readsWhatIsWellFormed_data();
    void readsWhatIsWellFormed();
    void keepsTheFirstNameOfARun();
    void writesInOrderAndDropsWhatCannotBeWritten();

private:
    QTemporaryDir m_settings;
    const QString m_key = QStringLiteral("Tessera/DisplayNameCache");
    Tests::WarningGuard m_guard;
};

void tst_DisplayNameCache::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("tessera"));
    QCoreApplication::setApplicationName(QStringLiteral("test"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void tst_DisplayNameCache::readsWhatIsWellFormed_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const QString mixed = QStringLiteral("r1:b;c;d:e:f;g:h;");
    QTest::newRow("first entry") << mixed << "r1"
                                 << "b";
    QTest::newRow("entry after broken ones") << mixed << "g"
                                             << "h";
    QTest::newRow("no separator") << mixed << "c" << QString();
    QTest::newRow("too many separators") << mixed << "d" << QString();
    QTest::newRow("later duplicate wins") << "r2:x;r2:y;"
                                          << "r2"
                                          << "y";
    QTest::newRow("empty store") << QString() << "r3" << QString();
}

void tst_DisplayNameCache::readsWhatIsWellFormed()
{
    QFETCH(QString, stored);
    QFETCH(QString, name);
    QFETCH(QString, text);
    QSettings().setValue(m_key, stored);
    loadDisplayNameCache();
    QCOMPARE(cachedDisplayName(name), text);
}

void tst_DisplayNameCache::keepsTheFirstNameOfARun()
{
    cacheDisplayName(QStringLiteral("first"), QStringLiteral("one"));
    cacheDisplayName(QStringLiteral("first"), QStringLiteral("two"));
    QCOMPARE(cachedDisplayName(QStringLiteral("first")), QStringLiteral("one"));
}

void tst_DisplayNameCache::writesInOrderAndDropsWhatCannotBeWritten()
{
    cacheDisplayName(QStringLiteral("z2"), QStringLiteral("%1 last"));
    cacheDisplayName(QStringLiteral("z1"), QStringLiteral("50 %2"));
    cacheDisplayName(QStringLiteral("z3"), QStringLiteral("a:b"));
    cacheDisplayName(QStringLiteral("z4;"), QStringLiteral("c"));
    saveDisplayNameCache();
    const QString stored = QSettings().value(m_key).toString();
    QVERIFY2(stored.endsWith(QLatin1String("z1:50 %2;z2:%1 last;")), qPrintable(stored));
    QCOMPARE(cachedDisplayName(QStringLiteral("z3")), QStringLiteral("a:b"));
}

QTEST_GUILESS_MAIN(tst_DisplayNameCache)
#include "tst_displaynamecache.moc"
