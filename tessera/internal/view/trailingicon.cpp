// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "trailingicon.h"

#include <QAction>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

QAction *addTrailingIcon(QLineEdit *edit, const QIcon &icon, int sevenths)
{
    const int side = edit->height() - 2;
    const QPixmap source = icon.pixmap(side, side);
    const QSize size = source.size() / source.devicePixelRatio();
    QPixmap canvas(size * sevenths / 7 * source.devicePixelRatio());
    canvas.setDevicePixelRatio(source.devicePixelRatio());
    canvas.fill(Qt::transparent);
    QRect place(QPoint(), size);
    place.moveCenter(QRect(QPoint(), size * sevenths / 7).center());
    if (!canvas.isNull()) { // null: the style or the resources have no such icon
        QPainter(&canvas).drawPixmap(place, source);
    }
    return edit->addAction(QIcon(canvas), QLineEdit::TrailingPosition);
}
