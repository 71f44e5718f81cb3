// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "cuttexts.h"

#include "support/settingsfolder.h"

#include <host/framework/languagechoice.h>
#include <host/viewer/mainwindow.h>
#include <host/viewer/panecommands.h>
#include <host/viewer/sourcesession.h>
#include <host/viewer/viewerapplication.h>
#include <host/viewer/viewertranslation.h>

#include <QApplication>
#include <QDockWidget>
#include <QGlyphRun>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickView>
#include <QSettings>
#include <QTextLayout>
#include <QtTest>

#include <algorithm>

using Tests::cutTexts;

/// In each language every text of ours has a font and the room it needs, in windows of the size
/// they open with.
class RoomForTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QSettings().clear();
        const QString code = QString::fromLatin1(QTest::currentDataTag());
        Host::LanguageChoice::setOverride(code);
        m_translation.reset(new Viewer::ViewerTranslation(code));
        m_viewer.reset(new Viewer::ViewerApplication({}));
        m_viewer->start(QStringLiteral(PLUGIN_FOLDER));
        QVERIFY(QTest::qWaitForWindowExposed(m_viewer->window()));
    }

    void cleanup()
    {
        m_viewer.reset();
        m_translation.reset();
        Host::LanguageChoice::setOverride(QString());
    }

    void everyTextHasItsRoom_data()
    {
        QTest::addColumn<QString>("paneTitle");
        QTest::newRow("en") << QStringLiteral("Features – Basic");
        QTest::newRow("ja") << QStringLiteral("機能 – 基本");
        QTest::newRow("zh") << QStringLiteral("功能 – 基本");
        QTest::newRow("ko") << QStringLiteral("기능 – 기본");
    }

    void everyTextHasItsRoom()
    {
        QFETCH(QString, paneTitle);
        Viewer::MainWindow *window = m_viewer->window();
        QCOMPARE(dock("Basic")->windowTitle(), paneTitle);
        QVERIFY(hasGlyphs(paneTitle));
        const char32_t privateUse = 0x10FFFD; // no font of this world draws it
        QVERIFY(!hasGlyphs(QString::fromUcs4(&privateUse, 1)));

        Viewer::PaneCommands pane(window);
        for (const char *name : {"All", "Basic", "User0"}) {
            pane.showPane(QLatin1String(name));
            QTRY_VERIFY(dock(name)->widget()->isVisible());
            expectNothingCut(*window);
        }
        pane.showPane(QStringLiteral("All"));
        // Commands have a button with a word of ours.
        pane.select(QStringLiteral("@CameraDevice/AcquisitionStart"));
        expectNothingCut(*window);
        expectRoomInTabsWindow();
        expectRoomInAbout();

        m_viewer->session()->closeAll();
        const auto hints = dock("All")->findChildren<QLabel *>();
        QTRY_VERIFY(std::any_of(hints.begin(), hints.end(), [](const QLabel *hint) {
            return hint->isVisible() && hint->text().startsWith(QLatin1String("<i>"));
        }));
        expectNothingCut(*window);
        QLabel tooNarrow(paneTitle, window);
        tooNarrow.resize(tooNarrow.sizeHint() - QSize(1, 0));
        tooNarrow.show();
        QCOMPARE(cutTexts(*window).size(), 1);
    }

private:
    static void expectNothingCut(const QWidget &window)
    {
        QCoreApplication::processEvents();
        const QStringList cut = cutTexts(window);
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
    }

    // A character that no font of this machine has shows as a box.
    static bool hasGlyphs(const QString &text)
    {
        QTextLayout layout(text, QGuiApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const auto runs = layout.glyphRuns();
        return std::none_of(runs.begin(), runs.end(),
                            [](const QGlyphRun &run) { return run.glyphIndexes().contains(0); });
    }

    void expectRoomInTabsWindow() const
    {
        auto *button =
            dock("All")->findChild<QPushButton *>(QStringLiteral("addNewFavoriteButton"));
        button->click();
        const auto windows = QGuiApplication::allWindows();
        const auto found = std::find_if(windows.begin(), windows.end(), [](QWindow *window) {
            return qobject_cast<QQuickView *>(window);
        });
        QVERIFY(found != windows.end());
        auto *scene = static_cast<QQuickView *>(*found);
        QVERIFY(QTest::qWaitForWindowExposed(scene));
        QVERIFY(scene->rootObject());
        const QStringList cut = cutTexts(*scene->contentItem());
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
        QMetaObject::invokeMethod(scene->rootObject(), "cancel");
        QTRY_VERIFY(!scene->isVisible());
    }

    void expectRoomInAbout() const
    {
        const auto menus = m_viewer->window()->menuBar()->actions();
        menus.constLast()->menu()->actions().constFirst()->trigger();
        auto *about = m_viewer->window()->findChild<QMessageBox *>();
        QVERIFY(about && QTest::qWaitForWindowExposed(about));
        expectNothingCut(*about);
        about->close();
    }

    QDockWidget *dock(const char *name) const
    {
        return m_viewer->window()->findChild<QDockWidget *>(QLatin1String("Tessera.Widget.")
                                                            + QLatin1String(name));
    }

    Tests::SettingsFolder m_settings;
    QScopedPointer<Viewer::ViewerTranslation> m_translation;
    QScopedPointer<Viewer::ViewerApplication> m_viewer;
};

QTEST_MAIN(RoomForTextsTest)
#include "tst_roomfortexts.moc"
