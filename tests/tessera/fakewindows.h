// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

// Has nothing to connect. clazy:excludeall=missing-qobject-macro

#include "plugin/contract/appcore/windowservice.h"
#include "support/fakefault.h"

#include <QMap>
#include <QPointer>
#include <QStringList>
#include <QWidget>

/// Throws at one call of the host, counted over all its services.
struct Trap
{
    void step(const char *call)
    {
        if (name == QLatin1String(call) && --countdown == 0) {
            Tests::raise(fault);
        }
    }
    QString name;
    int countdown = 0;
    Tests::Fault fault = Tests::Fault::None;
};

/// The window service of a host without docks: it notes what it is told.
class FakeWindows final : public Plugin::AppCore::IWindowService
{
public:
    explicit FakeWindows(Trap *trap)
        : IWindowService(nullptr)
        , m_trap(trap)
    {
    }
    bool isDockWidgetClosed(const Core::CId & /*id*/) const override
    {
        m_trap->step("isDockWidgetClosed");
        return isClosed;
    }
    void setDockWidgetVisible(const Core::CId &id, bool visible) override
    {
        calls.append(id.toString().right(5) + QLatin1String(visible ? " opens" : " closes"));
    }
    void setDockWidgetTitle(const Core::CId & /*id*/, const QString &title) override
    {
        calls.append(title);
    }
    void addDockWidget(const Core::CId &id, QWidget *widget, int area, bool visible,
                       bool flag) override
    {
        added += QStringLiteral("%1 \"%2\" %3 %4 %5\n")
                     .arg(id.toString(), widget->windowTitle())
                     .arg(area)
                     .arg(visible)
                     .arg(flag);
        m_trap->step("addDockWidget");
        panes.insert(id.toString(), widget);
        widget->show();
    }
    void removeDockWidget(const Core::CId &id) override
    {
        ++removals;
        m_trap->step("removeDockWidget");
        panes.value(id.toString())->hide();
    }
    bool isClosed = false;
    QStringList calls;
    QString added;
    int removals = 0;
    QMap<QString, QPointer<QWidget>> panes;

private:
    Trap *m_trap; // borrowed
};
