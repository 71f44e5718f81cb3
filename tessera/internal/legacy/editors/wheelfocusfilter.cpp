// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "wheelfocusfilter.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

WheelFocusFilter::WheelFocusFilter(QWidget *editor)
    : QObject(editor)
    , m_editor(editor)
{
    watch(editor);
}

// With Qt::WheelFocus the event itself would give the focus before it arrives here.
void WheelFocusFilter::watch(QWidget *child)
{
    child->setFocusPolicy(Qt::StrongFocus);
    child->installEventFilter(this);
}

bool WheelFocusFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && !editorHasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool WheelFocusFilter::editorHasFocus() const
{
    const QWidget *focused = QApplication::focusWidget();
    return focused && (focused == m_editor || m_editor->isAncestorOf(focused));
}
