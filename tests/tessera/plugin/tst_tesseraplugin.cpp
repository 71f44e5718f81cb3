// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/localizedplugin.h"
#include "plugin/contract/viewer/featuretreecontrolservice.h"
#include "plugin/contract/viewer/featuretreestatusservice.h"
#include "plugin/services/servicelookup.h"
#include "support/fakecollection.h"
#include "support/fakehost.h"
#include "support/warningguard.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QPluginLoader>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Core::Logging::ELogLevel;
using Plugin::FeatureTree::IFeatureTreeControlService;
using Plugin::FeatureTree::IFeatureTreeStatusService;
using Plugin::Tessera::findService;
using Tests::Fault;

namespace {

const QString category = QStringLiteral("vantrel.viewer.plugins.tessera");
const QString allPane = QStringLiteral("Tessera.Widget.All");

/// A host with all services, and the plug-in as the host loads it.
class Host
{
public:
    Host()
        : m_loader(QStringLiteral(TESSERA_PLUGIN_FILE))
        , plugin(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()))
    {
    }
    ~Host()
    {
        delete plugin;
    }
    Q_DISABLE_COPY_MOVE(Host)

    void offer(const QStringList &missing = {})
    {
        const QMap<QString, QSharedPointer<Core::Service::IService>> services {
            {QStringLiteral("info"), info},
            {QStringLiteral("menu"), menu},
            {QStringLiteral("window"), window},
            {QStringLiteral("parameter"), parameters},
        };
        for (auto service = services.cbegin(); service != services.cend(); ++service) {
            if (!missing.contains(service.key())) {
                registry->registerService(service.value());
            }
        }
    }

    QWidget *pane() const
    {
        return window->docks.value(allPane);
    }

private:
    QPluginLoader m_loader;

public:
    QSharedPointer<Tests::FakeRegistry> registry = QSharedPointer<Tests::FakeRegistry>::create();
    QSharedPointer<Tests::FakePluginInfoService> info =
        QSharedPointer<Tests::FakePluginInfoService>::create();
    QSharedPointer<Tests::FakeMenuService> menu = QSharedPointer<Tests::FakeMenuService>::create();
    QSharedPointer<Tests::FakeWindowService> window =
        QSharedPointer<Tests::FakeWindowService>::create();
    QSharedPointer<Tests::FakeParameterService> parameters =
        QSharedPointer<Tests::FakeParameterService>::create();
    Core::Plugin::IPlugin *plugin = nullptr; // owned
};

QString failureText(Fault fault, const QString &doing)
{
    switch (fault) {
    case Fault::GenICam:
        return QStringLiteral("GenICam Exception caught while %1. Message: fault").arg(doing);
    case Fault::Standard:
    case Fault::Host:
        return QStringLiteral("Exception caught while %1. Message: fault").arg(doing);
    case Fault::None:
    case Fault::Unknown:
        break;
    }
    return QStringLiteral("Unknown exception caught while %1.").arg(doing);
}

} // namespace

class tst_TesseraPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init()
    {
        QSettings().clear();
        m_guard.begin();
    }
    void cleanup()
    {
        m_guard.verify();
    }
    void metadataNamesThePlugin();
    void docksTheAllPane();
    void hintNamesTheWorkbenchWhereThereIsOne_data();
    void hintNamesTheWorkbenchWhereThereIsOne();
    void refusesAHostThatLacksAService_data();
    void refusesAHostThatLacksAService();
    void refusesAHostThatIsGone();
    void survivesAHostThatThrows_data();
    void survivesAHostThatThrows();
    void deletesThePaneWhoseDockCannotBeRemoved_data();
    void deletesThePaneWhoseDockCannotBeRemoved();
    void takesAwayWhatItAdded();
    void tellsTheStatusOfItsPane();
    void keepsDisplayNamesOverARestart();

private:
    QTemporaryDir m_settings;
    Tests::WarningGuard m_guard;
};

