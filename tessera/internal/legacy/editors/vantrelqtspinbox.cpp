// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "vantrelqtspinbox.h"

#include "spinboxkeys.h"
#include "wheelfocus.h"

#include <QKeyEvent>
#include <QWheelEvent>

VantrelQtSpinBox::VantrelQtSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

VantrelQtSpinBox::~VantrelQtSpinBox() = default;

int VantrelQtSpinBox::pageStep() const
{
    return m_pageStep;
}

void VantrelQtSpinBox::setPageStep(int steps)
{
    m_pageStep = steps;
}

void VantrelQtSpinBox::stepBy(int steps)
{
    if (m_pageKeyPressed) {
        m_pageKeyPressed = false;
        steps = steps < 0 ? -m_pageStep : m_pageStep;
    }
    QSpinBox::stepBy(steps);
    Q_EMIT editingFinished();
}

void VantrelQtSpinBox::keyPressEvent(QKeyEvent *event)
{
    m_pageKeyPressed = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    QSpinBox::keyPressEvent(event);
    // At a limit the base makes no step that would have reset it.
    m_pageKeyPressed = false;
    if (isUndoKey(*event)) {
        event->accept();
        QKeyEvent undo = undoKeyPress();
        QSpinBox::keyPressEvent(&undo);
    } else if (isFinishKey(*event)) {
        event->accept();
    }
}

void VantrelQtSpinBox::wheelEvent(QWheelEvent *event)
{
    if (takesWheel(*this)) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
