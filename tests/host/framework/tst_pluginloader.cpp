// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/log.h"
#include "host/framework/plugincatalogue.h"
#include "host/framework/pluginerror.h"
#include "host/framework/pluginloader.h"
#include "host/framework/serviceregistry.h"
#include "support/warningguard.h"

#include <QFile>
#include <QLibrary>
#include <QPointer>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using Core::Logging::ELogLevel;

namespace {

QString pathOf(const QString &plugin)
{
    return QStringLiteral(TEST_PLUGIN_DIR "/lib%1.so").arg(plugin);
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
    QString refusal(const QString &path)
    {
        try {
            m_loader->load(path, QStringLiteral("ja"));
        } catch (const Host::PluginError &error) {
            return QString::fromUtf8(error.what());
        }
        return QString();
    }

    void expectFailure(const QString &text)
    {
        m_guard.expectLogEntry(ELogLevel::Failure, QStringLiteral("vantrel.viewer.pluginLoader"),
                               text);
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
        QCOMPARE(refusal(pathOf(QStringLiteral("plain"))), QString());
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
        QVERIFY(QLibrary(pathOf(QStringLiteral("plain"))).isLoaded());
    }

    void refusesWithOneClearLine_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("reason");
        const auto row = [](const char *plugin, const char *reason) {
            QTest::newRow(plugin) << QString::fromLatin1(plugin) << QString::fromLatin1(reason);
        };
        row("missing", "there is no such file.");
        row("foreign",
            "its interface id is \"org.elsewhere.Plugin\" where "
            "\"org.vantrel.vantrelApp.VantrelViewerPlugin\" is wanted.");
        row("nameless", "its metadata has no \"Name\".");
        row("versionless", "its metadata has no \"Version\" of Versionless.");
        row("needy", "it needs \"Plain\" 1.3.0, which is not there.");
    }

    void refusesWithOneClearLine()
    {
        QFETCH(QString, plugin);
        QFETCH(QString, reason);
        const QString path = pathOf(plugin);
        QCOMPARE(refusal(path),
                 QStringLiteral("Cannot use the plug-in \"%1\": %2").arg(path, reason));
        QCOMPARE(steps(), QStringList()); // no code of it ran
        QVERIFY(m_loader->names().isEmpty());
        QCOMPARE(refusal(pathOf(QStringLiteral("plain"))), QString()); // everything else works
    }

    void refusesWhatIsNoPlugin_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << QByteArray("not a library");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut library") << QByteArray("\x7f"
                                                   "ELF\x02\x01\x01",
                                                   7);
    }

    void refusesWhatIsNoPlugin()
    {
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("some.so")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QCOMPARE(refusal(file.fileName()),
                 QStringLiteral("Cannot use the plug-in \"%1\": the file is no Qt plug-in.")
                     .arg(file.fileName()));
    }

    void refusesTooOldADependency()
    {
        QCOMPARE(refusal(pathOf(QStringLiteral("plain"))), QString());
        QVERIFY(refusal(pathOf(QStringLiteral("needy")))
                    .endsWith(QStringLiteral("it needs \"Plain\" 1.3.0, and 1.2.0 is there.")));
        m_catalogue->add(QStringLiteral("Plain"), QVersionNumber(1, 3, 1));
        QCOMPARE(refusal(pathOf(QStringLiteral("needy"))), QString());
        QCOMPARE(m_loader->names().join(QLatin1Char(' ')), QStringLiteral("Plain Needy"));
    }

    void refusesTheSamePluginTwice()
    {
        QCOMPARE(refusal(pathOf(QStringLiteral("plain"))), QString());
        QVERIFY(refusal(pathOf(QStringLiteral("plain")))
                    .endsWith(QStringLiteral("\"Plain\" is there already.")));
    }

    void doesNotUseAPluginThatDidNotInitialize_data()
    {
        QTest::addColumn<QString>("plugin");
        QTest::addColumn<QString>("reason");
        QTest::newRow("says no") << QStringLiteral("failing")
                                 << QStringLiteral("it could not be initialized.");
        QTest::newRow("throws") << QStringLiteral("throwing")
                                << QStringLiteral("it threw while it was initialized: no device");
    }

    void doesNotUseAPluginThatDidNotInitialize()
    {
        QFETCH(QString, plugin);
        QFETCH(QString, reason);
        QVERIFY(refusal(pathOf(plugin)).endsWith(reason));
        QVERIFY(m_loader->names().isEmpty());
        QCOMPARE(m_registry->services().size(), 1); // what it registered stays
        m_loader->start();
        QVERIFY(m_loader->mayClose(false));
        m_loader->shutDown();
        QCOMPARE(steps().mid(2),
                 QStringList({QStringLiteral("initialize"), QStringLiteral("destroyed")}));
    }

    void goesOnPastAPluginThatThrows()
    {
        QCOMPARE(refusal(pathOf(QStringLiteral("plain"))), QString());
        QCOMPARE(refusal(pathOf(QStringLiteral("stubborn"))), QString());
        expectFailure(QStringLiteral("Plug-in \"Stubborn\": start threw: not ready"));
        expectFailure(QStringLiteral("Plug-in \"Stubborn\": did not start."));
        m_loader->start();
        QVERIFY(!m_loader->mayClose(false));
        QVERIFY(m_loader->mayClose(true));
        expectFailure(
            QStringLiteral("Plug-in \"Stubborn\": uninitialize threw: unknown exception"));
        expectFailure(QStringLiteral("Plug-in \"Stubborn\": was not taken down properly."));
        m_loader->shutDown();
        QCOMPARE(steps().count(QStringLiteral("destroyed")), 2);
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
