// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/displaynamecache.h"

#include "support/settingsfolder.h"
#include "tessera/featuretest.h"

class tst_DisplayNameCache : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatIsWellFormed()
    {
        QSettings().setValue(m_key, QStringLiteral("r1:b;c;d:e:f;g:h;r2:x;r2:y;"));
        loadDisplayNameCache();
        QStringList names;
        names.reserve(6);
        for (const char *name : {"r1", "c", "d", "g", "r2", "r3"}) {
            names.append(cachedDisplayName(QString::fromLatin1(name)));
        }
        QCOMPARE(names.join(QLatin1Char(',')), QStringLiteral("b,,,h,y,"));
    }

    // And writes in order, without what would not come back.
    void keepsTheFirstNameOfARun()
    {
        cacheDisplayName(QStringLiteral("z2"), QStringLiteral("%1 last"));
        cacheDisplayName(QStringLiteral("z2"), QStringLiteral("later"));
        cacheDisplayName(QStringLiteral("z1"), QStringLiteral("50 %2"));
        cacheDisplayName(QStringLiteral("z3"), QStringLiteral("a:b"));
        cacheDisplayName(QStringLiteral("z4;"), QStringLiteral("c"));
        saveDisplayNameCache();
        const QString stored = QSettings().value(m_key).toString();
        QVERIFY2(stored.endsWith(QLatin1String("z1:50 %2;z2:%1 last;")), qPrintable(stored));
        QCOMPARE(cachedDisplayName(QStringLiteral("z3")), QStringLiteral("a:b"));
    }

private:
    Tests::SettingsFolder m_settings;
    const QString m_key = QStringLiteral("Tessera/DisplayNameCache");
};

QTEST_GUILESS_MAIN(tst_DisplayNameCache)
#include "tst_displaynamecache.moc"
