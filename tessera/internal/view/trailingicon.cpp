// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "trailingicon.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QStyle>

namespace {

QPixmap withRoom(const QPixmap &source, int sevenths)
{
    const QSize size = source.size() / source.devicePixelRatio();
    QPixmap canvas(size * sevenths / 7 * source.devicePixelRatio());
    canvas.setDevicePixelRatio(source.devicePixelRatio());
    canvas.fill(Qt::transparent);
    QRect place(QPoint(), size);
    place.moveCenter(QRect(QPoint(), size * sevenths / 7).center());
    if (!canvas.isNull()) { // null: the style or the resources have no such icon
        QPainter(&canvas).drawPixmap(place, source);
    }
    return canvas;
}

} // namespace

// An icon of its own for each edit would leave its pictures in Qt's cache when the edit goes.
QAction *addTrailingIcon(QLineEdit *edit, const QString &name, const QIcon &icon, int sevenths)
{
    const int side = edit->height() - 2;
    const QString key = QStringLiteral("trailingicon %1 %2 %3 %4")
                            .arg(name)
                            .arg(side)
                            .arg(sevenths)
                            .arg(qApp->devicePixelRatio());
    QPixmap canvas;
    if (!QPixmapCache::find(key, &canvas)) {
        canvas = withRoom(icon.pixmap(side, side), sevenths);
        QPixmapCache::insert(key, canvas);
    }
    return edit->addAction(QIcon(canvas), QLineEdit::TrailingPosition);
}

QAction *addTrailingCross(QLineEdit *edit)
{
    const QStyle *style = QApplication::style();
    return style ? addTrailingIcon(edit, QStringLiteral("cross ") + style->objectName(),
                                   style->standardIcon(QStyle::SP_TitleBarCloseButton), 12)
                 : nullptr;
}
