// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "devicedescription.h"

#include <algorithm>

using ParameterCollection::ParameterType;

namespace Simulation {

const std::vector<TreeDescription> &DeviceDescription::trees() const
{
    return m_trees;
}

const std::vector<FeatureDescription> &DeviceDescription::features() const
{
    return m_features;
}

int DeviceDescription::size() const
{
    return static_cast<int>(m_features.size());
}

const FeatureDescription &DeviceDescription::feature(int id) const
{
    return m_features[static_cast<std::size_t>(id)];
}

FeatureDescription &DeviceDescription::feature(int id)
{
    return m_features[static_cast<std::size_t>(id)];
}

void DeviceDescription::reserve(int features)
{
    m_features.reserve(static_cast<std::size_t>(features));
    m_index.reserve(features);
}

int DeviceDescription::addTree(const QString &path, int attachAfterMs)
{
    TreeDescription tree;
    tree.path = path;
    tree.attachAfterMs = attachAfterMs;
    m_trees.push_back(tree);

    FeatureDescription root;
    root.name = QStringLiteral("Root");
    root.type = ParameterType::Category;
    root.access = AccessMode::ReadOnly;
    root.tree = static_cast<int>(m_trees.size()) - 1;
    m_trees.back().root = addFeature(root, -1);
    return m_trees.back().root;
}

int DeviceDescription::addFeature(FeatureDescription feature, int parent)
{
    const int id = size();
    if (parent >= 0)
        feature.tree = this->feature(parent).tree;
    const QString path =
        m_trees[static_cast<std::size_t>(feature.tree)].path % QLatin1Char('/') % feature.name;
    if (m_index.contains(path))
        return -1;
    m_index.insert(path, id);
    m_features.push_back(std::move(feature));
    if (parent >= 0)
        this->feature(parent).children.append(id);
    if (this->feature(id).rules && this->feature(id).rules->alias)
        addAlias(id);
    return id;
}

void DeviceDescription::addAlias(int id)
{
    // All texts of the float hold for its companion too; copies share them.
    FeatureDescription companion = feature(id);
    const AliasRule rule = *companion.rules->alias;
    companion.name += QStringLiteral("/Alias");
    companion.type = ParameterType::Integer;
    companion.minimum = rule.minimum;
    companion.maximum = rule.maximum;
    companion.increment = rule.increment;
    companion.value = rule.minimum;
    const bool isPolled = companion.isPolled();
    companion.rules.clear();
    companion.ensureRules().aliasOf = id;
    companion.rules->isPolled = isPolled;
    if (companion.representation.isEmpty())
        companion.representation = QStringLiteral("Linear");
    feature(id).rules->aliasId = addFeature(std::move(companion), -1);
}

int DeviceDescription::find(const QString &fullName) const
{
    return m_index.value(fullName, -1);
}

int DeviceDescription::findFrom(int id, const QString &name) const
{
    if (name.startsWith(QLatin1Char('@')))
        return find(name);
    const auto tree = static_cast<std::size_t>(feature(id).tree);
    return find(m_trees[tree].path % QLatin1Char('/') % name);
}

QString DeviceDescription::fullName(int id) const
{
    const FeatureDescription &described = feature(id);
    return m_trees[static_cast<std::size_t>(described.tree)].path % QLatin1Char('/')
        % described.name;
}

QStringList DeviceDescription::childNames(int id) const
{
    const QVector<int> &ids = feature(id).children;
    QStringList names;
    names.reserve(ids.size());
    std::transform(ids.cbegin(), ids.cend(), std::back_inserter(names),
                   [this](int child) { return fullName(child); });
    return names;
}

} // namespace Simulation
