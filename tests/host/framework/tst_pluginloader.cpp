// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/log.h"
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

namespace {

QString pathOf(const char *plugin)
{
    return QStringLiteral(TEST_PLUGIN_DIR "/lib%1.so").arg(QLatin1String(plugin));
}

// The steps that the test plug-ins logged, in their order.
QStringList steps()
{
    QStringList result;
    const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
    for (const Host::LogEntry &entry : entries) {
        if (entry.category == QLatin1String("test.plugin")) {
            result.append(entry.text);
        }
    }
    return result;
}

} // namespace

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

    void expectFailure(const char *what)
    {
        m_guard.expectLogEntry(Core::Logging::ELogLevel::Failure,
                               QStringLiteral("vantrel.viewer.pluginLoader"),
                               QStringLiteral("Plug-in \"Plain\": ") + QLatin1String(what));
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
        QCOMPARE(m_loader->names(), {QStringLiteral("Plain")});
        QVERIFY(m_catalogue->isPluginAvailable(QStringLiteral("Plain")));
        m_loader->start();
        m_loader->start();
        QVERIFY(m_loader->mayClose(false));
        const QPointer<QQuickWindow> leftOver(new QQuickWindow);
        m_loader->shutDown();
        QVERIFY(leftOver.isNull());
        QVERIFY(m_registry->services().isEmpty());
        m_loader->shutDown();
        QCOMPARE(steps().join(QStringLiteral("; ")),
                 QStringLiteral("constructed; Plain speaks ja; initialize; start; may close?; "
                                "about to uninitialize; queued event; uninitialize, 2 services; "
                                "destroyed"));
        QVERIFY(QLibrary(pathOf("plain")).isLoaded());
    }

    void refusesWithOneClearLine_data()
    {
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *plugin, const char *reason) {
            QTest::newRow(plugin) << QString::fromLatin1(reason);
        };
        row("missing", "there is no such file.");
        row("text", "the file is no Qt plug-in.");
        row("foreign",
            "its interface id is \"org.elsewhere.Plugin\" where "
            "\"org.vantrel.vantrelApp.VantrelViewerPlugin\" is wanted.");
        row("nameless", "its metadata has no \"Name\".");
        row("versionless", "its metadata has no \"Version\" of Versionless.");
        row("needy", "it needs \"Plain\" 1.3.0, which is not there.");
    }

    void refusesWithOneClearLine()
    {
        QFETCH(QString, reason);
        const char *plugin = QTest::currentDataTag();
        QCOMPARE(refusal(plugin),
                 QStringLiteral("Cannot use the plug-in \"%1\": %2").arg(pathOf(plugin), reason));
        QCOMPARE(steps(), QStringList()); // no code of it ran
        QVERIFY(m_loader->names().isEmpty());
        QCOMPARE(refusal("plain"), QString()); // everything else works
    }

    void refusesTooOldADependencyAndTheSamePluginTwice()
    {
        QCOMPARE(refusal("plain"), QString());
        QVERIFY(refusal("plain").endsWith(QStringLiteral("\"Plain\" is there already.")));
        QVERIFY(refusal("needy").endsWith(
            QStringLiteral("it needs \"Plain\" 1.3.0, and 1.2.0 is there.")));
        m_catalogue->add(QStringLiteral("Plain"), QVersionNumber(1, 3, 1));
        QCOMPARE(refusal("needy"), QString());
        QCOMPARE(m_loader->names().join(QLatin1Char(' ')), QStringLiteral("Plain Needy"));
    }

    void doesNotUseAPluginThatDidNotInitialize_data()
    {
        QTest::addColumn<QString>("reason");
        QTest::newRow("initialize fails") << QStringLiteral("it could not be initialized.");
        QTest::newRow("initialize throws")
            << QStringLiteral("it threw while it was initialized: no device");
    }

    void doesNotUseAPluginThatDidNotInitialize()
    {
        QFETCH(QString, reason);
        QVERIFY(refusal("plain", QTest::currentDataTag()).endsWith(reason));
        QVERIFY(m_loader->names().isEmpty());
        m_loader->start();
        QVERIFY(m_loader->mayClose(false));
        m_loader->shutDown();
        QCOMPARE(steps().mid(2).join(QLatin1Char(' ')), QStringLiteral("initialize destroyed"));
    }

    void goesOnPastAPluginThatThrows()
    {
        QCOMPARE(refusal("plain", "stubborn"), QString());
        m_catalogue->add(QStringLiteral("Plain"), QVersionNumber(1, 3, 1));
        QCOMPARE(refusal("needy"), QString());
        expectFailure("start threw: not ready");
        expectFailure("did not start.");
        m_loader->start();
        QVERIFY(!m_loader->mayClose(false));
        QVERIFY(m_loader->mayClose(true));
        expectFailure("uninitialize threw: unknown exception");
        expectFailure("was not taken down properly.");
        m_loader->shutDown();
        for (const char *step : {"start", "destroyed"}) {
            QCOMPARE(steps().count(QLatin1String(step)), 2);
        }
    }

    void hostPartsAndTheWorkbenchCountAsPlugins()
    {
        for (const char *part : {"AppCore", "ParameterCollectionPool", "CameraPool"}) {
            QVERIFY(m_catalogue->isPluginAvailable(QLatin1String(part)));
            QCOMPARE(m_catalogue->version(QLatin1String(part)), QVersionNumber(2, 0, 0));
        }
        const QString workbench = QStringLiteral("Workbench");
        QVERIFY(!m_catalogue->isPluginAvailable(workbench));
        m_catalogue->setWorkbenchOffered(true);
        QVERIFY(m_catalogue->isPluginAvailable(workbench));
        QVERIFY(!m_catalogue->isPluginAvailable(QStringLiteral("Plain")));
    }

private:
    Tests::WarningGuard m_guard;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::PluginCatalogue> m_catalogue;
    std::unique_ptr<Host::PluginLoader> m_loader;
};

QTEST_MAIN(TestPluginLoader)
#include "tst_pluginloader.moc"
