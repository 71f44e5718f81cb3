// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/findservice.h"
#include "host/framework/log.h"
#include "host/framework/parameterpool.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/pluginerror.h"
#include "host/framework/pluginloader.h"
#include "host/framework/serviceregistry.h"
#include "support/warningguard.h"

#include <QLibrary>
#include <QPointer>
#include <QQuickWindow>
#include <QTest>

#include <memory>

using Core::Service::IService;
using Plugin::ParameterCollectionPool::IParameterService;

namespace {

QString pathOf(const char *plugin)
{
    return QStringLiteral(TEST_PLUGIN_DIR "/lib%1.so").arg(QLatin1String(plugin));
}

// The steps that the test plug-ins logged, in their order.
QString steps()
{
    QStringList result;
    const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
    for (const Host::LogEntry &entry : entries) {
        if (entry.category == QLatin1String("test.plugin")) {
            result.append(entry.text);
        }
    }
    return result.join(QStringLiteral("; "));
}

} // namespace

// The plug-in loader, and the registry, pool and records through which plug-ins and host meet.
class TestPluginLoader : public QObject
{
    Q_OBJECT

private:
    // Loads and gives the message of the refusal, or an empty text.
    QString refusal(const char *plugin, const char *language = "ja")
    {
        try {
            m_loader->load(pathOf(plugin), QLatin1String(language));
        } catch (const Host::PluginError &error) {
            return QString::fromUtf8(error.what());
        }
        return QString();
    }

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_registry.reset(new Host::ServiceRegistry);
        m_catalogue.reset(new Host::PluginCatalogue);
        m_loader = std::make_unique<Host::PluginLoader>(m_registry, m_catalogue);
    }

    void cleanup()
    {
        m_loader.reset();
        m_guard.verify();
    }

    void walksThroughTheWholeLife()
    {
        m_registry->registerService(m_catalogue);
        QCOMPARE(refusal("plain"), QString());
        m_loader->start();
        m_loader->start();
        QVERIFY(m_loader->mayClose(false));
        const QPointer<QQuickWindow> leftOver(new QQuickWindow);
        const QPointer<QQuickWindow> owned(new QQuickWindow);
        owned->QObject::setParent(m_catalogue.data());
        m_loader->shutDown();
        QVERIFY(leftOver.isNull() && !owned.isNull());
        QVERIFY(m_registry->services().isEmpty());
        QCOMPARE(steps(),
                 QStringLiteral("Plain speaks ja; initialize; start; "
                                "about to uninitialize; queued event; uninitialize, 2 services; "
                                "destroyed"));
        QVERIFY(QLibrary(pathOf("plain")).isLoaded());
    }

    void refusesWithOneClearLine_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QStringLiteral("there is no such file.");
        QTest::newRow("text") << QStringLiteral("the file is no Qt plug-in.");
        QTest::newRow("foreign") << QStringLiteral(
            "its interface id is \"org.elsewhere.Plugin\" where "
            "\"org.vantrel.vantrelApp.VantrelViewerPlugin\" is wanted.");
        QTest::newRow("nameless") << QStringLiteral("its metadata has no \"Name\".");
        QTest::newRow("versionless")
            << QStringLiteral("its metadata has no \"Version\" of Versionless.");
        QTest::newRow("needy") << QStringLiteral("it needs \"Plain\" 1.3.0, which is not there.");
    }

    void refusesWithOneClearLine()
    {
        QFETCH(QString, reason);
        const char *plugin = QTest::currentDataTag();
        QCOMPARE(refusal(plugin),
                 QStringLiteral("Cannot use the plug-in \"%1\": %2").arg(pathOf(plugin), reason));
        QCOMPARE(steps(), QString()); // no code of it ran
        QCOMPARE(refusal("plain"), QString()); // everything else works
    }

    void doesNotUseAPluginThatDidNotInitialize()
    {
        QVERIFY(refusal("plain", "throws").endsWith(QStringLiteral("initialized: no device")));
        m_catalogue->add(QStringLiteral("Plain"), QVersionNumber(1, 3, 1));
        QVERIFY(refusal("needy", "fails").endsWith(QStringLiteral("could not be initialized.")));
        QVERIFY(m_loader->names().isEmpty());
        m_loader->start();
        QVERIFY(m_loader->mayClose(false));
        m_loader->shutDown();
        QCOMPARE(steps(),
                 QStringLiteral("Plain speaks throws; initialize; Needy speaks fails; initialize; "
                                "destroyed; destroyed"));
    }

    void goesOnPastAPluginThatThrows()
    {
        QCOMPARE(refusal("plain", "stubborn"), QString());
        QVERIFY(refusal("plain").endsWith(QStringLiteral("\"Plain\" is there already.")));
        QVERIFY(refusal("needy").endsWith(
            QStringLiteral("it needs \"Plain\" 1.3.0, and 1.2.0 is there.")));
        m_catalogue->add(QStringLiteral("Plain"), QVersionNumber(1, 3, 1));
        QCOMPARE(refusal("needy"), QString());
        QCOMPARE(m_loader->names().join(QLatin1Char(' ')), QStringLiteral("Plain Needy"));
        for (const char *failure :
             {"start threw: not ready", "did not start.", "uninitialize threw: unknown exception",
              "was not taken down properly."}) {
            m_guard.expectLogEntry(Core::Logging::ELogLevel::Failure,
                                   QStringLiteral("vantrel.viewer.pluginLoader"),
                                   QStringLiteral("Plug-in \"Plain\": ") + QLatin1String(failure));
        }
        m_loader->start();
        QVERIFY(!m_loader->mayClose(false) && m_loader->mayClose(true));
        m_loader->shutDown();
        QCOMPARE(steps().count(QStringLiteral("; start")), 2);
        QCOMPARE(steps().count(QStringLiteral("destroyed")), 2);
    }

    void findsServicesByTheirTypeAndPluginsByName()
    {
        const QString workbench = QStringLiteral("Workbench");
        QVERIFY(!m_catalogue->isPluginAvailable(workbench));
        m_catalogue->setWorkbenchOffered(true);
        QVERIFY(m_catalogue->isPluginAvailable(workbench));
        QVERIFY(!Host::findService<IParameterService>({}));
        const QSharedPointer<IService> first(new Host::ParameterPool);
        const QSharedPointer<IService> second(new Host::ParameterPool);
        const QList<QSharedPointer<IService>> kept {first, m_catalogue, second};
        for (const QSharedPointer<IService> &service : kept) {
            m_registry->registerService(service);
            m_registry->registerService(first);
        }
        QCOMPARE(m_registry->services(), kept);
        QCOMPARE(Host::findService<IParameterService>(m_registry).data(), first.data());
        m_registry->unregisterService(first);
        QCOMPARE(Host::findService<IParameterService>(m_registry).data(), second.data());
    }

private:
    Tests::WarningGuard m_guard;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::PluginCatalogue> m_catalogue;
    std::unique_ptr<Host::PluginLoader> m_loader;
};

QTEST_MAIN(TestPluginLoader)
#include "tst_pluginloader.moc"
