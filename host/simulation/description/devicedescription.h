// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/simulation/description/featuredescription.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace Simulation {

/// The facts of a device that its source record shows.
struct DeviceInfo
{
    QString displayName;
    QString model;
    QString deviceClass; ///< "GEV", "U3V", or empty for something that is no camera
    QString category = QStringLiteral("Device"); ///< "Device" or "Workbench"
};

/// One tree of parameters, such as "@CameraDevice".
struct TreeDescription
{
    QString path;
    int attachAfterMs = 0; ///< how long after opening the tree becomes available
    int root = -1; ///< number of its top category
};

/// A whole device: its facts, its trees, and all features of all trees under one numbering.
class DeviceDescription
{
public:
    DeviceInfo info;

    const std::vector<TreeDescription> &trees() const;
    const std::vector<FeatureDescription> &features() const;
    int size() const;
    const FeatureDescription &feature(int id) const;
    FeatureDescription &feature(int id);

    void reserve(int features);
    /// Starts a tree with an empty category "Root". Returns the number of that category.
    int addTree(const QString &path, int attachAfterMs);
    /// Adds a feature or category to the category `parent` (-1: to none), and the companion of a
    /// float that has one. Returns its number, or -1 where the tree has that name already.
    int addFeature(FeatureDescription feature, int parent);

    /// The number of the feature at that path; -1 where there is none.
    int find(const QString &fullName) const;
    /// The same for a name as seen from the feature `id`: a path, or a name within its tree.
    int findFrom(int id, const QString &name) const;
    QString fullName(int id) const;
    QStringList childNames(int id) const;

private:
    void addAlias(int id);

    std::vector<TreeDescription> m_trees;
    std::vector<FeatureDescription> m_features;
    QHash<QString, int> m_index;
};

} // namespace Simulation
