// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pane/featurepane.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "pane/parametertrees.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "support/fakecollection.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include "host/framework/actioncontainer.h"
#include "host/framework/camerarecord.h"
#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/sourcerecord.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <memory>

using Core::AppCoreComponents::BaseInfoPtr;
using Core::Logging::ELogLevel;
using Plugin::Tessera::CFeatureTreeWidget;
using Plugin::Tessera::Internal::CFeatureTreeControlService;

namespace {

const QString category = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeDockWidget");
const QString device = QStringLiteral("@CameraDevice");

BaseInfoPtr camera(const QString &name, const char *deviceClass = "GEV")
{
    return BaseInfoPtr(
        new Host::CameraRecord(name, QStringLiteral("Model"), QLatin1String(deviceClass)));
}

BaseInfoPtr source(const char *sourceCategory)
{
    return BaseInfoPtr(new Host::SourceRecord(QLatin1String(sourceCategory)));
}

} // namespace

class tst_FeaturePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_menu.reset(new Host::MenuService(nullptr));
        m_menu->createContainer(Core::CId("VantrelViewer.Menu.Camera"), &m_cameraMenu);
        m_menu->addGroup(Core::CId("VantrelViewer.Menu.Camera"),
                         Core::CId("VantrelViewer.Group.Camera.Features"));
        m_menu->createContainer(Core::CId("VantrelViewer.FeatureTreeContextMenu"), &m_hostMenu);
        m_pool.reset(new Host::ParameterPool);
        m_control.reset(new CFeatureTreeControlService(nullptr));
        m_pane = std::make_unique<CFeatureTreeWidget>(m_menu, m_control, m_pool,
                                                      Core::CId("Tessera.Widget.All"), false);
        m_pane->show();
    }

    void cleanup()
    {
        m_pane.reset();
        m_control.reset();
        m_menu.reset();
        m_guard.verify();
    }

    void namesTrees_data()
    {
        QTest::addColumn<BaseInfoPtr>("info");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("rootName");
        QTest::addColumn<bool>("isUtf8");
        const auto row = [](const char *tag, const BaseInfoPtr &info, const char *path,
                            const char *rootName, bool isUtf8) {
            QTest::newRow(tag) << info << QString::fromLatin1(path) << QString::fromLatin1(rootName)
                               << isUtf8;
        };
        const BaseInfoPtr gige = camera(QStringLiteral("Cam"));
        const BaseInfoPtr usb = camera(QStringLiteral("Cam"), "U3V");
        row("GigE camera", gige, "@CameraDevice", "Cam", true);
        row("USB camera", usb, "@CameraDevice", "Cam", false);
        row("interface", usb, "@Interface", "Cam", false);
        row("instance", gige, "@CameraInstance", "Camera Instance", true);
        row("transport", gige, "@DeviceTransportLayer", "Device Transport Layer", true);
        row("stream", usb, "@StreamGrabber0", "Stream Parameters", false);
        row("events", usb, "@EventGrabber", "Event Grabber Parameters", false);
        row("conversion", usb, "@ImageFormatConverter", "Image Format Conversion", false);
        row("unknown path", usb, "@ChunkData", "ChunkData", false);
        row("device", source("Device"), "@CameraDevice", "Camera", false);
        row("device interface", source("Device"), "@Interface", "Interface", false);
        row("block's camera", source("Workbench"), "@CameraDevice", "Camera", false);
        row("block", source("Workbench"), "@Blur", "qStep", true);
        row("block's conversion", source("Workbench"), "@ImageFormatConverter", "qStep", true);
        row("neither", source("workbench"), "@CameraDevice", "", false);
    }

    void namesTrees()
    {
        QFETCH(BaseInfoPtr, info);
        QFETCH(QString, path);
        const Plugin::Tessera::ParameterTree tree = Plugin::Tessera::parameterTree(info, path);
        QTEST(tree.rootName, "rootName");
        QTEST(tree.isUtf8, "isUtf8");
    }

    void putsItsCopyActionIntoTheCameraMenu()
    {
        QVERIFY(!shown());
        QCOMPARE(m_pane->minimumSize(), QSize(350, 350));
        QCOMPARE(m_cameraMenu.actions().size(), 1);
        QAction *copy = m_cameraMenu.actions().constFirst();
        QCOMPARE(copy->objectName(), QStringLiteral("Tessera.CopyCameraFeatures"));
        QCOMPARE(copy->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+C")));
        const auto bareMenu = QSharedPointer<Host::MenuService>::create(nullptr);
        const CFeatureTreeWidget pane(bareMenu, m_control, m_pool, Core::CId("x"), false);
        QVERIFY(bareMenu->command(Core::CId("Tessera.CopyCameraFeatures")));

        m_control->requestFeatureTreeRefresh();
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        m_control->requestFeatureTreeRefresh();
        QCOMPARE(collection(first).batchUpdates, 0);
        QVERIFY(collection(second).batchUpdates > 0);
        copy->trigger();
        QVERIFY(QApplication::clipboard()->text().startsWith(QLatin1String("Two\n")));
    }

    void followsTheActiveSource()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        QCOMPARE(treeShown(), QStringLiteral("One\n  Image\n    Width: 640\n"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        QStringList roots {rootShown()};
        roots.reserve(6);
        for (const BaseInfoPtr &active : {first, first, BaseInfoPtr(), second, source("Device")}) {
            m_control->setActiveParameterSource(active);
            roots.append(rootShown());
        }
        QCOMPARE(roots.join(QLatin1Char(',')), QStringLiteral("Two,One,One,,Two,"));
    }

    void addsTreesThatComeLater()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("Cam"), QString());
        const FeatureTreeWidget *browser = shown();
        QVERIFY(browser);
        QCOMPARE(treeShown(), QString());
        addCamera(QStringLiteral("Other"));
        collection(first).attach(QStringLiteral("@StreamGrabber0"), QStringLiteral("N Integer 1"));
        QCOMPARE(rootShown(), QStringLiteral("Other"));
        m_control->setActiveParameterSource(first);
        QCOMPARE(shown(), browser);
        QCOMPARE(rootShown(), QStringLiteral("Stream Parameters"));
    }

    void showsTheHintWhenASourceGoes_data()
    {
        QTest::addColumn<bool>("isCurrent");
        QTest::newRow("current source") << true;
        QTest::newRow("another source") << false;
    }

    void showsTheHintWhenASourceGoes()
    {
        QFETCH(bool, isCurrent);
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
        m_control->unregisterParameterSource(isCurrent ? second : first);
        QVERIFY(!shown());
        QCOMPARE(m_pane->findChildren<FeatureTreeWidget *>().size(), 1);
        m_control->setActiveParameterSource(isCurrent ? first : second);
        m_control->unregisterParameterSource(source("Device"));
        QCOMPARE(rootShown(), isCurrent ? QStringLiteral("One") : QStringLiteral("Two"));
    }

    void survivesThatASourceComesBack()
    {
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        for (int round = 0; round < 2; ++round) {
            m_control->unregisterParameterSource(info);
            collection(info).attach(QStringLiteral("@Later%1").arg(round), QString());
            m_control->registerParameterSource(info);
            QVERIFY(treeShown().contains(QLatin1String("    Width: 640\n")));
            QCOMPARE(treeShown().count(QStringLiteral("Later")), round + 1);
        }
        collection(info).attach(QStringLiteral("@Later2"), QString());
        QCOMPARE(treeShown().count(QStringLiteral("Later")), 3);
    }

    void logsWhatItIsNotGiven()
    {
        for (const char *text :
             {"Info", "Info", "Info", "ParameterCollection", "ParameterCollection"}) {
            m_guard.expectLogEntry(ELogLevel::Fault, category,
                                   QStringLiteral("%1 is null.").arg(QLatin1String(text)));
        }
        m_control->registerParameterSource({});
        m_control->unregisterParameterSource({});
        m_control->registerParameterSource(source("Device"));
        m_pane->onParameterCollectionAttached(device);
        Tests::FakeCollection stranger;
        connect(&stranger, &Tests::FakeCollection::nodeMapAttached, m_pane.get(),
                &CFeatureTreeWidget::onParameterCollectionAttached);
        stranger.attach(device, QString());
        QVERIFY(!shown());
    }

    void forwardsWhatItsBrowserTells()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        auto *view = shown()->findChild<QTreeView *>();
        addCamera(QStringLiteral("Two"));
        QSignalSpy current(m_pane.get(), &CFeatureTreeWidget::currentChanged);
        const QModelIndex width = Tests::findRow(*view->model(), QStringLiteral("Width"));
        view->setCurrentIndex(width);
        QVERIFY(current.isEmpty()); // not shown
        m_control->setActiveParameterSource(first);
        QCOMPARE(current.count(), 1); // the change of source
        view->setCurrentIndex(width.parent());
        QCOMPARE(current.count(), 2);
    }

    void keepsABrowserWhileItsMenuIsOpen()
    {
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        const QPointer<FeatureTreeWidget> browser = shown();
        auto *view = browser->findChild<QTreeView *>();
        Q_EMIT view->customContextMenuRequested(QPoint()); // nothing to show
        QAction *entry = m_hostMenu.addAction(QStringLiteral("Copy Name"));
        bool aliveBelowTheMenu = false;
        QTimer::singleShot(0, this, [&] {
            m_control->unregisterParameterSource(info);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            aliveBelowTheMenu = browser;
            QWidget *menu = QApplication::activePopupWidget();
            QVERIFY(menu->actions().contains(entry));
            menu->close();
        });
        Q_EMIT view->customContextMenuRequested(QPoint());
        QVERIFY(aliveBelowTheMenu);
        QVERIFY(!shown());
        QTRY_VERIFY(!browser);
    }

private:
    BaseInfoPtr addCamera(const QString &name, const QString &path = device)
    {
        const BaseInfoPtr info = camera(name);
        const auto trees = QSharedPointer<Tests::FakeCollection>::create();
        if (!path.isEmpty()) {
            trees->attach(path, QStringLiteral("Image\n  Width Integer 640\n"));
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
        return Tests::treeText(*shown()->findChild<QTreeView *>()->model());
    }
    Tests::FakeCollection &collection(const BaseInfoPtr &info) const
    {
        return *m_pool->parameterCollection(info).objectCast<Tests::FakeCollection>();
    }

    QMenu m_cameraMenu;
    QMenu m_hostMenu; // for a feature
    QSharedPointer<Host::MenuService> m_menu;
    QSharedPointer<Host::ParameterPool> m_pool;
    QSharedPointer<CFeatureTreeControlService> m_control;
    std::unique_ptr<CFeatureTreeWidget> m_pane;
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeaturePane)
#include "tst_featurepane.moc"
