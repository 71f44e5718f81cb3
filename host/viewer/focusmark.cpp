// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "focusmark.h"

#include <QEvent>
#include <QPainter>

namespace Viewer {

FocusMark::FocusMark(QWidget *widget)
    : QWidget(widget)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    widget->installEventFilter(this);
}

void FocusMark::paintEvent(QPaintEvent * /*event*/)
{
    constexpr int width = 2;
    QPainter painter(this);
    painter.setPen(QPen(palette().highlight(), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

bool FocusMark::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::Resize:
        setGeometry(parentWidget()->rect());
        setVisible(parentWidget()->hasFocus());
        raise();
        break;
    case QEvent::FocusOut:
        hide();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Viewer
