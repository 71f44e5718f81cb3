// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "pane/featurepane.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "pane/parametertrees.h"
#include "plugin/services/featuretreecontrolservice.h"
#include "support/fakecollection.h"
#include "support/fakehost.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <memory>

using Core::AppCoreComponents::BaseInfoPtr;
using Core::Logging::ELogLevel;
using Plugin::Tessera::CFeatureTreeWidget;
using Plugin::Tessera::Internal::CFeatureTreeControlService;

namespace {

const QString category = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeDockWidget");
const QString device = QStringLiteral("@CameraDevice");
const QString contextMenu = QStringLiteral("VantrelViewer.FeatureTreeContextMenu");

} // namespace

class tst_FeaturePane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void namesTrees_data();
    void namesTrees();
    void showsItsHintFirst();
    void putsItsCopyActionIntoTheCameraMenu();
    void showsARegisteredSource();
    void addsTreesThatComeLater();
    void followsTheActiveSource();
    void showsTheHintWhenASourceGoes_data();
    void showsTheHintWhenASourceGoes();
    void survivesThatASourceComesBack();
    void logsWhatItIsNotGiven();
    void forwardsWhatItsBrowserTells();
    void refreshesAndCopiesTheCurrentSource();
    void showsTheMenuOfTheHost();
    void keepsABrowserWhileItsMenuIsOpen();

private:
    BaseInfoPtr addCamera(const QString &name, const QString &path = device);
    FeatureTreeWidget *shown() const;
    bool showsHint() const
    {
        return m_pane->findChild<QLabel *>()->isVisibleTo(m_pane.get());
    }
    QAction *copyAction() const
    {
        return m_menu->actions.value(QStringLiteral("Tessera.CopyCameraFeatures"));
    }
    QString treeShown() const
    {
        return Tests::treeText(*shown()->findChild<QTreeView *>()->model());
    }
    Tests::FakeCollection &collection(const BaseInfoPtr &info) const
    {
        return *m_parameters->collections.value(info).objectCast<Tests::FakeCollection>();
    }

    QSharedPointer<Tests::FakeMenuService> m_menu;
    QSharedPointer<Tests::FakeParameterService> m_parameters;
    QSharedPointer<CFeatureTreeControlService> m_control;
    std::unique_ptr<CFeatureTreeWidget> m_pane;
    Tests::WarningGuard m_guard;
};

void tst_FeaturePane::init()
{
    m_guard.begin();
    m_menu = QSharedPointer<Tests::FakeMenuService>::create();
    m_menu->container(QStringLiteral("VantrelViewer.Menu.Camera"));
    m_parameters = QSharedPointer<Tests::FakeParameterService>::create();
    m_control = QSharedPointer<CFeatureTreeControlService>::create(nullptr);
    m_pane = std::make_unique<CFeatureTreeWidget>(m_menu, m_control, m_parameters,
                                                  Core::CId("Tessera.Widget.All"), false);
    m_pane->show();
}

void tst_FeaturePane::cleanup()
{
    m_pane.reset();
    m_control.reset();
    m_parameters.reset();
    m_menu.reset();
    m_guard.verify();
}

BaseInfoPtr tst_FeaturePane::addCamera(const QString &name, const QString &path)
{
    const BaseInfoPtr info(new Tests::FakeCamera(QStringLiteral("GEV"), name));
    const auto trees = QSharedPointer<Tests::FakeCollection>::create();
    if (!path.isEmpty()) {
        trees->attach(path, QStringLiteral("Image\n  Width Integer 640\n"));
    }
    m_parameters->collections.insert(info, trees);
    m_control->registerParameterSource(info);
    return info;
}

// The one browser in sight, or null.
FeatureTreeWidget *tst_FeaturePane::shown() const
{
    FeatureTreeWidget *found = nullptr;
    const QList<FeatureTreeWidget *> browsers = m_pane->findChildren<FeatureTreeWidget *>();
    for (FeatureTreeWidget *browser : browsers) {
        if (browser->isVisibleTo(m_pane.get())) {
            Q_ASSERT(!found);
            found = browser;
        }
    }
    return found;
}

