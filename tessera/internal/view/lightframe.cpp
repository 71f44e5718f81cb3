// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "lightframe.h"

#include "lightpalette.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QPalette>
#include <QWidget>

LightFrame::LightFrame(QWidget *frame)
    : QObject(frame)
    , m_frame(frame)
{
    m_frame->installEventFilter(this);
    followSystem();
}

void LightFrame::followSystem()
{
    const bool wasPainting = m_isPainting;
    m_isPainting = isSystemDark();
    if (m_isPainting) {
        paint(m_frame);
    } else if (wasPainting) {
        release(m_frame);
    }
}

void LightFrame::paint(QWidget *widget)
{
    QPalette light = lightPalette();
    if (qobject_cast<QAbstractItemView *>(widget)) {
        light.setBrush(QPalette::Disabled, QPalette::Base, light.base());
        if (widget->palette().highlight().color().alpha() == 0) {
            light.setColor(QPalette::Highlight, Qt::transparent); // selects in a way of its own
        }
    }
    widget->setPalette(light);
    widget->installEventFilter(this);
    const QList<QWidget *> parts =
        widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        paint(part);
    }
}

void LightFrame::release(QWidget *widget)
{
    QPalette own;
    if (widget->palette().color(QPalette::Highlight).alpha() == 0) {
        own.setColor(QPalette::Highlight, Qt::transparent);
    }
    widget->setPalette(own);
    if (widget != m_frame) {
        widget->removeEventFilter(this);
    }
    const QList<QWidget *> parts =
        widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *part : parts) {
        release(part);
    }
}

bool LightFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == m_frame) {
        followSystem();
    } else if (m_isPainting && event->type() == QEvent::ChildPolished) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType()) {
            paint(static_cast<QWidget *>(child));
        }
    }
    return QObject::eventFilter(watched, event);
}
