// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "wheelfocus.h"

#include <QApplication>
#include <QWidget>

namespace {

// An editor of several parts passes the focus on to one of them; a viewport passes it outwards.
const QWidget &editorOf(const QWidget &part)
{
    const QWidget *parent = part.parentWidget();
    const QWidget *proxy = parent ? parent->focusProxy() : nullptr;
    return proxy && parent->isAncestorOf(proxy) ? *parent : part;
}

} // namespace

bool takesWheel(const QWidget &part)
{
    const QWidget &editor = editorOf(part);
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == &editor || editor.isAncestorOf(focused));
}
