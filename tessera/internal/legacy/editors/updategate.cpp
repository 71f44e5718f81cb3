// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "updategate.h"

void UpdateGate::setFocused(bool focused)
{
    m_isFocused = focused;
    m_isOpen = !focused;
}

bool UpdateGate::isFocused() const
{
    return m_isFocused;
}

void UpdateGate::setOpen(bool open)
{
    m_isOpen = open;
}

bool UpdateGate::pass()
{
    if (!m_isFocused) {
        return true;
    }
    const bool wasOpen = m_isOpen;
    m_isOpen = false;
    return wasOpen;
}
