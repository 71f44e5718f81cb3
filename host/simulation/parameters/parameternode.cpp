// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parameternode.h"

#include "parameterlibrary.h"

namespace Simulation {

namespace {

QString visibilityName(GenApi::EVisibility visibility)
{
    static const QStringList names {QStringLiteral("Beginner"), QStringLiteral("Expert"),
                                    QStringLiteral("Guru"), QStringLiteral("Invisible")};
    return names.value(visibility);
}

QString accessName(AccessMode mode)
{
    static const QStringList names {QStringLiteral("NI"), QStringLiteral("NA"),
                                    QStringLiteral("WO"), QStringLiteral("RO"),
                                    QStringLiteral("RW")};
    return names.value(static_cast<int>(mode));
}

QString textOf(const FeatureDescription &feature, const QString &key)
{
    if (key == QLatin1String("DisplayName"))
        return feature.displayName;
    if (key == QLatin1String("Unit"))
        return feature.unit;
    if (key == QLatin1String("Representation"))
        return feature.representation;
    if (key == QLatin1String("Tooltip"))
        return feature.toolTip;
    if (key == QLatin1String("Description"))
        return feature.description;
    if (key == QLatin1String("DocuURL"))
        return feature.docuUrl;
    if (key == QLatin1String("Visibility"))
        return visibilityName(feature.visibility);
    if (key == QLatin1String("AccessMode"))
        return accessName(feature.access);
    return {};
}

} // namespace

ParameterNode::ParameterNode(QSharedPointer<ParameterLibrary> library, int id)
    : m_library(std::move(library))
    , m_id(id)
{
}

ParameterNode::~ParameterNode() = default;

QString ParameterNode::property(const QString &key) const
{
    const std::optional<QString> override = m_library->overrides(m_id).text(key);
    return override ? *override : textOf(m_library->description().feature(m_id), key);
}

QString ParameterNode::property(const QString &key, const QString &defaultValue) const
{
    const QString text = property(key);
    return text.isEmpty() ? defaultValue : text;
}

void ParameterNode::invalidate()
{
    m_library->invalidate(m_id);
}

void ParameterNode::setProperty(const QString &key, const QString &value)
{
    m_library->setOverride(m_id, key, value);
}

} // namespace Simulation
