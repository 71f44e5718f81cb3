// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/id.h"
#include "plugin/contract/hostexport.h"

namespace Core::AppCoreComponents {

/// Where an action is active. Built for one registration and not kept.
class VANTREL_HOST_EXPORT CContext
{
public:
    explicit CContext(const Core::CId &id);

    Core::CId id() const;

private:
    Core::CId m_id;
};

} // namespace Core::AppCoreComponents
