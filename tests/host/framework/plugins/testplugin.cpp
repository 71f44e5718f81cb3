// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "testplugin.h"

#include "plugin/contract/core/baseexception.h"
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

TestPlugin::TestPlugin()
{
    log(QStringLiteral("constructed"));
}

TestPlugin::~TestPlugin()
{
    log(QStringLiteral("destroyed"));
}

bool TestPlugin::setLanguage(const QString &language)
{
    m_behaviour = language;
    log(QStringLiteral("%1 speaks %2").arg(objectName(), language));
    return ALocalizedPlugin::setLanguage(language);
}

bool TestPlugin::initialize(QWeakPointer<Core::Service::IServiceRegistry> registry)
{
    log(QStringLiteral("initialize"));
    registry.toStrongRef()->registerService(
        QSharedPointer<Core::Service::IService>::create(nullptr));
    if (m_behaviour == QLatin1String("initialize throws")) {
        throw GenICam::InvalidArgumentException("no device", __FILE__, __LINE__);
    }
    return m_behaviour != QLatin1String("initialize fails");
}

bool TestPlugin::start()
{
    log(QStringLiteral("start"));
    if (m_behaviour == QLatin1String("stubborn")) {
        throw Core::Exception::BaseException("not ready");
    }
    return true;
}

bool TestPlugin::uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry)
{
    log(QStringLiteral("uninitialize, %1 services").arg(registry.toStrongRef()->services().size()));
    if (m_behaviour == QLatin1String("stubborn")) {
        throw 1;
    }
    return true;
}

bool TestPlugin::checkPluginClosability(bool forced)
{
    log(QStringLiteral("may close?"));
    return forced || m_behaviour != QLatin1String("stubborn");
}

Core::Plugin::IPlugin::UninitializeMode TestPlugin::aboutToUninitialize()
{
    log(QStringLiteral("about to uninitialize"));
    QMetaObject::invokeMethod(
        this, [] { log(QStringLiteral("queued event")); }, Qt::QueuedConnection);
    return UninitializeMode::AfterPendingEvents;
}
