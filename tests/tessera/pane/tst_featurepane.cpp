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
#include "support/treetext.h"
#include "support/warningguard.h"

#include "host/framework/actioncommand.h"
#include "host/framework/actioncontainer.h"
#include "host/framework/camerarecord.h"
#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/sourcerecord.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDrag>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QRandomGenerator>
#include <QSettings>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
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
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("tessera"));
        QCoreApplication::setApplicationName(QStringLiteral("test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    }

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
        const CFeatureTreeWidget pane(bareMenu, m_control, m_pool, m_useCases, m_docks,
                                      Core::CId(user), nullptr, false);
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

    void addsTreesThatComeLater()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("Cam"), QString());
        const FeatureTreeWidget *browser = shown();
        QVERIFY(browser);
        QCOMPARE(treeShown(), QString());
        addCamera(QStringLiteral("Other"));
        collection(first).attach(QStringLiteral("@StreamGrabber0"), QStringLiteral("Node\n"));
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
            QVERIFY(treeShown().contains(QLatin1String("  Image\n")));
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
        for (const char *use : {"menu", "signal", "change of source", "drag"}) {
            QTest::newRow(use) << QString::fromLatin1(use);
        }
    }

    void keepsABrowserThatIsInUse()
    {
        QFETCH(QString, use);
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        const QPointer<FeatureTreeWidget> browser = shown();
        FeatureTreeView *view = browser->treeView();
        Q_EMIT view->customContextMenuRequested(QPoint()); // nothing to show
        bool isKept = false;
        const auto unplug = [&] {
            m_control->unregisterParameterSource(info);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            isKept = browser;
            QVERIFY(!shown());
        };
        const QModelIndex image = Tests::findRow(*view->model(), QStringLiteral("Image"));
        if (use == QLatin1String("menu")) {
            QAction *entry = m_hostMenu.addAction(QStringLiteral("Copy Name"));
            QTimer::singleShot(0, this, [&] {
                unplug();
                QWidget *menu = QApplication::activePopupWidget();
                QVERIFY(menu->actions().contains(entry));
                menu->close();
            });
            Q_EMIT view->customContextMenuRequested(QPoint());
            m_hostMenu.clear();
        } else if (use == QLatin1String("drag")) {
            const QDrag drag(browser->tableView());
            unplug();
        } else {
            if (use != QLatin1String("signal")) {
                view->setCurrentIndex(image);
                m_control->setActiveParameterSource({});
            }
            connect(m_pane.get(), &CFeatureTreeWidget::currentChanged, this, unplug);
            view->setCurrentIndex(image);
            m_control->setActiveParameterSource(info);
            disconnect(m_pane.get(), &CFeatureTreeWidget::currentChanged, this, nullptr);
        }
        QVERIFY(isKept);
        QVERIFY(!shown());
        QTRY_VERIFY(!browser);
    }

    void restoresAndWritesItsSettings_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QVariantMap>("stored");
        QTest::addColumn<QVariantMap>("written");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *tag, const char *id, const QVariantMap &stored,
                            const QVariantMap &written, const QStringList &calls) {
            QTest::newRow(tag) << QString::fromLatin1(id) << stored << written << calls;
        };
        const auto key = [](const char *name) { return QString::fromLatin1(name); };
        const QString untitled = QStringLiteral("Features \u2013 ");
        const QString basicList = key("UserTabFeatureNameListTessera.Widget.Basic");
        const QString basicWidth = key("FeatureColumnWidthTessera.Widget.Basic");
        row("empty store, user", user, {},
            {{key("UserTabName1"), QString()},
             {key("UserTabFeatureNameList1"), QString()},
             {key("UserTabFeatureVisible1"), false},
             {key("UserTabFeatureAvailable1"), false},
             {key("FeatureColumnWidth1"), -1},
             {key("Polling"), false}},
            {untitled});
        row("open tab", user,
            {{key("UserTabName1"), key("R&D, \"new\"")},
             {key("UserTabFeatureNameList1"), key("a,,b")},
             {key("UserTabFeatureVisible1"), true},
             {key("UserTabFeatureAvailable1"), true},
             {key("FeatureColumnWidth1"), 123}},
            {{key("UserTabName1"), key("R&D, \"new\"")},
             {key("UserTabFeatureNameList1"), key("a,b")},
             {key("UserTabFeatureVisible1"), true},
             {key("UserTabFeatureAvailable1"), true},
             {key("FeatureColumnWidth1"), 123}},
            {untitled + key("R&&D, \"new\""), key("User1 opens")});
        row("tab that is open but was removed", user, {{key("UserTabFeatureVisible1"), true}},
            {{key("UserTabFeatureVisible1"), false}}, {untitled});
        row("wrong types", user,
            {{key("UserTabName1"), QVariant(QStringList {key("a"), key("b")})},
             {key("UserTabFeatureNameList1"), QVariant(QByteArray("\xff,"))},
             {key("UserTabFeatureAvailable1"), key("false")},
             {key("FeatureColumnWidth1"), key("wide")},
             {key("Polling"), key("1")}},
            {{key("UserTabFeatureAvailable1"), false},
             {key("FeatureColumnWidth1"), 0},
             {key("Polling"), true}},
            {untitled});
        row("Basic", basic, {{basicList, key("@CameraDevice/Height,@Gone/X")}, {basicWidth, 77}},
            {{basicList, key("@CameraDevice/Height,@CameraDevice/Width")}, {basicWidth, 77}}, {});
        row("All", all,
            {{basicList, key("@X")},
             {key("CategoryColumnWidth"), 99},
             {key("ConnectedFeatureColumnWidth"), key("88")}},
            {{basicList, key("@X")},
             {key("CategoryColumnWidth"), 99},
             {key("ConnectedFeatureColumnWidth"), 88}},
            {});
        row("huge list", user,
            {{key("UserTabFeatureNameList1"),
              key("@X/Y").prepend(QString(200000, QLatin1Char(',')))}},
            {{key("UserTabFeatureNameList1"), key("@X/Y")}}, {untitled});
    }

    void restoresAndWritesItsSettings()
    {
        QFETCH(QString, id);
        QFETCH(QVariantMap, stored);
        QFETCH(QVariantMap, written);
        m_pane.reset();
        QSettings settings;
        settings.clear();
        settings.beginGroup(QStringLiteral("Tessera"));
        for (auto entry = stored.cbegin(); entry != stored.cend(); ++entry) {
            settings.setValue(entry.key(), entry.value());
        }
        m_useCases->basicMap.insert(
            QStringLiteral("Basic"),
            QStringList {device + QStringLiteral("/Width"), device + QStringLiteral("/Height")});
        makePane(id.toLatin1().constData(), false);
        QTEST(m_docks->calls, "calls");
        addCamera(QStringLiteral("Cam"));
        m_pane.reset();
        for (auto entry = written.cbegin(); entry != written.cend(); ++entry) {
            const QVariant value = settings.value(entry.key());
            QVERIFY2(value.isValid() && value.toString() == entry.value().toString(),
                     qPrintable(entry.key() + QLatin1Char(' ') + value.toString()));
        }
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
        m_pane.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const QList<QAction *> left = windowMenu.actions();
        QVERIFY(std::none_of(left.cbegin(), left.cend(),
                             [](QAction *action) { return action->isVisible(); }));
    }

    void movesAFavouriteOnceAndForAll()
    {
        m_useCases->basicMap.insert(
            QStringLiteral("Basic"),
            QStringList {device + QStringLiteral("/Width"), device + QStringLiteral("/Height")});
        makePane(basic);
        const BaseInfoPtr other = addCamera(QStringLiteral("Other"));
        const BaseInfoPtr info = addCamera(QStringLiteral("Cam"));
        QTRY_COMPARE(tableShown(), QStringLiteral("Width: 640\nHeight: 480\n"));
        m_control->unregisterParameterSource(other);
        m_control->setActiveParameterSource(info);
        QAbstractItemView *table = shown()->tableView();
        table->setCurrentIndex(table->model()->index(0, 0));
        shown()->findChild<QAction *>(QStringLiteral("actionMoveFavouriteDown"))->trigger();
        QTRY_COMPARE(tableShown(), QStringLiteral("Height: 480\nWidth: 640\n"));
        addCamera(QStringLiteral("Third"));
        QTRY_COMPARE(tableShown(), QStringLiteral("Height: 480\nWidth: 640\n"));
        m_pane.reset();
        QCOMPARE(QSettings()
                     .value(QStringLiteral("Tessera/UserTabFeatureNameListTessera.Widget.Basic"))
                     .toString(),
                 QStringLiteral("@CameraDevice/Height,@CameraDevice/Width"));
    }

    void handsWidthsAndPollingToTheNextBrowser()
    {
        const BaseInfoPtr first = addCamera(QStringLiteral("One"));
        shown()->tableView()->horizontalHeader()->resizeSection(0, 91);
        auto *splitter = shown()->findChild<QSplitter *>();
        splitter->setSizes({140, 10, 500});
        Q_EMIT splitter->splitterMoved(140, 1);
        const int treeWidth = splitter->sizes().constFirst();
        const auto polling = [this] {
            return shown()->findChild<QCheckBox *>(QStringLiteral("checkBoxPolling"));
        };
        polling()->click();
        addCamera(QStringLiteral("Two"));
        QCOMPARE(shown()->tableView()->columnWidth(0), 91);
        QCOMPARE(shown()->findChild<QSplitter *>()->sizes().constFirst(), treeWidth);
        QVERIFY(polling()->isChecked());
        polling()->click();
        m_control->setActiveParameterSource(first);
        QVERIFY(!polling()->isChecked());
    }

    void worksWithoutUseCases()
    {
        m_useCases.reset();
        for (const char *id : {all, basic, user}) {
            makePane(id);
            if (id != user) {
                m_guard.expectLogEntry(ELogLevel::Fault, category,
                                       QStringLiteral("IFeatureTreeUseCaseService not set!"));
            }
            addCamera(QStringLiteral("Cam"));
            QVERIFY(shown());
        }
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
    QString tableShown() const
    {
        return Tests::treeText(*shown()->tableView()->model());
    }
    Tests::FakeCollection &collection(const BaseInfoPtr &info) const
    {
        return *m_pool->parameterCollection(info).objectCast<Tests::FakeCollection>();
    }

    QTemporaryDir m_folder;
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
