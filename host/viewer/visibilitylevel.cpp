// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "visibilitylevel.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace Viewer {

namespace {
constexpr int guru = 2;
const char toldLevel[] = "viewerVisibilityLevel";

QString settingsKey()
{
    return QStringLiteral("Viewer/VisibilityLevel");
}
} // namespace

VisibilityLevel::VisibilityLevel(QMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_group(new QActionGroup(this))
    , m_level(std::clamp(QSettings().value(settingsKey(), guru).toInt(), beginner, all))
{
    const QStringList texts {tr("&Beginner"), tr("&Expert"), tr("&Guru"), tr("&All")};
    for (int level = beginner; level <= all; ++level) {
        QAction *action = m_group->addAction(texts.at(level));
        action->setCheckable(true);
        action->setChecked(level == m_level);
        connect(action, &QAction::triggered, this, [this, level] { setLevel(level); });
    }
}

int VisibilityLevel::level() const
{
    return m_level;
}

QList<QAction *> VisibilityLevel::actions() const
{
    return m_group->actions();
}

void VisibilityLevel::setLevel(int level)
{
    if (level < beginner || level > all) {
        return;
    }
    m_level = level;
    QSettings().setValue(settingsKey(), level);
    m_group->actions().at(level)->setChecked(true);
    tellBrowsers();
}

void VisibilityLevel::tellBrowsers()
{
    // A browser that takes another level makes and deletes widgets.
    const auto widgets = m_window->findChildren<QWidget *>();
    QVector<QPointer<QWidget>> browsers;
    std::copy_if(widgets.cbegin(), widgets.cend(), std::back_inserter(browsers),
                 [](const QWidget *widget) { return widget->inherits("FeatureTreeWidget"); });
    for (const QPointer<QWidget> &browser : qAsConst(browsers)) {
        if (browser && browser->property(toldLevel) != m_level) {
            browser->setProperty(toldLevel, m_level);
            QMetaObject::invokeMethod(browser, "onVisibilityChanged", Q_ARG(int, m_level));
        }
    }
}

} // namespace Viewer
