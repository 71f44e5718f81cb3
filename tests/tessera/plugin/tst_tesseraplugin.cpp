// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "plugin/contract/appcore/actioncommand.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/core/plugin.h"
#include "plugin/contract/viewer/featuretreecontrolservice.h"
#include "plugin/contract/viewer/featuretreestatusservice.h"
#include "plugin/services/servicelookup.h"
#include "support/settingsfolder.h"
#include "support/warningguard.h"
#include "tessera/fakewindows.h"

#include "host/framework/parameterpool.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/quick.h"
#include "host/framework/serviceregistry.h"

#include <QAction>
#include <QJsonObject>
#include <QLabel>
#include <QPluginLoader>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
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

const QString missingService = QStringLiteral(
    "At least one service necessary for initializing the Tessera plugin is missing.");

/// The menu service of a host without menus, and at the same time its only command.
class Menus final : public Plugin::AppCore::IMenuService, public Plugin::AppCore::IActionCommand
{
public:
    explicit Menus(Trap *trap)
        : IMenuService(nullptr)
        , m_trap(trap)
    {
    }
    ~Menus() override
    {
        for (const QPointer<QAction> &action : qAsConst(m_actions)) {
            delete action;
        }
    }
    IActionCommand *registerAction(QAction *action, const CId & /*id*/,
                                   const Core::AppCoreComponents::CContext & /*context*/) override
    {
        m_trap->step("registerAction");
        m_actions.append(action);
        return this;
    }
    void unregisterAction(QAction * /*action*/, const CId &id) override
    {
        unregistered += id.toString() + QLatin1Char(' ');
        m_trap->step("unregisterAction");
    }
    Plugin::AppCore::IActionContainer *actionContainer(const CId & /*id*/) const override
    {
        return nullptr;
    }
    void setAttribute(int /*attribute*/) override
    {
    }
    QString unregistered;

private:
    Trap *m_trap; // borrowed
    QVector<QPointer<QAction>> m_actions;
};

} // namespace

