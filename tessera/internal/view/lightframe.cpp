// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "lightframe.h"

#include "lightpalette.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QWidget>

LightFrame::LightFrame(QWidget *frame)
    : QObject(frame)
    , m_frame(frame)
{
    followSystem();
}

// The highlight is the system's.
void LightFrame::followSystem()
{
    m_light = lightPalette();
    paint(m_frame);
}

void LightFrame::paint(QWidget *widget)
{
    QPalette light = m_light;
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

bool LightFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == m_frame) {
        followSystem();
    } else if (event->type() == QEvent::ChildPolished) {
        if (auto *part = qobject_cast<QWidget *>(static_cast<QChildEvent *>(event)->child())) {
            paint(part);
        }
    }
    return QObject::eventFilter(watched, event);
}
