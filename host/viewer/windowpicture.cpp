// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "windowpicture.h"

#include <QApplication>
#include <QEvent>
#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

namespace Viewer {

namespace {
constexpr int restMilliseconds = 400;
constexpr int limitMilliseconds = 6000;
} // namespace

WindowPicture::WindowPicture(QWidget *window, const QString &file, QObject *parent)
    : QObject(parent)
    , m_window(window)
    , m_file(file)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMilliseconds);
    m_limit.setSingleShot(true);
    m_limit.setInterval(limitMilliseconds);
    connect(&m_rest, &QTimer::timeout, this, &WindowPicture::save);
    connect(&m_limit, &QTimer::timeout, this, &WindowPicture::save);
    qApp->installEventFilter(this);
    m_rest.start();
    m_limit.start();
}

bool WindowPicture::eventFilter(QObject *watched, QEvent *event)
{
    const bool ofWindow = watched == m_window
        || (watched->isWidgetType() && m_window
            && static_cast<QWidget *>(watched)->window() == m_window);
    if (ofWindow && (event->type() == QEvent::Paint || event->type() == QEvent::LayoutRequest)) {
        m_rest.start();
    }
    return QObject::eventFilter(watched, event);
}

void WindowPicture::save()
{
    qApp->removeEventFilter(this);
    m_rest.stop();
    m_limit.stop();
    if (!m_window) {
        Q_EMIT failed(QStringLiteral("%1: the window is gone").arg(m_file));
        return;
    }
    QImageWriter writer(m_file);
    if (!writer.write(m_window->grab().toImage())) {
        Q_EMIT failed(QStringLiteral("%1: %2").arg(m_file, writer.errorString()));
        return;
    }
    Q_EMIT saved();
}

} // namespace Viewer
