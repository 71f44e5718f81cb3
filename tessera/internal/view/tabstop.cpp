// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "tabstop.h"

#include <QWidget>

namespace {

bool takesTab(const QWidget &widget)
{
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.isEnabled() && widget.isVisible()
        && !widget.focusProxy() && !widget.visibleRegion().isEmpty();
}

} // namespace

QWidget *nextTabStop(QWidget *from, bool next)
{
    QWidget *target = from;
    do {
        target = next ? target->nextInFocusChain() : target->previousInFocusChain();
    } while (target != from
             && (from->isAncestorOf(target) || target->window() != from->window()
                 || !takesTab(*target)));
    return target == from ? nullptr : target;
}
