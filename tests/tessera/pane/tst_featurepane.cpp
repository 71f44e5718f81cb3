// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "pane/featurepane.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"
#include "pane/parametertrees.h"
#include "plugin/contract/appcore/windowservice.h"
#include "plugin/contract/viewer/featuretreeusecaseservice.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "support/fakecollection.h"
#include "support/settingsfolder.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include "host/framework/actioncommand.h"
#include "host/framework/actioncontainer.h"
#include "host/framework/camerarecord.h"
#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/sourcerecord.h"

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
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

using Core::AppCoreComponents::BaseInfoPtr;
using Core::Logging::ELogLevel;
using Plugin::Tessera::CFeatureTreeWidget;
using Plugin::Tessera::Internal::CFeatureTreeControlService;

namespace {

const QString category = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeDockWidget");
const QString device = QStringLiteral("@CameraDevice");
const QString features = QStringLiteral("Image\n  Width Integer 640\n  Height Integer 480\n");
const char *const all = "Tessera.Widget.All";
const char *const basic = "Tessera.Widget.Basic";
const char *const user = "Tessera.Widget.User1";

BaseInfoPtr camera(const QString &name, const char *deviceClass = "GEV")
{
    return BaseInfoPtr(
        new Host::CameraRecord(name, QStringLiteral("Model"), QLatin1String(deviceClass)));
}

BaseInfoPtr source(const char *sourceCategory)
{
    return BaseInfoPtr(new Host::SourceRecord(QLatin1String(sourceCategory)));
}

class UseCases final : public Plugin::Tessera::IFeatureTreeUseCaseService
{
public:
    UseCases()
        : IFeatureTreeUseCaseService(nullptr)
    {
    }
    bool load() override
    {
        return true;
    }
    QVariantMap useCaseMap() override
    {
        return {{QStringLiteral("Size"), QStringList {device + QStringLiteral("/Width")}}};
    }
    QVariantMap basicUseCaseMap() override
    {
        return basicMap;
    }
    QVariantMap basicMap;
};

class Docks final : public Plugin::AppCore::IWindowService
{
public:
    Docks()
        : IWindowService(nullptr)
    {
    }
    bool isDockWidgetClosed(const Core::CId & /*id*/) const override
    {
        Tests::raise(onAsk);
        return isClosed;
    }
    void setDockWidgetVisible(const Core::CId &id, bool visible) override
    {
        calls.append(id.toString().right(5) + QLatin1String(visible ? " opens" : " closes"));
    }
    void setDockWidgetTitle(const Core::CId & /*id*/, const QString &title) override
    {
        calls.append(title);
    }
    void addDockWidget(const Core::CId &, QWidget *, int, bool, bool) override
    {
    }
    void removeDockWidget(const Core::CId & /*id*/) override
    {
    }
    Tests::Fault onAsk = Tests::Fault::None;
    bool isClosed = false;
    QStringList calls;
};

} // namespace

