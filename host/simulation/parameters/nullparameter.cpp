// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "nullparameter.h"

#include "nullnode.h"

#include "plugin/contract/genapi/genericexception.h"

using namespace ParameterCollection;

namespace Simulation {

NullParameter::NullParameter(const QString &fullName, bool hasFilterTarget)
    : m_fullName(fullName)
    , m_hasFilterTarget(hasFilterTarget)
    , m_node(QSharedPointer<NullNode>::create())
{
}

NullParameter::~NullParameter() = default;

void NullParameter::refuse() const
{
    const QString line = QStringLiteral("%1: stands for no feature").arg(m_fullName);
    throw GenICam::GenericException(line.toStdString(), __FILE__, __LINE__);
}

void NullParameter::setFromString(const QString &value)
{
    Q_UNUSED(value)
    refuse();
}

bool NullParameter::isNull() const
{
    return true;
}

bool NullParameter::isWritable() const
{
    return false;
}

bool NullParameter::isImplemented() const
{
    return false;
}

bool NullParameter::hasFilterTarget() const
{
    return m_hasFilterTarget;
}

GenApi::EVisibility NullParameter::visibility() const
{
    return GenApi::UndefinedVisibility;
}

ParameterType NullParameter::type() const
{
    return ParameterType::None;
}

QString NullParameter::fullName() const
{
    return m_fullName;
}

QString NullParameter::name() const
{
    return m_fullName.section(QLatin1Char('/'), -1);
}

QSharedPointer<IParameterNode> NullParameter::node() const
{
    return m_node;
}

QSharedPointer<const ParameterData> NullParameter::parameterData() const
{
    return {};
}

void NullParameter::refresh(bool force)
{
    Q_UNUSED(force)
    refuse();
}

} // namespace Simulation
