// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <plugin/contract/parametercollection/parameter.h>

#include <QObject>
#include <QSharedPointer>

namespace Plugin::FeatureTree {
class IFeatureTreeStatusService;
}

namespace Viewer {

/// The feature that is current in the panes, and its latest snapshot while somebody looks at it.
class CurrentFeature final : public QObject
{
    Q_OBJECT

public:
    explicit CurrentFeature(QObject *parent = nullptr);

    /// Listens to what the panes report. `service` may be null.
    void follow(
        const QSharedPointer<Plugin::FeatureTree::IFeatureTreeStatusService> &service) const;

    /// Null when nothing is current. A parameter whose source was closed stays here until another
    /// one comes; its `isNull()` tells.
    QSharedPointer<ParameterCollection::IParameter> parameter() const;
    /// The latest snapshot, or null.
    QSharedPointer<const ParameterCollection::ParameterData> snapshot() const;

    /// Forgets the parameter, for instance because its source was closed.
    void clear();

Q_SIGNALS:
    /// Another parameter, or none, is current.
    void changed();
    /// The current parameter published a snapshot.
    void snapshotChanged();

private:
    void setParameter(const QSharedPointer<ParameterCollection::IParameter> &parameter);
    void setSnapshot(const QSharedPointer<const ParameterCollection::ParameterData> &snapshot);

    QSharedPointer<ParameterCollection::IParameter> m_parameter;
    QSharedPointer<const ParameterCollection::ParameterData> m_snapshot;
};

} // namespace Viewer
