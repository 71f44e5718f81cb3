// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorlog.h"

#include "plugin/contract/core/logging.h"

void EditorLog::fault(const QString &text)
{
    if (m_categoryId == 0) {
        m_categoryId = Core::Logging::getCatId(m_category);
    }
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, m_categoryId, text);
}
