// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "parametercore.h"

#include "parameterlibrary.h"
#include "valuetext.h"

namespace Simulation {

ParameterCore::ParameterCore(QSharedPointer<ParameterLibrary> library, int id)
    : m_library(std::move(library))
    , m_id(id)
{
    m_library->enter(this);
}

ParameterCore::~ParameterCore()
{
    m_library->leave(this);
}

int ParameterCore::id() const
{
    return m_id;
}

const FeatureDescription &ParameterCore::feature() const
{
    return m_library->description().feature(m_id);
}

ParameterLibrary &ParameterCore::library() const
{
    return *m_library;
}

Snapshot ParameterCore::snapshot() const
{
    m_library->requireLive(m_id);
    return m_isCurrent ? m_last : reread();
}

Snapshot ParameterCore::last() const
{
    return m_last;
}

Snapshot ParameterCore::published() const
{
    return m_published;
}

Snapshot ParameterCore::takeForPublication()
{
    m_published = m_last;
    return m_last;
}

Snapshot ParameterCore::reread() const
{
    m_last = m_library->read(m_id);
    m_isCurrent = true;
    if (!m_published)
        m_published = m_last;
    return m_last;
}

void ParameterCore::drop()
{
    m_isCurrent = false;
}

void ParameterCore::forget()
{
    m_isCurrent = false;
    m_last.clear();
    m_published.clear();
}

void ParameterCore::write(const Value &value, bool verify)
{
    m_library->write(m_id, value, verify);
}

void ParameterCore::writeText(const QString &text)
{
    Value value;
    try {
        // A float's own text is rounded; given back, it means the value that it stands for.
        const bool isOwnText = feature().type == ParameterCollection::Float
            && snapshot()->isReadable && text == snapshot()->valueText;
        value = isOwnText ? m_library->device().value(m_id) : valueFromText(feature(), text);
    } catch (...) {
        m_library->restore(m_id);
        throw;
    }
    m_library->write(m_id, value, true);
}

} // namespace Simulation
