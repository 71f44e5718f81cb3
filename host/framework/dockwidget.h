// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/hostexport.h"

#include <QDockWidget>

namespace Host {

/// A dock that knows whether the user sees it as open, which is not the same as being visible: a
/// dock tabbed behind another is open, and so is every open dock of a window that is closing.
class VANTREL_HOST_EXPORT DockWidget final : public QDockWidget
{
    Q_OBJECT

public:
    explicit DockWidget(QWidget *parent);
    ~DockWidget() override;

    bool isClosed() const;
    /// Hides the dock and gives its widget back, without a parent; the widget may be null. The
    /// state stays as it was.
    QWidget *release();

    /// The road of every opening and closing: button, menu, restored layout. The state changes
    /// before the content gets its show or hide event.
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The state has changed; the content has not heard of it yet.
    void closedChanged(bool closed);

protected:
    /// Titles come with mnemonics in mind, which a title bar has none of: "R&&D" reads "R&D".
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_closed = true;
    bool m_released = false;
};

} // namespace Host
