// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Decides whether a snapshot may touch a float editor, so that typing and the device's updates do
/// not fight: while the user types none may, but the answer to what the user has set may, once.
class UpdateGate final
{
public:
    void setFocused(bool focused);
    bool isFocused() const;

    /// Lets the next snapshot through in spite of the focus.
    void setOpen(bool open);
    /// True when a snapshot may be shown; uses up the one that was let through.
    bool pass();

private:
    bool m_isFocused = false;
    bool m_isOpen = false;
};
