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

constexpr int tabCount = 4;

bool isTab(int userTabIndex)
{
    return userTabIndex >= 0 && userTabIndex < tabCount;
}

QStringList noNames()
{
    return QVector<QString>(tabCount).toList();
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

// What was shown before becomes the saved state; there is nothing before the first value.
template<typename Value>
void take(const Value &value, Value &working, Value &saved, bool &isInitialised)
{
    saved = isInitialised ? working : value;
    isInitialised = true;
    working = value;
}

} // namespace

CFeatureOptionsMenu::CFeatureOptionsMenu(QQuickItem *parent)
    : QQuickItem(parent)
    , m_featureLists(tabCount)
    , m_savedFeatureLists(tabCount)
    , m_isListInitialised(tabCount, false)
    , m_isNameInitialised(tabCount, false)
    , m_userTabNames(noNames())
    , m_savedUserTabNames(noNames())
{
}

CFeatureOptionsMenu::~CFeatureOptionsMenu() = default;

QVariantList CFeatureOptionsMenu::featureLists() const
{
    QVariantList lists;
    if (m_parameterCollection) {
        std::transform(m_featureLists.cbegin(), m_featureLists.cend(), std::back_inserter(lists),
                       &featureEntries);
    }
    return lists;
}

int CFeatureOptionsMenu::supportedUserTabCount() const
{
    return tabCount;
}

QStringList CFeatureOptionsMenu::userTabNames() const
{
    return m_userTabNames;
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
    take(list, m_featureLists[userTabIndex], m_savedFeatureLists[userTabIndex],
         m_isListInitialised[userTabIndex]);
    Q_EMIT featureListsChanged(userTabIndex);
}

void CFeatureOptionsMenu::setUserTabName(int userTabIndex, const QString &name)
{
    if (!isTab(userTabIndex)) {
        return;
    }
    take(name, m_userTabNames[userTabIndex], m_savedUserTabNames[userTabIndex],
         m_isNameInitialised[userTabIndex]);
    Q_EMIT userTabNamesChanged();
}

CFeatureOptionsMenu::NameList CFeatureOptionsMenu::featureNameList(int userTabIndex) const
{
    return m_featureLists.value(userTabIndex);
}

void CFeatureOptionsMenu::revertChanges()
{
    m_userTabNames = m_savedUserTabNames;
    m_featureLists = m_savedFeatureLists;
    Q_EMIT userTabNamesChanged();
    announceAllFeatureLists();
}

void CFeatureOptionsMenu::selectFirstNamedTab()
{
    setUserTabIndex(0);
    const auto named = std::find_if(m_userTabNames.cbegin(), m_userTabNames.cend(),
                                    [](const QString &name) { return !name.isEmpty(); });
    if (named != m_userTabNames.cend()) {
        setUserTabIndex(int(std::distance(m_userTabNames.cbegin(), named)));
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
    const ParameterName feature(featureFullName);
    if (!m_parameterCollection || !isTab(userTabIndex)
        || m_featureLists.at(userTabIndex).contains(feature)) {
        return;
    }
    m_featureLists[userTabIndex].append(feature);
    Q_EMIT featureListsChanged(userTabIndex);
}

void CFeatureOptionsMenu::onRemoveFeature(int userTabIndex, const QString &featureFullName)
{
    if (!m_parameterCollection || !isTab(userTabIndex)) {
        return;
    }
    if (m_featureLists[userTabIndex].removeAll(ParameterName(featureFullName)) > 0) {
        Q_EMIT featureListsChanged(userTabIndex);
    }
}

void CFeatureOptionsMenu::onRemove(int userTabIndex)
{
    if (!isTab(userTabIndex)) {
        return;
    }
    m_userTabNames[userTabIndex].clear();
    m_featureLists[userTabIndex].clear();
    Q_EMIT userTabNamesChanged();
    Q_EMIT featureListsChanged(userTabIndex);
}

void CFeatureOptionsMenu::onNameChanged(int userTabIndex, const QString &userTabName)
{
    if (!isTab(userTabIndex) || m_userTabNames.at(userTabIndex) == userTabName) {
        return;
    }
    m_userTabNames[userTabIndex] = userTabName;
    Q_EMIT userTabNamesChanged();
}

void CFeatureOptionsMenu::announceAllFeatureLists()
{
    for (int i = 0; i < tabCount; ++i) {
        Q_EMIT featureListsChanged(i);
    }
}

} // namespace Plugin::Tessera::Internal::View
