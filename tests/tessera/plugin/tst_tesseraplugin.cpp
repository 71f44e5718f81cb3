// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "plugin/contract/appcore/windowservice.h"
#include "plugin/contract/core/localizedplugin.h"
#include "plugin/contract/viewer/featuretreecontrolservice.h"
#include "plugin/contract/viewer/featuretreestatusservice.h"
#include "plugin/services/servicelookup.h"
#include "support/fakefault.h"
#include "support/warningguard.h"

#include "host/framework/menuservice.h"
#include "host/framework/parameterpool.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/serviceregistry.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QLabel>
#include <QPluginLoader>
#include <QPointer>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <map>
#include <memory>
#include <string>

using Core::CId;
using Core::Logging::ELogLevel;
using Plugin::FeatureTree::IFeatureTreeControlService;
using Plugin::FeatureTree::IFeatureTreeStatusService;
using Plugin::Tessera::findService;
using Tests::Fault;

namespace {

const QString category = QStringLiteral("vantrel.viewer.plugins.tessera");
const QString allPane = QStringLiteral("Tessera.Widget.All");
const QString missingService = QStringLiteral(
    "At least one service necessary for initializing the Tessera plugin is missing.");

class ThrowingMenuService final : public Plugin::AppCore::IMenuService
{
public:
    ThrowingMenuService()
        : IMenuService(nullptr)
    {
    }
    Plugin::AppCore::IActionCommand *registerAction(
        QAction * /*action*/, const CId & /*id*/,
        const Core::AppCoreComponents::CContext & /*context*/) override
    {
        Tests::raise(Fault::Host);
        return nullptr;
    }
    void unregisterAction(QAction * /*action*/, const CId & /*id*/) override
    {
    }
    Plugin::AppCore::IActionContainer *actionContainer(const CId & /*id*/) const override
    {
        return nullptr;
    }
};

class WindowService final : public Plugin::AppCore::IWindowService
{
public:
    WindowService()
        : IWindowService(nullptr)
    {
    }
    bool isDockWidgetClosed(const CId & /*id*/) const override
    {
        return false;
    }
    void setDockWidgetVisible(const CId & /*id*/, bool /*visible*/) override
    {
    }
    void setDockWidgetTitle(const CId & /*id*/, const QString & /*title*/) override
    {
    }
    void addDockWidget(const CId &id, QWidget *widget, int area, bool visible, bool flag) override
    {
        Tests::raise(onAdd);
        pane = widget;
        calls.append(QStringLiteral("add %1 \"%2\" %3 %4 %5")
                         .arg(id.toString(), widget->windowTitle())
                         .arg(area)
                         .arg(visible)
                         .arg(flag));
    }
    void removeDockWidget(const CId &id) override
    {
        calls.append(QStringLiteral("remove ") + id.toString());
        Tests::raise(onRemove);
    }
    Fault onAdd = Fault::None;
    Fault onRemove = Fault::None;
    QStringList calls;
    QPointer<QWidget> pane;
};

} // namespace

