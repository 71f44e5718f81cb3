// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "quick.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QQuickWindow>

namespace Host {

namespace {

bool canDrawWithOpenGl()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal")) {
        return false;
    }
    QOpenGLContext context;
    return context.create();
}

void selectRenderer()
{
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") && !canDrawWithOpenGl()) {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
}

} // namespace

void prepareQuick()
{
    // Once: Qt takes no second choice.
    static const bool prepared = (selectRenderer(), true);
    Q_UNUSED(prepared)
}

void deleteQuickWindows()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    for (QWindow *window : windows) {
        auto *quickWindow = qobject_cast<QQuickWindow *>(window);
        // QObject's parent: a window's parent window is another thing.
        if (quickWindow != nullptr && quickWindow->QObject::parent() == nullptr) {
            delete quickWindow;
        }
    }
}

} // namespace Host
