// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/id.h"
#include "plugin/contract/core/service.h"

class QString;
class QWidget;

namespace Plugin::AppCore {

/// The host's docking window.
class VANTREL_HOST_EXPORT IWindowService : public Core::Service::IService
{
    Q_OBJECT

public:
    explicit IWindowService(QObject *parent);
    ~IWindowService() override;

    /// True while the dock is not open, and for an unknown id. A dock that is tabbed behind another
    /// is open; closing the main window closes no dock. The answer changes before the widget is
    /// told by its hide or show event.
    virtual bool isDockWidgetClosed(const Core::CId &id) const = 0;
    /// Opens or closes a dock. For an id that is not there yet it is kept until `addDockWidget`.
    virtual void setDockWidgetVisible(const Core::CId &id, bool visible) = 0;
    /// Changes the dock's title; kept like `setDockWidgetVisible`.
    virtual void setDockWidgetTitle(const Core::CId &id, const QString &title) = 0;
    /// Two places of the host that plug-ins do not call.
    virtual void reservedPlace4();
    virtual void reservedPlace5();
    /// Puts `widget` into a dock under `id`, titled with the widget's window title. `area` 3 is the
    /// place of feature panes. With `visible` the dock is open and listed in the Window menu by the
    /// host; without it the dock stays closed until it is asked for. `flag` is false. The widget
    /// stays the caller's.
    virtual void addDockWidget(const Core::CId &id, QWidget *widget, int area, bool visible,
                               bool flag) = 0;
    /// Takes the widget out again, without deleting it.
    virtual void removeDockWidget(const Core::CId &id) = 0;
};

} // namespace Plugin::AppCore