void tst_TesseraPlugin::initTestCase()
{
    QCoreApplication::setOrganizationName(QStringLiteral("tessera"));
    QCoreApplication::setApplicationName(QStringLiteral("test"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void tst_TesseraPlugin::metadataNamesThePlugin()
{
    const QJsonObject whole = QPluginLoader(QStringLiteral(TESSERA_PLUGIN_FILE)).metaData();
    QCOMPARE(whole.value(QLatin1String("IID")).toString(), QStringLiteral(VANTREL_PLUGIN_IID));
    QVERIFY(whole.value(QLatin1String("IID"))
                .toString()
                .endsWith(QLatin1String(".vantrelApp.VantrelViewerPlugin")));
    QCOMPARE(whole.value(QLatin1String("className")).toString(), QStringLiteral("CTesseraPlugin"));

    const QJsonObject data = whole.value(QLatin1String("MetaData")).toObject();
    QCOMPARE(data.value(QLatin1String("Name")).toString(), QStringLiteral("Tessera"));
    QCOMPARE(data.value(QLatin1String("Version")).toString(), QStringLiteral(TESSERA_VERSION));
    QCOMPARE(data.value(QLatin1String("CompatVersion")).toString(),
             QStringLiteral(TESSERA_VERSION));
    QCOMPARE(data.value(QLatin1String("Required")), QJsonValue(false));
    QCOMPARE(data.value(QLatin1String("Description")).toString(),
             QStringLiteral("The featuretree plugin for the vantrel application framework."));
    for (const char *field : {"Vendor", "Url", "Copyright", "License"}) {
        QVERIFY2(!data.value(QLatin1String(field)).toString().isEmpty(), field);
    }

    QStringList dependencies;
    const QJsonArray rows = data.value(QLatin1String("Dependencies")).toArray();
    for (const QJsonValue &row : rows) {
        QCOMPARE(row[QLatin1String("Version")].toString(), QStringLiteral("2.0.0"));
        dependencies.append(row[QLatin1String("Name")].toString());
    }
    QCOMPARE(dependencies.join(QLatin1Char(' ')),
             QStringLiteral("AppCore ParameterCollectionPool AppCore CameraPool "
                            "ParameterCollectionPool"));
}

void tst_TesseraPlugin::docksTheAllPane()
{
    Host host;
    QVERIFY(qobject_cast<Core::Plugin::ALocalizedPlugin *>(host.plugin));
    host.offer();
    QVERIFY(host.plugin->initialize(host.registry));
    QVERIFY(host.plugin->start());
    QCOMPARE(host.window->calls,
             QStringList(QStringLiteral("add Tessera.Widget.All \"Features \u2013 All\" 3 1 0")));
    QVERIFY(findService<IFeatureTreeControlService>(host.registry));
    QVERIFY(findService<IFeatureTreeStatusService>(host.registry));
    host.plugin->uninitialize(host.registry);
}

void tst_TesseraPlugin::hintNamesTheWorkbenchWhereThereIsOne_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<QStringList>("available");
    QTest::addColumn<bool>("named");
    QTest::newRow("no catalogue") << QStringList {QStringLiteral("info")} << QStringList() << false;
    QTest::newRow("no Workbench") << QStringList() << QStringList() << false;
    QTest::newRow("Workbench") << QStringList() << QStringList {QStringLiteral("Workbench")}
                               << true;
}

void tst_TesseraPlugin::hintNamesTheWorkbenchWhereThereIsOne()
{
    QFETCH(QStringList, missing);
    QFETCH(QStringList, available);
    QFETCH(bool, named);
    Host host;
    host.info->available = available;
    host.offer(missing);
    QVERIFY(host.plugin->initialize(host.registry));
    const auto *hint = host.pane()->findChild<QLabel *>();
    QCOMPARE(hint->text().contains(QLatin1String("Workbench")), named);
    host.plugin->uninitialize(host.registry);
}

void tst_TesseraPlugin::refusesAHostThatLacksAService_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("menu service") << QStringLiteral("menu");
    QTest::newRow("parameter service") << QStringLiteral("parameter");
    QTest::newRow("window service") << QStringLiteral("window");
}

void tst_TesseraPlugin::refusesAHostThatLacksAService()
{
    QFETCH(QString, missing);
    Host host;
    host.offer({missing});
    m_guard.expectLogEntry(
        ELogLevel::Failure, category,
        QStringLiteral(
            "At least one service necessary for initializing the Tessera plugin is missing."));
    QVERIFY(!host.plugin->initialize(host.registry));
    QVERIFY(host.window->calls.isEmpty());
    QVERIFY(host.menu->actions.isEmpty());
    QVERIFY(findService<IFeatureTreeControlService>(host.registry));
}

void tst_TesseraPlugin::refusesAHostThatIsGone()
{
    Host host;
    m_guard.expectLogEntry(
        ELogLevel::Failure, category,
        QStringLiteral(
            "At least one service necessary for initializing the Tessera plugin is missing."));
    QVERIFY(!host.plugin->initialize({}));
}

void tst_TesseraPlugin::survivesAHostThatThrows_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<Tests::Fault>("fault");
    for (const char *call : {"registerService", "isPluginAvailable", "actionContainer",
                             "registerAction", "addDockWidget"}) {
        for (const Fault fault : {Fault::GenICam, Fault::Standard, Fault::Host, Fault::Unknown}) {
            QTest::addRow("%s %d", call, static_cast<int>(fault))
                << QString::fromLatin1(call) << fault;
        }
    }
}

