// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "panesettings.h"

#include "plugin/constants/ids.h"
#include "plugin/constants/settingskeys.h"
#include "plugin/contract/core/id.h"

#include <QSettings>

#include <algorithm>
#include <iterator>

namespace Plugin::Tessera {

namespace {

namespace Keys = SettingsKeys;

/// The store with the plug-in's group open.
class Store final
{
public:
    Store()
    {
        m_settings.beginGroup(QLatin1String(Keys::Group));
    }

    QString text(const QString &key) const
    {
        return m_settings.value(key, QString()).toString();
    }
    bool flag(const QString &key) const
    {
        return m_settings.value(key, false).toBool();
    }
    int width(const QString &key) const
    {
        return m_settings.value(key, -1).toInt();
    }
    void setValue(const QString &key, const QVariant &value)
    {
        m_settings.setValue(key, value);
    }

private:
    QSettings m_settings;
};

bool isPane(const Core::CId &pane, const char *id)
{
    return pane == Core::CId(id);
}

QString numbered(const char *prefix, int userTab)
{
    return QLatin1String(prefix) + QString::number(userTab);
}

QString ofBasicPane(const char *prefix)
{
    return QLatin1String(prefix) + QLatin1String(Ids::BasicPane);
}

void loadUserTab(const Store &store, int tab, PaneSettings &settings)
{
    settings.userTabName = store.text(numbered(Keys::UserTabNamePrefix, tab));
    settings.features =
        featureListFromText(store.text(numbered(Keys::UserTabFeatureNameListPrefix, tab)));
    settings.isUserTabOpen = store.flag(numbered(Keys::UserTabFeatureVisiblePrefix, tab));
    settings.isUserTabAvailable = store.flag(numbered(Keys::UserTabFeatureAvailablePrefix, tab));
    settings.nameColumnWidth = store.width(numbered(Keys::FeatureColumnWidthPrefix, tab));
}

void saveUserTab(Store &store, int tab, const PaneSettings &settings)
{
    store.setValue(numbered(Keys::UserTabNamePrefix, tab), settings.userTabName);
    store.setValue(numbered(Keys::UserTabFeatureNameListPrefix, tab),
                   featureListText(settings.features));
    store.setValue(numbered(Keys::UserTabFeatureVisiblePrefix, tab), settings.isUserTabOpen);
    store.setValue(numbered(Keys::UserTabFeatureAvailablePrefix, tab), settings.isUserTabAvailable);
    store.setValue(numbered(Keys::FeatureColumnWidthPrefix, tab), settings.nameColumnWidth);
}

} // namespace

int userTabIndex(const Core::CId &pane)
{
    const auto *found =
        std::find_if(Ids::UserPanes.begin(), Ids::UserPanes.end(),
                     [&](const char *candidate) { return isPane(pane, candidate); });
    return found == Ids::UserPanes.end()
        ? -1
        : static_cast<int>(std::distance(Ids::UserPanes.begin(), found));
}

PaneSettings loadPaneSettings(const Core::CId &pane)
{
    const Store store;
    PaneSettings settings;
    settings.isPolling = store.flag(QLatin1String(Keys::Polling));
    const int tab = userTabIndex(pane);
    if (tab >= 0) {
        loadUserTab(store, tab, settings);
        return settings;
    }
    settings.features =
        featureListFromText(store.text(ofBasicPane(Keys::UserTabFeatureNameListPrefix)));
    if (isPane(pane, Ids::BasicPane)) {
        settings.nameColumnWidth = store.width(ofBasicPane(Keys::FeatureColumnWidthPrefix));
    } else {
        settings.treeWidth = store.width(QLatin1String(Keys::CategoryColumnWidth));
        settings.nameColumnWidth = store.width(QLatin1String(Keys::ConnectedFeatureColumnWidth));
    }
    return settings;
}

void savePaneSettings(const Core::CId &pane, const PaneSettings &settings)
{
    Store store;
    store.setValue(QLatin1String(Keys::Polling), settings.isPolling);
    const int tab = userTabIndex(pane);
    if (tab >= 0) {
        saveUserTab(store, tab, settings);
    } else if (isPane(pane, Ids::BasicPane)) {
        store.setValue(ofBasicPane(Keys::UserTabFeatureNameListPrefix),
                       featureListText(settings.features));
        store.setValue(ofBasicPane(Keys::FeatureColumnWidthPrefix), settings.nameColumnWidth);
    } else {
        store.setValue(QLatin1String(Keys::ConnectedFeatureColumnWidth), settings.nameColumnWidth);
        store.setValue(QLatin1String(Keys::CategoryColumnWidth), settings.treeWidth);
    }
}

} // namespace Plugin::Tessera