void tst_FeaturePane::namesTrees_data()
{
    QTest::addColumn<BaseInfoPtr>("info");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("rootName");
    QTest::addColumn<bool>("isUtf8");
    const auto camera = [](const char *deviceClass) {
        return BaseInfoPtr(
            new Tests::FakeCamera(QLatin1String(deviceClass), QStringLiteral("Cam")));
    };
    const auto source = [](const char *sourceCategory) {
        return BaseInfoPtr(new Tests::FakeSource(QLatin1String(sourceCategory)));
    };
    QTest::newRow("GigE camera") << camera("GEV") << "@CameraDevice"
                                 << "Cam" << true;
    QTest::newRow("USB camera") << camera("U3V") << "@CameraDevice"
                                << "Cam" << false;
    QTest::newRow("interface") << camera("U3V") << "@Interface"
                               << "Cam" << false;
    QTest::newRow("instance") << camera("GEV") << "@CameraInstance"
                              << "Camera Instance" << true;
    QTest::newRow("transport") << camera("GEV") << "@DeviceTransportLayer"
                               << "Device Transport Layer" << true;
    QTest::newRow("stream") << camera("U3V") << "@StreamGrabber0"
                            << "Stream Parameters" << false;
    QTest::newRow("events") << camera("U3V") << "@EventGrabber"
                            << "Event Grabber Parameters" << false;
    QTest::newRow("conversion") << camera("U3V") << "@ImageFormatConverter"
                                << "Image Format Conversion" << false;
    QTest::newRow("unknown path") << camera("U3V") << "@ChunkData"
                                  << "ChunkData" << false;
    QTest::newRow("device") << source("Device") << "@CameraDevice"
                            << "Camera" << false;
    QTest::newRow("device interface") << source("Device") << "@Interface"
                                      << "Interface" << false;
    QTest::newRow("block's camera") << source("Workbench") << "@CameraDevice"
                                    << "Camera" << false;
    QTest::newRow("block") << source("Workbench") << "@Blur"
                           << "qStep" << true;
    QTest::newRow("block's conversion") << source("Workbench") << "@ImageFormatConverter"
                                        << "qStep" << true;
    QTest::newRow("neither") << source("workbench") << "@CameraDevice"
                             << "" << false;
}

void tst_FeaturePane::namesTrees()
{
    QFETCH(BaseInfoPtr, info);
    QFETCH(QString, path);
    const Plugin::Tessera::ParameterTree tree = Plugin::Tessera::parameterTree(info, path);
    QTEST(tree.rootName, "rootName");
    QTEST(tree.isUtf8, "isUtf8");
}

void tst_FeaturePane::showsItsHintFirst()
{
    QVERIFY(showsHint());
    QVERIFY(!shown());
    QCOMPARE(m_pane->minimumSize(), QSize(350, 350));
}

