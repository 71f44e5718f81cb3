// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pane/featurepane.h"

#include "internal/featuretreeusecaseservice.h"
#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"
#include "pane/parametertrees.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "support/settingsfolder.h"
#include "support/treetext.h"
#include "tessera/fakewindows.h"
#include "tessera/featuretest.h"

#include "host/framework/actioncommand.h"
#include "host/framework/actioncontainer.h"
#include "host/framework/camerarecord.h"
#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>
#include <memory>

using Core::AppCoreComponents::BaseInfoPtr;
using Plugin::Tessera::CFeatureTreeWidget;
using Plugin::Tessera::Internal::CFeatureTreeControlService;
using Plugin::Tessera::Internal::CFeatureTreeUseCaseService;

namespace {

const QString device = QStringLiteral("@CameraDevice");
const QString features = QStringLiteral("Image\n  Width Integer 640\n  Height Integer 480\n");

BaseInfoPtr camera(const QString &name, const char *deviceClass = "GEV")
{
    return BaseInfoPtr(
        new Host::CameraRecord(name, QStringLiteral("Model"), QLatin1String(deviceClass)));
}

} // namespace

class tst_FeaturePane : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void copiesAndRefreshesWhatIsShown()
    {
        m_control->requestFeatureTreeRefresh();
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        m_control->requestFeatureTreeRefresh();
        QCOMPARE(collection(first).batchUpdates, 0);
        QVERIFY(collection(second).batchUpdates > 0);
        m_cameraMenu.actions().constFirst()->trigger();
        QVERIFY(QApplication::clipboard()->text().startsWith(QLatin1String("Two\n")));
    }

    void showsTheHintWhenASourceGoesUntilOneIsNamed()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        m_control->unregisterParameterSource(first); // not even the one shown
        QVERIFY(!shown());
        QCOMPARE(m_pane->findChildren<FeatureTreeWidget *>().size(), 1);
        m_control->setActiveParameterSource(second);
        QCOMPARE(treeShown(), QStringLiteral("Two\n  Image\n"));
        m_control->unregisterParameterSource(second);
        collection(second).attach(QStringLiteral("@Later"), QString());
        m_control->registerParameterSource(second);
        QCOMPARE(treeShown(), QStringLiteral("Two\n  Image\nLater\n"));
    }

    void forwardsWhatItsBrowserTells()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        FeatureTreeView *view = shown()->treeView();
        addCamera(QStringLiteral("Two"));
        QSignalSpy current(m_pane.get(), &CFeatureTreeWidget::currentChanged);
        QSignalSpy level(m_pane.get(), &CFeatureTreeWidget::visibilityChanged);
        const QModelIndex image = Tests::findRow(*view->model(), QStringLiteral("Image"));
        view->setCurrentIndex(image);
        QVERIFY(current.isEmpty()); // not shown
        m_control->setActiveParameterSource(first);
        QCOMPARE(current.count(), 1); // the change of source
        view->setCurrentIndex(view->model()->index(0, 0));
        QCOMPARE(current.count(), 2);
        QMetaObject::invokeMethod(shown(), "onVisibilityChanged", Q_ARG(int, 1));
        QCOMPARE(level.count(), 1);
    }

    void keepsABrowserThatIsInUse_data()
    {
        QTest::addColumn<QString>("use");
        for (const char *use : {"menu", "signal", "drag"}) {
            QTest::newRow(use) << QString::fromLatin1(use);
        }
    }

    void keepsABrowserThatIsInUse()
    {
        QFETCH(QString, use);
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        const QPointer<FeatureTreeWidget> browser = shown();
        FeatureTreeView *view = browser->treeView();
        bool isKept = false;
        const auto unplug = [&] {
            m_control->unregisterParameterSource(info);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            isKept = browser;
        };
        if (use == QLatin1String("menu")) {
            m_hostMenu.addAction(QStringLiteral("Copy Name"));
            QTimer::singleShot(0, this, [&] {
                unplug();
                QApplication::activePopupWidget()->close();
            });
            Q_EMIT view->customContextMenuRequested(QPoint());
            m_hostMenu.clear();
        } else if (use == QLatin1String("drag")) {
            const QDrag drag(browser->tableView());
            unplug();
        } else {
            connect(m_pane.get(), &CFeatureTreeWidget::currentChanged, this, unplug);
            view->setCurrentIndex(Tests::findRow(*view->model(), QStringLiteral("Image")));
            disconnect(m_pane.get(), &CFeatureTreeWidget::currentChanged, this, nullptr);
        }
        QVERIFY(isKept);
        QVERIFY(!shown());
        QTRY_VERIFY(!browser);
    }

    void restoresAndWritesItsSettings_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("stored"); // key=value of the group "Tessera"
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("calls");
        const auto row = [](const char *tag, const char *id, const char *stored,
                            const char *written, const char *calls = "") {
            QTest::newRow(tag) << QString::fromLatin1(id) << QString::fromLatin1(stored)
                               << QString::fromLatin1(written) << QString::fromUtf8(calls);
        };
        row("open tab", "User1",
            "UserTabName1=R&D, \"new\"; UserTabFeatureNameList1=a,,b; UserTabFeatureVisible1=true; "
            "UserTabFeatureAvailable1=true; FeatureColumnWidth1=123",
            "UserTabName1=R&D, \"new\"; UserTabFeatureNameList1=a,b; UserTabFeatureVisible1=true; "
            "UserTabFeatureAvailable1=true; FeatureColumnWidth1=123; Polling=false",
            "Features – R&&D, \"new\"|User1 opens");
        row("tab that is open but was removed", "User1", "UserTabFeatureVisible1=true",
            "UserTabName1=; UserTabFeatureVisible1=false; FeatureColumnWidth1=-1", "Features – ");
        row("Basic", "Basic",
            "UserTabFeatureNameListTessera.Widget.Basic=@CameraDevice/Height,@Gone/X; "
            "FeatureColumnWidthTessera.Widget.Basic=77",
            "UserTabFeatureNameListTessera.Widget.Basic=@CameraDevice/Height,@CameraDevice/Width,; "
            "FeatureColumnWidthTessera.Widget.Basic=77");
        row("All", "All", "CategoryColumnWidth=99; ConnectedFeatureColumnWidth=wide; Polling=1",
            "CategoryColumnWidth=99; ConnectedFeatureColumnWidth=0; Polling=true");
    }

    void restoresAndWritesItsSettings()
    {
        QFETCH(QString, id);
        QFETCH(QString, stored);
        QFETCH(QString, written);
        m_pane.reset();
        QSettings settings;
        settings.clear();
        settings.beginGroup(QStringLiteral("Tessera"));
        const QStringList entries = stored.split(QStringLiteral("; "));
        for (const QString &entry : entries) {
            settings.setValue(entry.section(QLatin1Char('='), 0, 0),
                              entry.section(QLatin1Char('='), 1));
        }
        makePane(id.toLatin1(), false);
        QTEST(m_windows->calls.join(QLatin1Char('|')), "calls");
        addCamera(QStringLiteral("Cam"));
        settings.remove(QString());
        m_pane.reset();
        const QStringList expected = written.split(QStringLiteral("; "));
        for (const QString &entry : expected) {
            const QString key = entry.section(QLatin1Char('='), 0, 0);
            const QString value = key + QLatin1Char('=') + settings.value(key).toString();
            QCOMPARE(value.left(entry.size()), entry); // the list of Basic goes on
        }
    }

    void keepsTheMenuEntryInStepWithItsDock()
    {
        QMenu windowMenu;
        m_menu->createContainer(Core::CId("VantrelViewer.Menu.Window"), &windowMenu);
        QSettings().setValue(QStringLiteral("Tessera/UserTabFeatureAvailable1"), true);
        makePane("User1");
        QCOMPARE(windowMenu.actions().size(), 1);
        QAction *entry = windowMenu.actions().constFirst();
        QVERIFY(entry->isChecked()); // the pane was shown
        entry->trigger();
        QCOMPARE(m_windows->calls.constLast(), QStringLiteral("User1 closes"));
        m_windows->isClosed = true;
        m_pane->hide();
        QVERIFY(!entry->isChecked());
        m_trap = {QStringLiteral("isDockWidgetClosed"), 1, Tests::Fault::Unknown};
        m_pane->show();
        QVERIFY(!entry->isChecked());
    }

    void bearsManySourcesInAnyOrder()
    {
        m_control->unregisterParameterSource(addCamera(QStringLiteral("Cam")));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int objects = m_pane->findChildren<QObject *>().size();
        QRandomGenerator random(20);
        QVector<BaseInfoPtr> sources(50);
        BaseInfoPtr active;
        for (int step = 0; step < 250; ++step) {
            BaseInfoPtr &chosen = sources[random.bounded(sources.size())];
            const int deed = random.bounded(4);
            if (!chosen) {
                chosen = addCamera(QString::number(step));
                active = chosen;
            } else if (deed == 0) {
                m_control->unregisterParameterSource(chosen);
                chosen.reset();
                active.reset();
            } else if (deed == 1) {
                active = random.bounded(4) == 0 ? BaseInfoPtr() : chosen;
                m_control->setActiveParameterSource(active);
            } else {
                Tests::FakeNode &width = collection(chosen).node(device + QStringLiteral("/Width"));
                width.number = step;
                width.publish();
                if (FeatureTreeWidget *browser = shown()) {
                    auto *search = browser->findChild<QLineEdit *>(QStringLiteral("filterEdit"));
                    search->setText(QStringLiteral("width").left(deed));
                    browser->treeView()->setCurrentIndex(
                        Tests::findRow(*browser->treeView()->model(), QStringLiteral("Image")));
                }
            }
            QCOMPARE(shown() != nullptr, !active.isNull());
            QCOMPARE(m_pane->findChild<QLabel *>()->isHidden(), !active.isNull());
            QCOMPARE(m_cameraMenu.actions().constFirst()->isEnabled(), !active.isNull());
            if (active) {
                QVERIFY(treeShown().startsWith(
                    active.objectCast<Host::CameraRecord>()->displayName() + QLatin1Char('\n')));
            }
            QCoreApplication::processEvents();
        }
        sources.removeAll({});
        for (const BaseInfoPtr &info : qAsConst(sources)) {
            m_control->unregisterParameterSource(info);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(m_pane->findChildren<QObject *>().size(), objects);
    }

private:
    void prepare() override
    {
        QSettings().clear();
        m_menu.reset(new Host::MenuService(nullptr));
        m_menu->createContainer(Core::CId("VantrelViewer.Menu.Camera"), &m_cameraMenu);
        m_menu->addGroup(Core::CId("VantrelViewer.Menu.Camera"),
                         Core::CId("VantrelViewer.Group.Camera.Features"));
        m_menu->createContainer(Core::CId("VantrelViewer.FeatureTreeContextMenu"), &m_hostMenu);
        m_pool.reset(new Host::ParameterPool);
        m_control.reset(new CFeatureTreeControlService(nullptr));
        m_useCases.reset(new CFeatureTreeUseCaseService(nullptr));
        QVERIFY(m_useCases->load());
        m_trap = {};
        m_windows.reset(new FakeWindows(&m_trap));
        makePane("All");
    }
    void release() override
    {
        m_pane.reset();
        m_control.reset();
        m_menu.reset();
    }

    void makePane(const QByteArray &name, bool isOpen = true)
    {
        m_pane.reset();
        m_pane = std::make_unique<CFeatureTreeWidget>(
            m_menu, m_control, m_pool, m_useCases, m_windows,
            Core::CId(QByteArray("Tessera.Widget." + name).constData()), nullptr, false);
        m_pane->resize(900, 600);
        m_pane->setVisible(isOpen);
    }

    BaseInfoPtr addCamera(const QString &name)
    {
        const BaseInfoPtr info = camera(name);
        const auto trees = QSharedPointer<Tests::FakeCollection>::create();
        trees->attach(device, features);
        m_pool->insert(info, trees);
        m_control->registerParameterSource(info);
        return info;
    }

    // The one browser in sight, or null.
    FeatureTreeWidget *shown() const
    {
        const auto browsers = m_pane->findChildren<FeatureTreeWidget *>();
        const auto found =
            std::find_if(browsers.cbegin(), browsers.cend(), [this](const QWidget *browser) {
                return browser->isVisibleTo(m_pane.get());
            });
        return found == browsers.cend() ? nullptr : *found;
    }
    QString treeShown() const
    {
        return Tests::treeText(*shown()->treeView()->model());
    }
    Tests::FakeCollection &collection(const BaseInfoPtr &info) const
    {
        return *m_pool->parameterCollection(info).objectCast<Tests::FakeCollection>();
    }

    Tests::SettingsFolder m_settings;
    QMenu m_cameraMenu;
    QMenu m_hostMenu; // for a feature
    QSharedPointer<Host::MenuService> m_menu;
    QSharedPointer<Host::ParameterPool> m_pool;
    QSharedPointer<CFeatureTreeControlService> m_control;
    QSharedPointer<CFeatureTreeUseCaseService> m_useCases;
    Trap m_trap;
    QSharedPointer<FakeWindows> m_windows;
    std::unique_ptr<CFeatureTreeWidget> m_pane;
};

QTEST_MAIN(tst_FeaturePane)
#include "tst_featurepane.moc"
