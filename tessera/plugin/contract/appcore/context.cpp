// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "context.h"

namespace Core::AppCoreComponents {

CContext::CContext(const Core::CId &id)
    : m_id(id)
{
}

Core::CId CContext::id() const
{
    return m_id;
}

} // namespace Core::AppCoreComponents
