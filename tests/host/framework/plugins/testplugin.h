// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/localizedplugin.h"

/// A plug-in that logs each step of its life as information in the category "test.plugin". The
/// language it is given tells where it misbehaves: "initialize fails", "initialize throws" or
/// "stubborn".
class TestPlugin final : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TEST_PLUGIN_IID FILE "testplugin.json")

public:
    TestPlugin();
    ~TestPlugin() override;

    bool setLanguage(const QString &language) override;
    bool initialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override;
    bool start() override;
    bool uninitialize(QWeakPointer<Core::Service::IServiceRegistry> registry) override;
    bool checkPluginClosability(bool forced) override;
    UninitializeMode aboutToUninitialize() override;

private:
    QString m_behaviour;
};
