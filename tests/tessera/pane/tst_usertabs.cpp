// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/featuretreeusecaseservice.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/view/featureoptionsmenu.h"
#include "internal/view/featuretableview.h"
#include "internal/view/optionswindow.h"
#include "pane/featurepane.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "support/settingsfolder.h"
#include "tessera/featuretest.h"

#include "host/framework/camerarecord.h"
#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/quick.h"
#include "host/framework/windowservice.h"

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QQuickItem>
#include <QQuickView>
#include <QSettings>

#include <memory>
#include <vector>

using Core::AppCoreComponents::BaseInfoPtr;
using Plugin::Tessera::CFeatureTreeWidget;
using Plugin::Tessera::Internal::CFeatureTreeControlService;
using Plugin::Tessera::Internal::CFeatureTreeUseCaseService;
using Plugin::Tessera::Internal::View::CFeatureOptionsMenu;

/// The All pane, the four user panes and the window in which user tabs are made.
class tst_UserTabs : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Host::prepareQuick();
        Plugin::Tessera::Internal::View::registerOptionsWindowTypes();
    }

    void opensAndClosesWithItsPane()
    {
        QVERIFY(!m_options->isVisible());
        openWindow();
        dock(0)->hide();
        QVERIFY(!m_options->isVisible());
        dock(0)->show();
        openWindow();
        m_control->setActiveParameterSource(BaseInfoPtr());
        QVERIFY(!m_options->isVisible());
        m_control->setActiveParameterSource(m_info);
        openWindow();
        m_control->unregisterParameterSource(m_info);
        QVERIFY(!m_options->isVisible());
    }

    void makesTabsThatSurviveARestart()
    {
        openWindow();
        send("nameChanged", 0, QStringLiteral("R&D"));
        send("addFeature", 0, pathOf("Gain"));
        send("addFeature", 0, pathOf("Width"));
        send("addFeature", 1, pathOf("Height"));
        send("nameChanged", 3, QStringLiteral("Empty"));
        QVERIFY(dock(1)->isHidden()); // nothing holds before OK
        press("add");
        QVERIFY(!m_options->isVisible());
        const auto check = [this] {
            QCOMPARE(dock(1)->windowTitle(), QStringLiteral("Features \u2013 R&&D"));
            QCOMPARE(rows(1), QStringLiteral("Gain Width "));
            QCOMPARE(dock(2)->windowTitle(), QStringLiteral("Features \u2013 My tab 2"));
            QCOMPARE(rows(2), QStringLiteral("Height "));
            QVERIFY(dock(3)->isHidden());
            QCOMPARE(rows(4), QString());
            QVERIFY(!dock(4)->isHidden());
        };
        check();
        stop();
        start();
        check();

        openWindow();
        menu()->onRemove(1);
        press("add");
        QVERIFY(dock(2)->isHidden() && !dock(1)->isHidden());
        dock(1)->hide();
        openWindow();
        press("add");
        QVERIFY(!dock(1)->isHidden()); // OK opens it again
    }

    void cancelChangesNothing()
    {
        openWindow();
        send("nameChanged", 0, QStringLiteral("Mine"));
        send("addFeature", 0, pathOf("Gain"));
        press("add");
        openWindow();
        send("removeFeature", 0, pathOf("Gain"));
        press("cancel");
        QCOMPARE(rows(1), QStringLiteral("Gain "));
        QCOMPARE(menu()->featureNameList(0).size(), 1);
    }

    void worksWithoutTheScene()
    {
        stop();
        m_options.reset(new QQuickView); // as after a fault in a scene: no root
        makePanes();
        dock(0)->hide();
        dock(0)->show();
        clickEditFeatureTabs();
        QVERIFY(m_options->isVisible());
    }

private:
    void prepare() override
    {
        QSettings().clear();
        m_info.reset(new Host::CameraRecord(QStringLiteral("Cam"), QStringLiteral("Model"),
                                            QStringLiteral("GEV")));
        attach(QStringLiteral("Image\n  Width Integer 640\n  Height Integer 480\n"
                              "  Gain Float 1\n"));
        start();
    }
    void release() override
    {
        stop();
    }
    void start()
    {
        m_options.reset(Plugin::Tessera::Internal::View::createOptionsWindow());
        QVERIFY(menu());
        makePanes();
    }

    void makePanes()
    {
        m_window = std::make_unique<QMainWindow>();
        m_menuService.reset(new Host::MenuService(nullptr));
        m_docks.reset(new Host::WindowService(m_window.get(), m_menuService));
        m_control.reset(new CFeatureTreeControlService(nullptr));
        m_pool.reset(new Host::ParameterPool);
        m_useCases.reset(new CFeatureTreeUseCaseService(nullptr));
        m_pool->insert(m_info, m_collection);
        m_window->resize(1000, 700);
        for (const char *id : {"Tessera.Widget.All", "Tessera.Widget.User0", "Tessera.Widget.User1",
                               "Tessera.Widget.User2", "Tessera.Widget.User3"}) {
            m_panes.push_back(new CFeatureTreeWidget(m_menuService, m_control, m_pool, m_useCases,
                                                     m_docks, Core::CId(id), m_options.get(),
                                                     false));
            m_docks->addDockWidget(Core::CId(id), m_panes.back(), Host::WindowService::Features,
                                   m_panes.size() == 1, false);
        }
        m_window->show();
        m_control->registerParameterSource(m_info);
    }

    void stop()
    {
        for (const QPointer<CFeatureTreeWidget> &pane : m_panes) {
            delete pane;
        }
        m_panes.clear();
        m_control.reset();
        m_docks.reset();
        m_menuService.reset();
        m_window.reset();
        m_options.reset();
    }

    CFeatureOptionsMenu *menu() const
    {
        return qobject_cast<CFeatureOptionsMenu *>(m_options->rootObject());
    }

    QDockWidget *dock(int pane) const
    {
        return qobject_cast<QDockWidget *>(
            m_panes.at(static_cast<std::size_t>(pane))->parentWidget());
    }

    void clickEditFeatureTabs() const
    {
        m_docks->setDockWidgetVisible(Core::CId("Tessera.Widget.All"), true);
        auto *button =
            m_panes.front()->findChild<QPushButton *>(QStringLiteral("addNewFavoriteButton"));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void openWindow() const
    {
        clickEditFeatureTabs();
        QVERIFY(m_options->isVisible());
    }

    // What the controls of the scene do.
    void send(const char *signal, int tab, const QString &text) const
    {
        QVERIFY(QMetaObject::invokeMethod(menu(), signal, Q_ARG(int, tab), Q_ARG(QString, text)));
    }
    void press(const char *button) const
    {
        QVERIFY(QMetaObject::invokeMethod(menu(), button));
    }
    /// The names in the table of a pane.
    QString rows(int pane) const
    {
        const auto *browser =
            m_panes.at(static_cast<std::size_t>(pane))->findChild<FeatureTreeWidget *>();
        return names(*browser->tableView()->model());
    }

    Tests::SettingsFolder m_settings;
    BaseInfoPtr m_info;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<QQuickView> m_options;
    QSharedPointer<Host::MenuService> m_menuService;
    QSharedPointer<Host::WindowService> m_docks;
    QSharedPointer<Host::ParameterPool> m_pool;
    QSharedPointer<CFeatureTreeControlService> m_control;
    QSharedPointer<CFeatureTreeUseCaseService> m_useCases;
    std::vector<QPointer<CFeatureTreeWidget>> m_panes; // All, User0 to User3
};

QTEST_MAIN(tst_UserTabs)
#include "tst_usertabs.moc"
