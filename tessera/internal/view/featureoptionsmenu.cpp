// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featureoptionsmenu.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "plugin/contract/parametercollection/parametercollection.h"

#include <QVariantMap>

#include <algorithm>
#include <iterator>

namespace Plugin::Tessera::Internal::View {

using ParameterCollection::ParameterName;

namespace {

template<typename Array> auto &at(Array &tabs, int userTabIndex)
{
    return tabs.at(std::size_t(userTabIndex));
}

QVariant featureEntry(const ParameterName &feature)
{
    const QString fullName = feature.toString();
    QString name = cachedDisplayName(fullName);
    if (name.isEmpty()) {
        name = fullName.section(QLatin1Char('/'), -1);
    }
    return QVariantMap {{QStringLiteral("name"), name}, {QStringLiteral("fullName"), fullName}};
}

QVariant featureEntries(const CFeatureOptionsMenu::NameList &list)
{
    QVariantList entries;
    entries.reserve(list.size());
    std::transform(list.cbegin(), list.cend(), std::back_inserter(entries), &featureEntry);
    return entries;
}

} // namespace

// What was shown before becomes the saved state; there is nothing before the first value.
template<typename Value> void CFeatureOptionsMenu::Edited<Value>::take(const Value &value)
{
    saved = isInitialised ? working : value;
    isInitialised = true;
    working = value;
}

CFeatureOptionsMenu::CFeatureOptionsMenu(QQuickItem *parent)
    : QQuickItem(parent)
{
}

CFeatureOptionsMenu::~CFeatureOptionsMenu() = default;

QVariantList CFeatureOptionsMenu::featureLists() const
{
    QVariantList lists;
    if (m_parameterCollection) {
        std::transform(m_featureLists.cbegin(), m_featureLists.cend(), std::back_inserter(lists),
                       [](const Edited<NameList> &list) { return featureEntries(list.working); });
    }
    return lists;
}

int CFeatureOptionsMenu::supportedUserTabCount() const
{
    return tabCount;
}

QStringList CFeatureOptionsMenu::userTabNames() const
{
    QStringList names;
    std::transform(m_userTabNames.cbegin(), m_userTabNames.cend(), std::back_inserter(names),
                   [](const Edited<QString> &name) { return name.working; });
    return names;
}

int CFeatureOptionsMenu::userTabIndex() const
{
    return m_userTabIndex;
}

void CFeatureOptionsMenu::setUserTabIndex(int userTabIndex)
{
    if (m_userTabIndex == userTabIndex) {
        return;
    }
    m_userTabIndex = userTabIndex;
    Q_EMIT userTabIndexChanged();
}

QString CFeatureOptionsMenu::deleteIconDisabledUrl() const
{
    return QStringLiteral("qrc:/tessera/icons/trashcan_dis.svg");
}

QString CFeatureOptionsMenu::deleteIconUrl() const
{
    return QStringLiteral("qrc:/tessera/icons/trashcan.svg");
}

QString CFeatureOptionsMenu::dragHandIconDisabledUrl() const
{
    return QStringLiteral("qrc:/tessera/icons/dragndrop_dis.svg");
}

QString CFeatureOptionsMenu::dragHandIconUrl() const
{
    return QStringLiteral("qrc:/tessera/icons/dragndrop.svg");
}

int CFeatureOptionsMenu::defaultWindowHeight() const
{
    return 440;
}

void CFeatureOptionsMenu::setFeatureNameList(int userTabIndex, const NameList &list)
{
    if (!isTab(userTabIndex)) {
        return;
    }
    at(m_featureLists, userTabIndex).take(list);
    Q_EMIT featureListsChanged(userTabIndex);
}

void CFeatureOptionsMenu::setUserTabName(int userTabIndex, const QString &name)
{
    if (!isTab(userTabIndex)) {
        return;
    }
    at(m_userTabNames, userTabIndex).take(name);
    Q_EMIT userTabNamesChanged();
}

CFeatureOptionsMenu::NameList CFeatureOptionsMenu::featureNameList(int userTabIndex) const
{
    return isTab(userTabIndex) ? at(m_featureLists, userTabIndex).working : NameList();
}

void CFeatureOptionsMenu::revertChanges()
{
    for (auto &name : m_userTabNames) {
        name.working = name.saved;
    }
    for (auto &list : m_featureLists) {
        list.working = list.saved;
    }
    Q_EMIT userTabNamesChanged();
    announceAllFeatureLists();
}

void CFeatureOptionsMenu::selectFirstNamedTab()
{
    setUserTabIndex(0);
    const QStringList names = userTabNames();
    const auto named = std::find_if(names.cbegin(), names.cend(),
                                    [](const QString &name) { return !name.isEmpty(); });
    if (named != names.cend()) {
        setUserTabIndex(int(std::distance(names.cbegin(), named)));
    }
}

void CFeatureOptionsMenu::setParameterCollection(
    const QSharedPointer<ParameterCollection::IParameterCollection> &collection)
{
    m_parameterCollection = collection;
    announceAllFeatureLists();
}

void CFeatureOptionsMenu::onAddFeature(int userTabIndex, const QString &featureFullName)
{
    if (!m_parameterCollection || !isTab(userTabIndex)) {
        return;
    }
    const ParameterName feature(featureFullName);
    NameList &list = at(m_featureLists, userTabIndex).working;
    if (!list.contains(feature)) {
        list.append(feature);
        Q_EMIT featureListsChanged(userTabIndex);
    }
}

void CFeatureOptionsMenu::onRemoveFeature(int userTabIndex, const QString &featureFullName)
{
    if (!m_parameterCollection || !isTab(userTabIndex)) {
        return;
    }
    NameList &list = at(m_featureLists, userTabIndex).working;
    if (list.removeAll(ParameterName(featureFullName)) > 0) {
        Q_EMIT featureListsChanged(userTabIndex);
    }
}

void CFeatureOptionsMenu::onRemove(int userTabIndex)
{
    if (!isTab(userTabIndex)) {
        return;
    }
    at(m_userTabNames, userTabIndex).working.clear();
    at(m_featureLists, userTabIndex).working.clear();
    Q_EMIT userTabNamesChanged();
    Q_EMIT featureListsChanged(userTabIndex);
}

void CFeatureOptionsMenu::onNameChanged(int userTabIndex, const QString &userTabName)
{
    if (!isTab(userTabIndex) || at(m_userTabNames, userTabIndex).working == userTabName) {
        return;
    }
    at(m_userTabNames, userTabIndex).working = userTabName;
    Q_EMIT userTabNamesChanged();
}

bool CFeatureOptionsMenu::isTab(int userTabIndex)
{
    return userTabIndex >= 0 && userTabIndex < tabCount;
}

void CFeatureOptionsMenu::announceAllFeatureLists()
{
    for (int i = 0; i < tabCount; ++i) {
        Q_EMIT featureListsChanged(i);
    }
}

} // namespace Plugin::Tessera::Internal::View
