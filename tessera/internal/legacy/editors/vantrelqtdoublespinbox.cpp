// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "vantrelqtdoublespinbox.h"

#include "floattext.h"
#include "spinboxkeys.h"
#include "wheelfocus.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

VantrelQtDoubleSpinBox::VantrelQtDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::textEdited, this, &VantrelQtDoubleSpinBox::textEdited);
}

VantrelQtDoubleSpinBox::~VantrelQtDoubleSpinBox() = default;

double VantrelQtDoubleSpinBox::pageStep() const
{
    return m_pageStep;
}

void VantrelQtDoubleSpinBox::setPageStep(double step)
{
    m_pageStep = step;
}

bool VantrelQtDoubleSpinBox::shows(double value) const
{
    return !lineEdit()->isModified() && text() == textFromValue(value);
}

bool VantrelQtDoubleSpinBox::missesAnswer(double value) const
{
    return !lineEdit()->isModified() && text() != textFromValue(value);
}

void VantrelQtDoubleSpinBox::stepBy(int steps)
{
    Q_EMIT stepTriggered(steps);
}

QString VantrelQtDoubleSpinBox::textFromValue(double value) const
{
    return formatFloat(value, decimals(), StripTrailingZeros, locale());
}

void VantrelQtDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    QDoubleSpinBox::keyPressEvent(event);
    if (isUndoKey(*event)) {
        event->accept();
        QKeyEvent undo = undoKeyPress();
        QDoubleSpinBox::keyPressEvent(&undo);
    } else if (isFinishKey(*event)) {
        event->accept();
    }
}

void VantrelQtDoubleSpinBox::wheelEvent(QWheelEvent *event)
{
    if (takesWheel(*this)) {
        QDoubleSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
