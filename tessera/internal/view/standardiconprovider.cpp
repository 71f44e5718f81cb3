// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "standardiconprovider.h"

#include <QApplication>
#include <QIcon>
#include <QStyle>

namespace Plugin::Tessera::Internal::View {

namespace {

// A scene that sets no source size asks for none.
QSize usableSize(QSize requested)
{
    constexpr int usual = 16;
    return {requested.width() > 0 ? requested.width() : usual,
            requested.height() > 0 ? requested.height() : usual};
}

} // namespace

CStandardIconProvider::CStandardIconProvider()
    : QQuickImageProvider(QQuickImageProvider::Pixmap)
{
}

CStandardIconProvider::~CStandardIconProvider() = default;

QPixmap CStandardIconProvider::requestPixmap(const QString &id, QSize *size,
                                             const QSize &requestedSize)
{
    const QSize pixmapSize = usableSize(requestedSize);
    QPixmap pixmap(pixmapSize);
    pixmap.fill(Qt::transparent);
    const QStyle *style = QApplication::style();
    if (style != nullptr && id == QLatin1String("SP_TitleBarCloseButton")) {
        pixmap = style->standardIcon(QStyle::SP_TitleBarCloseButton)
                     .pixmap(pixmapSize, QIcon::Normal, QIcon::Off);
    }
    if (size != nullptr) {
        *size = pixmap.size();
    }
    return pixmap;
}

} // namespace Plugin::Tessera::Internal::View