class tst_FeaturePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        QSettings().clear();
        m_menu.reset(new Host::MenuService(nullptr));
        m_menu->createContainer(Core::CId("VantrelViewer.Menu.Camera"), &m_cameraMenu);
        m_menu->addGroup(Core::CId("VantrelViewer.Menu.Camera"),
                         Core::CId("VantrelViewer.Group.Camera.Features"));
        m_menu->createContainer(Core::CId("VantrelViewer.FeatureTreeContextMenu"), &m_hostMenu);
        m_pool.reset(new Host::ParameterPool);
        m_control.reset(new CFeatureTreeControlService(nullptr));
        m_useCases.reset(new UseCases);
        m_docks.reset(new Docks);
        makePane(all);
    }

    void cleanup()
    {
        m_pane.reset();
        m_control.reset();
        m_menu.reset();
        m_guard.verify();
    }

    void namesTrees()
    {
        const auto rootName = [](const BaseInfoPtr &info, const char *path) {
            return Plugin::Tessera::parameterTree(info, QString::fromLatin1(path)).rootName;
        };
        const BaseInfoPtr usb = camera(QStringLiteral("Cam"), "U3V");
        QCOMPARE(rootName(usb, "@CameraDevice"), QStringLiteral("Cam"));
        QCOMPARE(rootName(usb, "@StreamGrabber0"), QStringLiteral("Stream Parameters"));
        QCOMPARE(rootName(usb, "@ChunkData"), QStringLiteral("ChunkData"));
        QCOMPARE(rootName(source("Device"), "@CameraDevice"), QStringLiteral("Camera"));
        QCOMPARE(rootName(source("Workbench"), "@Blur"), QStringLiteral("qStep"));
        QVERIFY(!Plugin::Tessera::parameterTree(usb, device).isUtf8);
        QVERIFY(Plugin::Tessera::parameterTree(camera({}), device).isUtf8);
    }

    void copiesAndRefreshesWhatIsShown()
    {
        m_control->requestFeatureTreeRefresh();
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        m_control->requestFeatureTreeRefresh();
        QCOMPARE(collection(first).batchUpdates, 0);
        QVERIFY(collection(second).batchUpdates > 0);
        QAction *copy = m_cameraMenu.actions().constFirst();
        QCOMPARE(copy->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        copy->trigger();
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
        QCOMPARE(rootShown(), QStringLiteral("Two"));
        m_control->unregisterParameterSource(second);
        collection(second).attach(QStringLiteral("@Later"), QString());
        m_control->registerParameterSource(second);
        QCOMPARE(treeShown(), QStringLiteral("Two\n  Image\nLater\n"));
    }

    void logsWhatItIsNotGiven()
    {
        for (const char *text : {"Info", "Info", "ParameterCollection"}) {
            m_guard.expectLogEntry(ELogLevel::Fault, category,
                                   QStringLiteral("%1 is null.").arg(QLatin1String(text)));
        }
        m_control->registerParameterSource({});
        m_control->unregisterParameterSource({});
        m_control->registerParameterSource(source("Device"));
        QVERIFY(!shown());
    }

    void followsTheActiveSource()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        QCOMPARE(treeShown(), QStringLiteral("One\n  Image\n"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        QStringList roots {rootShown()};
        roots.reserve(6);
        for (const BaseInfoPtr &active : {first, first, BaseInfoPtr(), second, source("Device")}) {
            m_control->setActiveParameterSource(active);
            roots.append(rootShown());
        }
        QCOMPARE(roots.join(QLatin1Char(',')), QStringLiteral("Two,One,One,,Two,"));
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
        row("open tab", user,
            "UserTabName1=R&D, \"new\"; UserTabFeatureNameList1=a,,b; UserTabFeatureVisible1=true; "
            "UserTabFeatureAvailable1=true; FeatureColumnWidth1=123",
            "UserTabName1=R&D, \"new\"; UserTabFeatureNameList1=a,b; UserTabFeatureVisible1=true; "
            "UserTabFeatureAvailable1=true; FeatureColumnWidth1=123; Polling=false",
            "Features – R&&D, \"new\"|User1 opens");
        row("tab that is open but was removed", user, "UserTabFeatureVisible1=true",
            "UserTabName1=; UserTabFeatureVisible1=false; FeatureColumnWidth1=-1", "Features – ");
        row("not a number", user, "FeatureColumnWidth1=wide; Polling=1",
            "FeatureColumnWidth1=0; Polling=true", "Features – ");
        row("Basic", basic,
            "UserTabFeatureNameListTessera.Widget.Basic=@CameraDevice/Height,@Gone/X; "
            "FeatureColumnWidthTessera.Widget.Basic=77",
            "UserTabFeatureNameListTessera.Widget.Basic=@CameraDevice/Height,@CameraDevice/Width; "
            "FeatureColumnWidthTessera.Widget.Basic=77");
        row("All", all, "CategoryColumnWidth=99; ConnectedFeatureColumnWidth=88",
            "CategoryColumnWidth=99; ConnectedFeatureColumnWidth=88");
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
        m_useCases->basicMap.insert(
            QStringLiteral("Basic"),
            QStringList {device + QStringLiteral("/Width"), device + QStringLiteral("/Height")});
        makePane(id.toLatin1().constData(), false);
        QTEST(m_docks->calls.join(QLatin1Char('|')), "calls");
        addCamera(QStringLiteral("Cam"));
        m_pane.reset();
        const QStringList expected = written.split(QStringLiteral("; "));
        for (const QString &entry : expected) {
            const QString key = entry.section(QLatin1Char('='), 0, 0);
            QCOMPARE(QString(key + QLatin1Char('=') + settings.value(key).toString()), entry);
        }
    }

    void handsItsColumnWidthToTheNextBrowser()
    {
        addCamera(QStringLiteral("One"));
        shown()->tableView()->setColumnWidth(0, 91);
        addCamera(QStringLiteral("Two"));
        QCOMPARE(shown()->tableView()->columnWidth(0), 91);
    }

    void keepsTheMenuEntryInStepWithItsDock()
    {
        QMenu windowMenu;
        m_menu->createContainer(Core::CId("VantrelViewer.Menu.Window"), &windowMenu);
        QSettings().setValue(QStringLiteral("Tessera/UserTabFeatureAvailable1"), true);
        makePane(user);
        QCOMPARE(windowMenu.actions().size(), 1);
        QAction *entry = windowMenu.actions().constFirst();
        QVERIFY(entry->isChecked()); // the pane was shown
        entry->trigger();
        QCOMPARE(m_docks->calls.constLast(), QStringLiteral("User1 closes"));
        m_docks->isClosed = true;
        m_pane->hide();
        QVERIFY(!entry->isChecked());
        m_docks->onAsk = Tests::Fault::Unknown;
        m_pane->show();
        QVERIFY(!entry->isChecked());
    }

    void bearsManySourcesInAnyOrder()
    {
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
            if (active) {
                QCOMPARE(rootShown(), active.objectCast<Host::CameraRecord>()->displayName());
            }
            QCoreApplication::processEvents();
        }
    }

    void growsNoFurtherByOpeningAndClosing()
    {
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        int objects = 0;
        for (int round = 0; round < 20; ++round) {
            m_control->unregisterParameterSource(info);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (round == 3) {
                objects = m_pane->findChildren<QObject *>().size();
            }
            QVERIFY(round < 3 || m_pane->findChildren<QObject *>().size() == objects);
            m_control->registerParameterSource(info);
        }
    }

private:
    void makePane(const char *id, bool isOpen = true)
    {
        m_pane.reset();
        m_pane = std::make_unique<CFeatureTreeWidget>(m_menu, m_control, m_pool, m_useCases,
                                                      m_docks, Core::CId(id), nullptr, false);
        m_pane->resize(900, 600);
        m_pane->setVisible(isOpen);
    }

    BaseInfoPtr addCamera(const QString &name, const QString &path = device)
    {
        const BaseInfoPtr info = camera(name);
        const auto trees = QSharedPointer<Tests::FakeCollection>::create();
        if (!path.isEmpty()) {
            trees->attach(path, features);
        }
        m_pool->insert(info, trees);
        m_control->registerParameterSource(info);
        return info;
    }

    // The one browser in sight, or null. Hint and copy action follow it.
    FeatureTreeWidget *shown() const
    {
        QList<FeatureTreeWidget *> browsers = m_pane->findChildren<FeatureTreeWidget *>();
        const auto isHidden = [&](QWidget *widget) { return !widget->isVisibleTo(m_pane.get()); };
        browsers.erase(std::remove_if(browsers.begin(), browsers.end(), isHidden), browsers.end());
        FeatureTreeWidget *browser = browsers.value(0);
        [&] {
            QVERIFY(browsers.size() <= 1);
            QCOMPARE(isHidden(m_pane->findChild<QLabel *>()), browser != nullptr);
            QCOMPARE(m_cameraMenu.actions().value(0)->isEnabled(), browser != nullptr);
        }();
        return browser;
    }

    // The top row of what is shown; empty for the hint.
    QString rootShown() const
    {
        return shown() ? treeShown().section(QLatin1Char('\n'), 0, 0) : QString();
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
    QSharedPointer<UseCases> m_useCases;
    QSharedPointer<Docks> m_docks;
    std::unique_ptr<CFeatureTreeWidget> m_pane;
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeaturePane)
#include "tst_featurepane.moc"
