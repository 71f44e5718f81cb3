// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/localizedplugin.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/core/service.h"
#include "plugin/contract/genapi/invalidargumentexception.h"

#include <QMetaObject>

namespace {

void log(const QString &text)
{
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Information,
                                  Core::Logging::getCatId("test.plugin"), text);
}

} // namespace

/// A plug-in that logs each step of its life as information in the category "test.plugin". The
/// language it is given tells where it misbehaves: "fails", "throws" or
/// "stubborn".
class TestPlugin final : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID FILE "testplugin.json")

public:
    ~TestPlugin() override
    {
        log(QStringLiteral("destroyed"));
    }

    bool setLanguage(const QString &language) override
    {
        m_behaviour = language;
        log(QStringLiteral("%1 speaks %2").arg(objectName(), language));
        return ALocalizedPlugin::setLanguage(language);
    }

    bool initialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override
    {
        log(QStringLiteral("initialize"));
        registry.toStrongRef()->registerService(
            QSharedPointer<Core::Service::IService>::create(nullptr));
        if (m_behaviour == QLatin1String("throws")) {
            throw GenICam::InvalidArgumentException("no device", __FILE__, __LINE__);
        }
        return m_behaviour != QLatin1String("fails");
    }

    bool start() override
    {
        log(QStringLiteral("start"));
        if (m_behaviour == QLatin1String("stubborn")) {
            throw Core::Exception::BaseException("not ready");
        }
        return true;
    }

    bool uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override
    {
        log(QStringLiteral("uninitialize, %1 services")
                .arg(registry.toStrongRef()->services().size()));
        if (m_behaviour == QLatin1String("stubborn")) {
            throw 1;
        }
        return true;
    }

    bool checkPluginClosability(bool forced) override
    {
        return forced || m_behaviour != QLatin1String("stubborn");
    }

    UninitializeMode aboutToUninitialize() override
    {
        log(QStringLiteral("about to uninitialize"));
        QMetaObject::invokeMethod(
            this, [] { log(QStringLiteral("queued event")); }, Qt::QueuedConnection);
        return UninitializeMode::AfterPendingEvents;
    }

private:
    QString m_behaviour;
};

#include "testplugin.moc"