class tst_TesseraPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        QSettings().clear();
        m_trap = {};
        m_registry.reset(new Host::ServiceRegistry);
        m_plugins.reset(new Host::PluginCatalogue);
        m_plugins->setWorkbenchOffered(true);
        m_menus.reset(new Menus(&m_trap));
        m_windows.reset(new FakeWindows(&m_trap));
        m_plugin.reset(qobject_cast<Core::Plugin::IPlugin *>(m_loader.instance()));
    }

    void cleanup()
    {
        if (m_plugin) {
            m_plugin->uninitialize(m_registry);
            m_plugin.reset();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Host::deleteQuickWindows();
        m_guard.verify();
    }

    void metadataNamesThePlugin()
    {
        QCOMPARE(m_loader.metaData()[QLatin1String("IID")].toString(),
                 QStringLiteral(VANTREL_PLUGIN_IID));
        const QJsonObject data = m_loader.metaData()[QLatin1String("MetaData")].toObject();
        QCOMPARE(data[QLatin1String("Version")].toString(), QStringLiteral(TESSERA_VERSION));
    }

    void typesOfSignalsAreRegistered()
    {
        for (const char *name :
             {"Core::AppCoreComponents::BaseInfoPtr", "GenApi::EVisibility",
              "ParameterCollection::ParameterName", "QList<ParameterCollection::ParameterName>",
              "QSharedPointer<const ParameterCollection::ParameterData>",
              "QSharedPointer<ParameterCollection::IParameter>"}) {
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name);
        }
    }

    void needsItsServices()
    {
        const auto hint = [this] {
            return m_windows->panes.first()->findChild<QLabel *>()->text();
        };
        QVERIFY(initialize("catalogue"));
        QVERIFY(!hint().contains(QLatin1String("Workbench")));
        m_plugin->uninitialize(m_registry);
        QVERIFY(initialize());
        QVERIFY(hint().contains(QLatin1String("Workbench")));
        m_plugin->uninitialize(m_registry);
        for (const char *missing : {"menu", "parameter", "window"}) {
            m_guard.expectLogEntry(ELogLevel::Failure, category, missingService);
            QVERIFY2(!initialize(missing), missing);
            QVERIFY(arePanesGone());
        }
    }

    void survivesAHostThatThrows_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("doing");
        // While a pane is there.
        QTest::newRow("registerAction") << 2 << "adding Tessera to DockWidget";
        QTest::newRow("addDockWidget") << 6 << "adding Tessera to DockWidget";
        QTest::newRow("removeDockWidget") << 2 << "removing FeatureTreeWidgetBasicSettings";
        QTest::newRow("unregisterAction") << 6 << "deleting FeatureTreeWidgetUserSettings";
    }

    void survivesAHostThatThrows()
    {
        QFETCH(int, count);
        QFETCH(QString, doing);
        const int widgets = QApplication::allWidgets().size();
        const bool starts = !doing.startsWith(QLatin1String("adding"));
        const std::map<Fault, QString> entries {
            {Fault::GenICam, QStringLiteral("GenICam Exception caught while %1. Message: fault")},
            {Fault::Standard, QStringLiteral("Exception caught while %1. Message: fault")},
            {Fault::Host, QStringLiteral("Exception caught while %1. Message: fault")},
            {Fault::Unknown, QStringLiteral("Unknown exception caught while %1.")},
        };
        for (const auto &[fault, entry] : entries) {
            m_guard.expectLogEntry(ELogLevel::Failure, category, entry.arg(doing));
            m_trap = {QString::fromLatin1(QTest::currentDataTag()), count, fault};
            QCOMPARE(initialize(), starts);
            QVERIFY(starts || arePanesGone());
            QVERIFY(m_plugin->uninitialize(m_registry));
            QVERIFY(m_trap.countdown <= 0);
            QCOMPARE(QApplication::allWidgets().size(), widgets);
            QVERIFY(QSettings().contains(QStringLiteral("Tessera/UserTabName3")) || !starts);
        }
    }

    void tellsTheStatusOfItsPane()
    {
        QVERIFY(initialize());
        QVERIFY(findService<IFeatureTreeControlService>(m_registry));
        const auto status = findService<IFeatureTreeStatusService>(m_registry);
        const QSignalSpy level(status.data(), &IFeatureTreeStatusService::visibilityChanged);
        const QSignalSpy text(status.data(), &IFeatureTreeStatusService::newText);
        QWidget *pane = qAsConst(m_windows->panes).first();
        QMetaObject::invokeMethod(pane, "visibilityChanged",
                                  Q_ARG(GenApi::EVisibility, GenApi::Expert));
        QMetaObject::invokeMethod(pane, "newText", Q_ARG(QString, QStringLiteral("text")));
        QCOMPARE(level.count(), 1);
        QCOMPARE(text.count(), 1);
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
        m_registry->clear();
        const std::map<std::string, QSharedPointer<Core::Service::IService>> services {
            {"catalogue", m_plugins},
            {"menu", m_menus},
            {"window", m_windows},
            {"parameter", QSharedPointer<Host::ParameterPool>::create()},
        };
        for (const auto &[name, service] : services) {
            if (name != missing) {
                m_registry->registerService(service);
            }
        }
        return m_plugin->initialize(m_registry);
    }

    bool arePanesGone() const
    {
        return std::none_of(m_windows->panes.cbegin(), m_windows->panes.cend(),
                            [](const QPointer<QWidget> &pane) { return pane; });
    }

    Tests::SettingsFolder m_settings;
    QPluginLoader m_loader {QStringLiteral(TESSERA_PLUGIN_FILE)};
    Trap m_trap;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::PluginCatalogue> m_plugins;
    QSharedPointer<Menus> m_menus;
    QSharedPointer<FakeWindows> m_windows;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_TesseraPlugin)
#include "tst_tesseraplugin.moc"
