// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "cellslider.h"

#include "wheelfocus.h"

#include <QWheelEvent>

CellSlider::CellSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

CellSlider::~CellSlider() = default;

void CellSlider::wheelEvent(QWheelEvent *event)
{
    if (takesWheel(*this)) {
        QSlider::wheelEvent(event);
    } else {
        event->ignore();
    }
}