class tst_TesseraPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("tessera"));
        QCoreApplication::setApplicationName(QStringLiteral("test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    }

    void init()
    {
        m_guard.begin();
        m_registry.reset(new Host::ServiceRegistry);
        m_catalogue.reset(new Host::PluginCatalogue);
        m_menu.reset(new Host::MenuService(nullptr));
        m_window.reset(new WindowService);
        m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
    }

    void cleanup()
    {
        if (m_plugin) {
            m_plugin->uninitialize(m_registry);
            m_plugin.reset();
        }
        m_guard.verify();
    }

    void metadataNamesThePlugin()
    {
        const QJsonObject whole = m_loader.metaData();
        QCOMPARE(whole[QLatin1String("IID")].toString(), QStringLiteral(VANTREL_PLUGIN_IID));
        QCOMPARE(whole[QLatin1String("className")].toString(), QStringLiteral("CTesseraPlugin"));
        const QJsonObject data = whole[QLatin1String("MetaData")].toObject();
        QCOMPARE(data[QLatin1String("Name")].toString(), QStringLiteral("Tessera"));
        QCOMPARE(data[QLatin1String("Version")].toString(), QStringLiteral(TESSERA_VERSION));
        QCOMPARE(data[QLatin1String("CompatVersion")].toString(), QStringLiteral(TESSERA_VERSION));
        QCOMPARE(data[QLatin1String("Required")], QJsonValue(false));
        QCOMPARE(data[QLatin1String("Description")].toString(),
                 QStringLiteral("The featuretree plugin for the vantrel application framework."));
        for (const char *field : {"Vendor", "Url", "Copyright", "License"}) {
            QVERIFY2(!data[QLatin1String(field)].toString().isEmpty(), field);
        }
        QString dependencies;
        const QJsonArray rows = data[QLatin1String("Dependencies")].toArray();
        for (const QJsonValue &row : rows) {
            QCOMPARE(row[QLatin1String("Version")].toString(), QStringLiteral("2.0.0"));
            dependencies += row[QLatin1String("Name")].toString() + QLatin1Char(' ');
        }
        QCOMPARE(dependencies,
                 QStringLiteral("AppCore ParameterCollectionPool AppCore CameraPool "
                                "ParameterCollectionPool "));
    }

    void docksAndTakesAwayThePane()
    {
        const QString added =
            QStringLiteral("add Tessera.Widget.All \"Features \u2013 All\" 3 1 0");
        QVERIFY(dynamic_cast<Core::Plugin::ALocalizedPlugin *>(m_plugin.get()));
        QVERIFY(initialize());
        QVERIFY(m_plugin->start());
        QCOMPARE(m_window->calls, QStringList(added));
        QVERIFY(m_registry->lock()->tryLockForWrite());
        m_registry->lock()->unlock();
        QVERIFY(m_plugin->uninitialize(m_registry));
        QVERIFY(!m_window->pane);
        QCOMPARE(m_window->calls, (QStringList {added, QStringLiteral("remove ") + allPane}));

        // A pane that the host deleted is not touched again.
        QVERIFY(m_plugin->initialize(m_registry));
        delete m_window->pane;
        QVERIFY(m_plugin->uninitialize(m_registry));
        QCOMPARE(m_window->calls.size(), 3);
    }

    void needsItsServices_data()
    {
        QTest::addColumn<bool>("isWorkbenchOffered");
        QTest::addColumn<bool>("starts");
        QTest::addColumn<bool>("namesTheWorkbench");
        QTest::newRow("none missing") << true << true << true;
        QTest::newRow("no Workbench") << false << true << false;
        QTest::newRow("catalogue") << true << true << false;
        for (const char *service : {"menu", "parameter", "window"}) {
            QTest::newRow(service) << true << false << false;
        }
    }

    void needsItsServices()
    {
        QFETCH(bool, isWorkbenchOffered);
        QFETCH(bool, starts);
        m_catalogue->setWorkbenchOffered(isWorkbenchOffered);
        if (!starts) {
            m_guard.expectLogEntry(ELogLevel::Failure, category, missingService);
        }
        QCOMPARE(initialize(QTest::currentDataTag()), starts);
        QCOMPARE(!m_window->pane.isNull(), starts);
        const auto *hint = starts ? m_window->pane->findChild<QLabel *>() : nullptr;
        QTEST(hint && hint->text().contains(QLatin1String("Workbench")), "namesTheWorkbench");
        m_plugin->uninitialize({});

        m_guard.expectLogEntry(ELogLevel::Failure, category, missingService);
        QVERIFY(!m_plugin->initialize({}));
    }

    void survivesAHostThatThrows_data()
    {
        QTest::addColumn<Tests::Fault>("onAdd");
        QTest::addColumn<Tests::Fault>("onRemove");
        QTest::addColumn<QString>("text");
        const QString ofGenICam =
            QStringLiteral("GenICam Exception caught while %1. Message: fault");
        const QString known = QStringLiteral("Exception caught while %1. Message: fault");
        const QString unknown = QStringLiteral("Unknown exception caught while %1.");
        QTest::newRow("menu") << Fault::None << Fault::None << known;
        const QMap<Fault, QString> texts {{Fault::GenICam, ofGenICam},
                                          {Fault::Standard, known},
                                          {Fault::Host, known},
                                          {Fault::Unknown, unknown}};
        for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
            QTest::addRow("adding %d", int(text.key()))
                << text.key() << Fault::None << text.value();
            QTest::addRow("removing %d", int(text.key()))
                << Fault::None << text.key() << text.value();
        }
    }

    void survivesAHostThatThrows()
    {
        QFETCH(Tests::Fault, onAdd);
        QFETCH(Tests::Fault, onRemove);
        QFETCH(QString, text);
        const bool starts = onRemove != Fault::None;
        if (!starts && onAdd == Fault::None) {
            m_menu.reset(new ThrowingMenuService);
        }
        m_window->onAdd = onAdd;
        m_window->onRemove = onRemove;
        const int widgets = QApplication::allWidgets().size();
        m_guard.expectLogEntry(
            ELogLevel::Failure, category,
            text.arg(starts ? QStringLiteral("removing FeatureTreeWidgetAllSettings")
                            : QStringLiteral("adding Tessera to DockWidget")));
        QCOMPARE(initialize(), starts);
        QVERIFY(m_plugin->uninitialize(m_registry));
        QCOMPARE(QApplication::allWidgets().size(), widgets);
    }

    void tellsTheStatusOfItsPane()
    {
        QVERIFY(initialize());
        QVERIFY(findService<IFeatureTreeControlService>(m_registry));
        const auto status = findService<IFeatureTreeStatusService>(m_registry);
        QStringList told;
        connect(status.data(), &IFeatureTreeStatusService::visibilityChanged, this,
                [&](GenApi::EVisibility level) { told.append(QString::number(level)); });
        connect(status.data(), &IFeatureTreeStatusService::currentChanged, this,
                [&] { told.append(QStringLiteral("current")); });
        connect(status.data(), &IFeatureTreeStatusService::newText, this,
                [&](const QString &text) { told.append(text); });
        QObject *pane = m_window->pane;
        QVERIFY(QMetaObject::invokeMethod(pane, "visibilityChanged",
                                          Q_ARG(GenApi::EVisibility, GenApi::Expert)));
        QVERIFY(QMetaObject::invokeMethod(
            pane, "currentChanged",
            Q_ARG(QSharedPointer<ParameterCollection::IParameter>, nullptr)));
        QVERIFY(QMetaObject::invokeMethod(pane, "newText", Q_ARG(QString, QStringLiteral("text"))));
        QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("1 current text"));
        status->disconnect(this);
    }

    void keepsDisplayNamesOverARestart()
    {
        const QString key = QStringLiteral("Tessera/DisplayNameCache");
        const QString entry = QStringLiteral("@CameraDevice/Width:Width;");
        m_plugin.reset();
        QSettings().setValue(key, entry);
        m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
        QSettings().clear();
        m_plugin.reset();
        QVERIFY(QSettings().value(key).toString().contains(entry));
    }

private:
    // With all services but one.
    bool initialize(const char *missing = "")
    {
        const std::map<std::string, QSharedPointer<Core::Service::IService>> services {
            {"catalogue", m_catalogue},
            {"menu", m_menu},
            {"window", m_window},
            {"parameter", QSharedPointer<Host::ParameterPool>::create()},
        };
        for (const auto &[name, service] : services) {
            if (name != missing) {
                m_registry->registerService(service);
            }
        }
        return m_plugin->initialize(m_registry);
    }

    QTemporaryDir m_settings;
    QPluginLoader m_loader {QStringLiteral(TESSERA_PLUGIN_FILE)};
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::PluginCatalogue> m_catalogue;
    QSharedPointer<Plugin::AppCore::IMenuService> m_menu;
    QSharedPointer<WindowService> m_window;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_TesseraPlugin)
#include "tst_tesseraplugin.moc"
