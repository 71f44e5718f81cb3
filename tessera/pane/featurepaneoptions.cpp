// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// What a pane has to do with the window Edit Feature Tabs.

#include "featurepane.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/view/featureoptionsmenu.h"
#include "plugin/contract/appcore/windowservice.h"
#include "plugin/services/exceptionbarrier.h"

#include <QAction>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>

using ParameterCollection::ParameterName;
using Plugin::Tessera::Internal::View::CFeatureOptionsMenu;

namespace Plugin::Tessera {

namespace {

// The signals are declared in QML, so that they are known by their signatures only.
void connectByName(const QObject *sender, const char *signal, const QObject *receiver,
                   const char *slot)
{
    const int signalIndex = sender->metaObject()->indexOfSignal(signal);
    const int slotIndex = receiver->metaObject()->indexOfSlot(slot);
    if (signalIndex >= 0 && slotIndex >= 0) {
        QMetaObject::connect(sender, signalIndex, receiver, slotIndex);
    }
}

} // namespace

// Null without a window, and where its scene could not be loaded.
CFeatureOptionsMenu *CFeatureTreeWidget::optionsMenu() const
{
    return m_optionsWindow ? qobject_cast<CFeatureOptionsMenu *>(m_optionsWindow->rootObject())
                           : nullptr;
}

void CFeatureTreeWidget::connectOptionsMenu()
{
    CFeatureOptionsMenu *menu = optionsMenu();
    if (isAllPane() && menu) {
        connectByName(menu, "cancel()", this, "onCancel()");
        connectByName(menu, "hide()", this, "onHide()");
        connectByName(menu, "nameChanged(int,QString)", menu, "onNameChanged(int,QString)");
        connectByName(menu, "addFeature(int,QString)", menu, "onAddFeature(int,QString)");
        connectByName(menu, "removeFeature(int,QString)", menu, "onRemoveFeature(int,QString)");
        connectByName(menu, "remove(int)", menu, "onRemove(int)");
    }
    if (isAllPane() && m_optionsWindow) {
        m_currentScreen = QGuiApplication::primaryScreen();
        if (m_currentScreen) {
            connect(m_currentScreen, &QScreen::logicalDotsPerInchChanged, this,
                    &CFeatureTreeWidget::onScalingChanged);
        }
    }
    if (menu) {
        connectByName(menu, "add()", this, "onAdd()");
    }
}

void CFeatureTreeWidget::setFeatureNameList(const FeatureList &list)
{
    m_settings.features = list;
    if (CFeatureOptionsMenu *menu = optionsMenu(); menu && isUserPane()) {
        menu->setFeatureNameList(userTabIndex(m_id), list);
    }
    if (m_currentBrowser) {
        m_currentBrowser->setFeatureNameList(list);
    }
}

void CFeatureTreeWidget::onNewParameterNameList(int userTabIndex,
                                                const QList<ParameterName> &featureNameList)
{
    if (userTabIndex == Tessera::userTabIndex(m_id)) {
        setFeatureNameList(featureNameList);
    }
}

void CFeatureTreeWidget::onAddFavoriteButtonClicked()
{
    showOptionsWindow(true);
}

void CFeatureTreeWidget::showOptionsWindow(bool show)
{
    if (!m_optionsWindow) {
        return;
    }
    if (show && m_currentBrowser) {
        placeOptionsWindow();
    }
    if (CFeatureOptionsMenu *menu = optionsMenu()) {
        menu->selectFirstNamedTab();
    }
    m_optionsWindow->setVisible(show);
    m_optionsWindow->update();
}

// Beside the browser: to the right where there is room, else to the left. The place of the screen
// itself is not reckoned with, which is meant.
void CFeatureTreeWidget::placeOptionsWindow()
{
    const QPoint browser = mapToGlobal(m_currentBrowser->pos());
    const int browserWidth = m_currentBrowser->width();
    const QSize frame = m_optionsWindow->frameGeometry().size();
    int x = browser.x();
    int y = style()->pixelMetric(QStyle::PM_TitleBarHeight) + browser.y() + 2;
    bool fitsAtTheRight = false;
    if (const QScreen *screen =
            QGuiApplication::screenAt(QPoint(browser.x() + browserWidth, browser.y()))) {
        const QSize room = screen->size();
        if (frame.height() >= room.height()) {
            y = 0;
        } else if (frame.height() + y > room.height()) {
            y = room.height() - frame.height();
        }
        fitsAtTheRight = x + frame.width() + browserWidth < room.width();
    }
    x += fitsAtTheRight ? browserWidth - 2 : 4 - frame.width();
    m_optionsWindow->setX(x);
    m_optionsWindow->setY(y);
    m_optionsWindow->raise();
}

// Every pane hears of it and takes over its own tab. A closed tab that has a name opens again,
// which is meant.
void CFeatureTreeWidget::onAdd()
{
    CFeatureOptionsMenu *menu = optionsMenu();
    if (!menu || !isUserPane()) {
        return;
    }
    const int index = userTabIndex(m_id);
    const FeatureList list = menu->featureNameList(index);
    setFeatureNameList(list);
    QString name = menu->userTabNames().value(index);
    if (name.isEmpty() && !list.isEmpty()) {
        name = tr("My tab ") + QString::number(index + 1);
        menu->setUserTabName(index, name);
    }
    setUserTabName(name);
    setFeatureNameList(list);
    m_menuAction->setVisible(!name.isEmpty());
    m_menuAction->setChecked(!name.isEmpty());
    // The window closes whatever the host says.
    runGuarded([&] { m_windowService->setDockWidgetVisible(m_id, !name.isEmpty()); });
    closeOptionsWindow();
}

void CFeatureTreeWidget::closeOptionsWindow()
{
    if (CFeatureOptionsMenu *menu = optionsMenu()) {
        menu->selectFirstNamedTab();
    }
    m_optionsWindow->setVisible(false);
    m_optionsWindow->update();
}

void CFeatureTreeWidget::onCancel()
{
    discardOptions();
}

void CFeatureTreeWidget::onHide()
{
    discardOptions();
}

void CFeatureTreeWidget::discardOptions()
{
    if (m_optionsWindow) {
        if (CFeatureOptionsMenu *menu = optionsMenu()) {
            menu->revertChanges();
        }
        closeOptionsWindow();
    }
}

// The browser has moved its row already.
void CFeatureTreeWidget::onOrderOfTableItemsChanged(int from, int to)
{
    if (isAllPane()) {
        return;
    }
    if (!isUserPane()) {
        moveFeature(m_settings.features, from, to);
        return;
    }
    if (CFeatureOptionsMenu *menu = optionsMenu()) {
        const int index = userTabIndex(m_id);
        FeatureList list = menu->featureNameList(index);
        moveFeature(list, from, to);
        m_settings.features = list;
        menu->setFeatureNameList(index, list);
        // Once more, so that a later cancel does not bring the old order back.
        menu->setFeatureNameList(index, list);
    }
}

} // namespace Plugin::Tessera
