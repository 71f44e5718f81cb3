// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/languagechoice.h"
#include "host/framework/quick.h"
#include "plugin/contract/core/languagehelper.h"
#include "plugin/contract/viewer/stylehelper.h"
#include "support/settingsfolder.h"

#include <QFile>
#include <QImage>
#include <QQuickWindow>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

namespace LanguageChoice = Host::LanguageChoice;

// What the host settles for all plug-ins: language, fonts, icons and how Qt Quick draws.
class TestAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsWithoutOpenGl()
    {
        qunsetenv("QT_QUICK_BACKEND");
        Host::prepareQuick();
        QQuickWindow window;
        const QSignalSpy frames(&window, &QQuickWindow::frameSwapped);
        window.show();
        QTRY_VERIFY(!frames.isEmpty());
        QCOMPARE(window.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
    }

    void fontsHaveWholePixels()
    {
        QCOMPARE(CStyleHelper::computePixelFontSize(12), 16); // at 96 dpi
        QCOMPARE(CStyleHelper::computePixelFontSize(11), 15); // rounded up
    }

    void resourcesAreThere()
    {
        const QString folder = QStringLiteral(":/vantrelviewercomponents/Resources/");
        for (const char *name : {"sync_16", "Move_Up", "Move_Down"}) {
            const QString stem = folder + QLatin1String(name);
            QCOMPARE(QImage(stem + QLatin1String(".png")).size(), QSize(16, 16));
            QCOMPARE(QImage(stem + QLatin1String("@2x.png")).size(), QSize(32, 32));
        }
        QVERIFY(QFile::exists(folder + QStringLiteral("Default_Filter.xml")));
    }

    void speaksTheSystemsLanguageOrEnglish_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("C") << QStringLiteral("en");
        QTest::newRow("ja_JP.UTF-8") << QStringLiteral("ja");
        QTest::newRow("zh_CN.UTF-8") << QStringLiteral("zh");
        QTest::newRow("fr_FR.UTF-8") << QStringLiteral("en");
    }

    void speaksTheSystemsLanguageOrEnglish()
    {
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LC_ALL", QTest::currentDataTag());
        QLocale::system(); // reads the environment again
        const QString current = LanguageHelper::loadLanguageId();
        qputenv("LC_ALL", before);
        QLocale::system();
        QTEST(current, "code");
    }

    void keepsTheUsersChoiceBelowTheOverrideAndRefusesOthers()
    {
        QVERIFY(LanguageChoice::store(QStringLiteral("ja")));
        QVERIFY(!LanguageChoice::store(QStringLiteral("fr")));
        QVERIFY(!LanguageChoice::setOverride(QStringLiteral("en_US")));
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ja"));
        QVERIFY(LanguageChoice::setOverride(QStringLiteral("ko")));
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("ko"));
        QCOMPARE(LanguageChoice::stored(), QStringLiteral("ja"));
        QVERIFY(LanguageChoice::setOverride(QString()));
        QSettings settings;
        settings.setValue(settings.allKeys().constFirst(), QStringLiteral("klingon"));
        QCOMPARE(LanguageHelper::loadLanguageId(), QStringLiteral("en"));
    }

private:
    Tests::SettingsFolder m_settings;
};

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"
