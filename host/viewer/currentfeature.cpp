// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "currentfeature.h"

#include <plugin/contract/viewer/featuretreestatusservice.h>

namespace Viewer {

using ParameterCollection::IParameter;

CurrentFeature::CurrentFeature(QObject *parent)
    : QObject(parent)
{
}

void CurrentFeature::follow(
    const QSharedPointer<Plugin::FeatureTree::IFeatureTreeStatusService> &service) const
{
    if (service) {
        connect(service.data(), &Plugin::FeatureTree::IFeatureTreeStatusService::currentChanged,
                this, &CurrentFeature::setParameter);
    }
}

QSharedPointer<IParameter> CurrentFeature::parameter() const
{
    return m_parameter;
}

QSharedPointer<const ParameterCollection::ParameterData> CurrentFeature::snapshot() const
{
    return m_snapshot;
}

void CurrentFeature::clear()
{
    setParameter(nullptr);
}

void CurrentFeature::setParameter(const QSharedPointer<IParameter> &parameter)
{
    if (m_parameter == parameter) {
        return;
    }
    if (m_parameter) {
        m_parameter->disconnect(this);
    }
    m_parameter = parameter;
    m_snapshot.reset();
    if (m_parameter && !m_parameter->isNull()) {
        connect(m_parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                &CurrentFeature::setSnapshot);
        try {
            m_snapshot = m_parameter->parameterData();
        } catch (...) {
            // What cannot be read is shown without limits; the pane logs the failure.
            m_snapshot.reset();
        }
    }
    Q_EMIT changed();
}

void CurrentFeature::setSnapshot(
    const QSharedPointer<const ParameterCollection::ParameterData> &snapshot)
{
    m_snapshot = snapshot;
    Q_EMIT snapshotChanged();
}

} // namespace Viewer