void tst_FeaturePane::putsItsCopyActionIntoTheCameraMenu()
{
    QVERIFY(copyAction());
    QVERIFY(!copyAction()->isEnabled());
    QCOMPARE(copyAction()->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    QCOMPARE(copyAction()->shortcutContext(), Qt::ApplicationShortcut);
    QCOMPARE(m_menu->container(QStringLiteral("VantrelViewer.Menu.Camera")).groups,
             QStringList(QStringLiteral("VantrelViewer.Group.Camera.Features")));

    const auto bareMenu = QSharedPointer<Tests::FakeMenuService>::create();
    const CFeatureTreeWidget pane(bareMenu, m_control, m_parameters, Core::CId("x"), false);
    QCOMPARE(bareMenu->actions.size(), 1);
}

void tst_FeaturePane::showsARegisteredSource()
{
    addCamera(QStringLiteral("Cam"));
    QVERIFY(!showsHint());
    QCOMPARE(treeShown(), QStringLiteral("Cam\n  Image\n    Width: 640\n"));
    QVERIFY(copyAction()->isEnabled());
}

void tst_FeaturePane::addsTreesThatComeLater()
{
    const BaseInfoPtr first = addCamera(QStringLiteral("Cam"), QString());
    QVERIFY(shown());
    QCOMPARE(treeShown(), QString());
    const FeatureTreeWidget *browser = shown();
    addCamera(QStringLiteral("Other"));
    const FeatureTreeWidget *other = shown();
    collection(first).attach(QStringLiteral("@StreamGrabber0"), QStringLiteral("N Integer 1"));
    QCOMPARE(shown(), other);
    m_control->setActiveParameterSource(first);
    QCOMPARE(shown(), browser);
    QVERIFY(treeShown().startsWith(QLatin1String("Stream Parameters\n")));
}

void tst_FeaturePane::followsTheActiveSource()
{
    const BaseInfoPtr first = addCamera(QStringLiteral("One"));
    const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
    QVERIFY(treeShown().startsWith(QLatin1String("Two")));
    m_control->setActiveParameterSource(first);
    m_control->setActiveParameterSource(first);
    QVERIFY(treeShown().startsWith(QLatin1String("One")));

    m_control->setActiveParameterSource({});
    QVERIFY(!shown());
    QVERIFY(showsHint());
    QVERIFY(!copyAction()->isEnabled());

    m_control->setActiveParameterSource(second);
    QVERIFY(treeShown().startsWith(QLatin1String("Two")));
    QVERIFY(!showsHint());
    m_control->setActiveParameterSource(
        BaseInfoPtr(new Tests::FakeSource(QStringLiteral("Device"))));
    QVERIFY(showsHint());
}

void tst_FeaturePane::showsTheHintWhenASourceGoes_data()
{
    QTest::addColumn<bool>("isCurrent");
    QTest::newRow("current source") << true;
    QTest::newRow("another source") << false;
}

void tst_FeaturePane::showsTheHintWhenASourceGoes()
{
    QFETCH(bool, isCurrent);
    const BaseInfoPtr first = addCamera(QStringLiteral("One"));
    const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
    m_control->unregisterParameterSource(isCurrent ? second : first);
    QVERIFY(showsHint());
    QVERIFY(!shown());
    QVERIFY(!copyAction()->isEnabled());
    QCOMPARE(m_pane->findChildren<FeatureTreeWidget *>().size(), 1);

    m_control->setActiveParameterSource(isCurrent ? first : second);
    QVERIFY(treeShown().startsWith(isCurrent ? QLatin1String("One") : QLatin1String("Two")));
    m_control->unregisterParameterSource(
        BaseInfoPtr(new Tests::FakeSource(QStringLiteral("Device"))));
    QVERIFY(!showsHint());
}

void tst_FeaturePane::survivesThatASourceComesBack()
{
    const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
    for (int round = 0; round < 3; ++round) {
        m_control->unregisterParameterSource(info);
        collection(info).node(device + QLatin1String("/Width")).isNull = true;
        collection(info).attach(QStringLiteral("@Later%1").arg(round), QString());
        collection(info).node(device + QLatin1String("/Width")).isNull = false;
        m_control->registerParameterSource(info);
        QVERIFY(treeShown().contains(QLatin1String("    Width: 640\n")));
        QCOMPARE(treeShown().count(QStringLiteral("Later")), round + 1);
    }
    const int rows = treeShown().count(QLatin1Char('\n'));
    collection(info).attach(QStringLiteral("@EventGrabber"), QString());
    QCOMPARE(treeShown().count(QLatin1Char('\n')), rows + 1);
}

void tst_FeaturePane::logsWhatItIsNotGiven()
{
    m_guard.expectLogEntry(ELogLevel::Fault, category, QStringLiteral("Info is null."));
    m_control->registerParameterSource({});
    m_guard.expectLogEntry(ELogLevel::Fault, category, QStringLiteral("Info is null."));
    m_control->unregisterParameterSource({});
    m_guard.expectLogEntry(ELogLevel::Fault, category,
                           QStringLiteral("ParameterCollection is null."));
    m_control->registerParameterSource(
        BaseInfoPtr(new Tests::FakeSource(QStringLiteral("Device"))));
    m_guard.expectLogEntry(ELogLevel::Fault, category,
                           QStringLiteral("ParameterCollection is null."));
    m_pane->onParameterCollectionAttached(device);

    Tests::FakeCollection stranger;
    connect(&stranger, &Tests::FakeCollection::nodeMapAttached, m_pane.get(),
            &CFeatureTreeWidget::onParameterCollectionAttached);
    m_guard.expectLogEntry(ELogLevel::Fault, category, QStringLiteral("Info is null."));
    stranger.attach(device, QString());
    QVERIFY(showsHint());
}

void tst_FeaturePane::forwardsWhatItsBrowserTells()
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

void tst_FeaturePane::refreshesAndCopiesTheCurrentSource()
{
    m_control->requestFeatureTreeRefresh();
    const BaseInfoPtr first = addCamera(QStringLiteral("One"));
    const BaseInfoPtr second = addCamera(QStringLiteral("Two"));
    m_control->requestFeatureTreeRefresh();
    QCOMPARE(collection(first).batchUpdates, 0);
    QCOMPARE(collection(second).batchUpdates, 1);
    copyAction()->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith(QLatin1String("Two\n")));
}

void tst_FeaturePane::showsTheMenuOfTheHost()
{
    addCamera(QStringLiteral("Cam"));
    const auto menu = QSharedPointer<QMenu>::create();
    m_pane->onContextMenuRequested(QPoint(), menu); // no container: nothing to show
    QMenu hostMenu;
    m_menu->container(contextMenu);
    m_pane->onContextMenuRequested(QPoint(), menu);
    QAction *action = hostMenu.addAction(QStringLiteral("Copy Name"));
    m_menu->container(contextMenu).fakeMenu = &hostMenu;
    int shownEntries = 0;
    QTimer::singleShot(0, menu.data(), [&] {
        shownEntries = menu->actions().count(action);
        menu->close();
    });
    m_pane->onContextMenuRequested(QPoint(), menu);
    QCOMPARE(shownEntries, 1);
}

void tst_FeaturePane::keepsABrowserWhileItsMenuIsOpen()
{
    const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
    QMenu hostMenu;
    hostMenu.addAction(QStringLiteral("Copy Name"));
    m_menu->container(contextMenu).fakeMenu = &hostMenu;
    const QPointer<FeatureTreeWidget> browser = shown();
    bool aliveBelowTheMenu = false;
    QTimer::singleShot(0, this, [&] {
        m_control->unregisterParameterSource(info);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        aliveBelowTheMenu = browser;
        QApplication::activePopupWidget()->close();
    });
    Q_EMIT browser->findChild<QTreeView *>()->customContextMenuRequested(QPoint());
    QVERIFY(aliveBelowTheMenu);
    QVERIFY(showsHint());
    QTRY_VERIFY(!browser);
}

QTEST_MAIN(tst_FeaturePane)
#include "tst_featurepane.moc"
