// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

namespace Viewer {

/// Waits until a window has painted itself and is at rest, then saves a picture of it to a file.
class WindowPicture final : public QObject
{
    Q_OBJECT

public:
    /// `window` is borrowed.
    WindowPicture(QWidget *window, const QString &file, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The file is written.
    void saved();
    /// The file could not be written; `message` is one line that names it and says why.
    void failed(const QString &message);

private:
    void save();

    QPointer<QWidget> m_window;
    QString m_file;
    QTimer m_rest; ///< restarted by every paint event
    QTimer m_limit; ///< a window that never rests is saved as it is
};

} // namespace Viewer