void tst_TesseraPlugin::survivesAHostThatThrows()
{
    QFETCH(QString, call);
    QFETCH(Tests::Fault, fault);
    Host host;
    host.offer();
    const Tests::Faults faults {{call, fault}};
    host.registry->faults = faults;
    host.info->faults = faults;
    host.menu->faults = faults;
    host.window->faults = faults;
    const int widgets = QApplication::allWidgets().size();
    m_guard.expectLogEntry(ELogLevel::Failure, category,
                           failureText(fault, QStringLiteral("adding Tessera to DockWidget")));
    QVERIFY(!host.plugin->initialize(host.registry));
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QVERIFY(host.window->calls.isEmpty());
}

void tst_TesseraPlugin::deletesThePaneWhoseDockCannotBeRemoved_data()
{
    Tests::addFaultRows();
}

void tst_TesseraPlugin::deletesThePaneWhoseDockCannotBeRemoved()
{
    QFETCH(Tests::Fault, fault);
    Host host;
    host.offer();
    QVERIFY(host.plugin->initialize(host.registry));
    const QPointer<QWidget> pane = host.pane();
    host.window->faults.insert(QStringLiteral("removeDockWidget"), fault);
    m_guard.expectLogEntry(
        ELogLevel::Failure, category,
        failureText(fault, QStringLiteral("removing FeatureTreeWidgetAllSettings")));
    QVERIFY(host.plugin->uninitialize(host.registry));
    QVERIFY(!pane);
}

void tst_TesseraPlugin::takesAwayWhatItAdded()
{
    Host host;
    host.offer();
    QVERIFY(host.plugin->initialize(host.registry));
    const QPointer<QWidget> pane = host.pane();
    QVERIFY(host.plugin->uninitialize(host.registry));
    QVERIFY(!pane);
    QCOMPARE(host.window->calls.constLast(), QStringLiteral("remove Tessera.Widget.All"));

    // A pane that the host deleted is not touched again.
    QVERIFY(host.plugin->initialize(host.registry));
    delete host.pane();
    QVERIFY(host.plugin->uninitialize(host.registry));
    QCOMPARE(host.window->calls.count(QStringLiteral("remove Tessera.Widget.All")), 1);
}

void tst_TesseraPlugin::tellsTheStatusOfItsPane()
{
    Host host;
    host.offer();
    QVERIFY(host.plugin->initialize(host.registry));
    const auto status = findService<IFeatureTreeStatusService>(host.registry);
    QSignalSpy visibility(status.data(), &IFeatureTreeStatusService::visibilityChanged);

    const Core::AppCoreComponents::BaseInfoPtr camera(
        new Tests::FakeCamera(QStringLiteral("U3V"), QStringLiteral("Cam")));
    const auto collection = QSharedPointer<Tests::FakeCollection>::create();
    collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("A\n  Width Integer 1"));
    host.parameters->collections.insert(camera, collection);
    findService<IFeatureTreeControlService>(host.registry)->registerParameterSource(camera);

    QObject *browser = nullptr;
    const QList<QWidget *> widgets = host.pane()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (qstrcmp(widget->metaObject()->className(), "FeatureTreeWidget") == 0) {
            browser = widget;
        }
    }
    QVERIFY(browser);
    QVERIFY(QMetaObject::invokeMethod(browser, "onVisibilityChanged", Q_ARG(int, 1)));
    QVERIFY(QMetaObject::invokeMethod(browser, "onVisibilityChanged", Q_ARG(int, 4)));
    QCOMPARE(visibility.count(), 1);
    QCOMPARE(visibility.value(0).value(0).value<GenApi::EVisibility>(), GenApi::Expert);
    host.plugin->uninitialize(host.registry);
}

void tst_TesseraPlugin::keepsDisplayNamesOverARestart()
{
    const QString key = QStringLiteral("Tessera/DisplayNameCache");
    QSettings().setValue(key, QStringLiteral("@CameraDevice/Width:Width;"));
    {
        const Host host;
        QSettings().clear();
    }
    QVERIFY(
        QSettings().value(key).toString().contains(QLatin1String("@CameraDevice/Width:Width;")));
}

QTEST_MAIN(tst_TesseraPlugin)
#include "tst_tesseraplugin.moc"
