// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurepane.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/view/featureoptionsmenu.h"
#include "internal/view/optionswindow.h"
#include "plugin/constants/ids.h"
#include "plugin/contract/appcore/actioncommand.h"
#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/appcore/windowservice.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/services/exceptionbarrier.h"
#include "plugin/services/featuretreecontrolservice.h"

#include <QAction>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include <memory>
#include <utility>

namespace Plugin::Tessera {

CFeatureTreeWidget::CFeatureTreeWidget(
    QSharedPointer<Plugin::AppCore::IMenuService> menuService,
    QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> controlService,
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> parameterService,
    QSharedPointer<Plugin::Tessera::IFeatureTreeUseCaseService> useCaseService,
    QSharedPointer<Plugin::AppCore::IWindowService> windowService, const Core::CId &id,
    QQuickView *optionsWindow, bool hasWorkbench)
    : m_menuService(std::move(menuService))
    , m_parameterService(std::move(parameterService))
    , m_controlService(std::move(controlService))
    , m_useCaseService(std::move(useCaseService))
    , m_windowService(std::move(windowService))
    , m_id(id)
    , m_optionsWindow(optionsWindow)
{
    setMinimumWidth(350);
    setMinimumHeight(350);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
    createHint(hasWorkbench);
    connectControlService();
    registerCopyAction();
    m_settings = loadPaneSettings(m_id);
    if (isUserPane()) {
        createMenuAction();
    }
    connectOptionsMenu();
}

CFeatureTreeWidget::~CFeatureTreeWidget()
{
    // Children that are deleted after this must not reach into it any more.
    for (FeatureTreeWidget *browser : qAsConst(m_browsers)) {
        browser->disconnect(this);
    }
    for (auto entry = m_collectionSources.cbegin(); entry != m_collectionSources.cend(); ++entry) {
        entry.key()->disconnect(this);
    }
    runGuarded([this] { retire(); });
}

void CFeatureTreeWidget::retire()
{
    if (std::exchange(m_isRetired, true)) {
        return;
    }
    if (m_menuAction) {
        m_settings.isUserTabOpen = m_menuAction->isChecked();
        m_settings.isUserTabAvailable = m_menuAction->isVisible();
        m_menuAction->deleteLater();
    }
    savePaneSettings(m_id, m_settings);
    // Panes without an entry say so as well, which is meant.
    m_menuService->unregisterAction(m_menuAction, m_id.withSuffix(Ids::MenuItemSuffix));
}

void CFeatureTreeWidget::createHint(bool hasWorkbench)
{
    m_hintLabel = new QLabel(this);
    m_hintLabel->setText(
        hasWorkbench ? tr("<i>Select any open camera in the Devices pane or select any qStep with "
                          "settings in the Workbench pane to display its features.</i>")
                     : tr("<i>Select any open camera in the Devices pane to display its "
                          "features.</i>"));
    m_hintLabel->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    m_hintLabel->setWordWrap(true);
    m_hintLabel->setTextInteractionFlags(Qt::NoTextInteraction);
    m_hintLabel->setFrameStyle(0);
    m_hintLabel->setMargin(8);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hintLabel);
    m_hintLabel->show();
}

void CFeatureTreeWidget::connectControlService()
{
    using Internal::CFeatureTreeControlService;
    const auto service = m_controlService.objectCast<CFeatureTreeControlService>();
    if (!service) {
        return;
    }
    connect(service.data(), &CFeatureTreeControlService::parameterSourceRegistered, this,
            &CFeatureTreeWidget::onParameterSourceRegistered);
    connect(service.data(), &CFeatureTreeControlService::parameterSourceUnregistered, this,
            &CFeatureTreeWidget::onParameterSourceUnregistered);
    connect(service.data(), &CFeatureTreeControlService::activeParameterSourceChanged, this,
            &CFeatureTreeWidget::onActiveParameterSourceChanged);
    connect(service.data(), &CFeatureTreeControlService::featureTreeRefreshRequested, this,
            &CFeatureTreeWidget::onFeatureTreeRefreshRequested);
}

// From its registration on the menu service keeps the action, also when the pane is gone.
void CFeatureTreeWidget::registerCopyAction()
{
    auto action = std::make_unique<QAction>(tr("Copy Camera Features"));
    action->setEnabled(false);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+C")));
    action->setShortcutContext(Qt::ApplicationShortcut);
    connect(action.get(), &QAction::triggered, this,
            &CFeatureTreeWidget::onCopyCameraFeaturesTriggered);
    AppCore::IActionContainer *menu = m_menuService->actionContainer(Core::CId(Ids::CameraMenu));
    AppCore::IActionCommand *command = m_menuService->registerAction(
        action.get(), Core::CId(Ids::CopyCameraFeatures),
        Core::AppCoreComponents::CContext(Core::CId(Ids::GlobalContext)));
    m_copyCameraFeaturesAction = action.release();
    if (menu) {
        menu->addAction(command, Core::CId(Ids::CameraFeaturesGroup));
    }
}

// While it throws, nobody else deletes the action.
void CFeatureTreeWidget::createMenuAction()
{
    auto action = std::make_unique<QAction>();
    action->setCheckable(true);
    connect(action.get(), &QAction::triggered, this, &CFeatureTreeWidget::onToggleVisibility);
    AppCore::IActionContainer *menu = m_menuService->actionContainer(Core::CId(Ids::WindowMenu));
    m_menuCommand = m_menuService->registerAction(
        action.get(), m_id.withSuffix(Ids::MenuItemSuffix),
        Core::AppCoreComponents::CContext(Core::CId(Ids::GlobalContext)));
    if (menu) {
        menu->addAction(m_menuCommand, Core::CId(Ids::WindowsGroup));
    }
    m_menuAction = action.get();
    setUserTabName(m_settings.userTabName);
    setFeatureNameList(m_settings.features);
    action->setVisible(m_settings.isUserTabAvailable);
    if (m_settings.isUserTabAvailable && m_settings.isUserTabOpen) {
        m_windowService->setDockWidgetVisible(m_id, true);
        action->setChecked(true);
    }
    Q_UNUSED(action.release())
}

void CFeatureTreeWidget::setUserTabName(const QString &name)
{
    m_settings.userTabName = name;
    QString shown = name;
    shown.replace(QLatin1Char('&'), QLatin1String("&&")); // no mnemonic
    const QString title = tr("Features") + QStringLiteral(" \u2013 ") + shown;
    m_menuAction->setText(title);
    if (m_menuCommand) {
        constexpr int textChanged = 2;
        m_menuCommand->setAttribute(textChanged);
    }
    m_windowService->setDockWidgetTitle(m_id, title);
    if (Internal::View::CFeatureOptionsMenu *menu = optionsMenu()) {
        menu->setUserTabName(userTabIndex(m_id), name);
    }
}

bool CFeatureTreeWidget::isAllPane() const
{
    return m_id == Core::CId(Ids::AllPane);
}

bool CFeatureTreeWidget::isUserPane() const
{
    return userTabIndex(m_id) >= 0;
}

void CFeatureTreeWidget::onToggleVisibility()
{
    runGuarded([this] { m_windowService->setDockWidgetVisible(m_id, m_menuAction->isChecked()); });
}

// The window Edit Feature Tabs comes and goes with the All pane.
bool CFeatureTreeWidget::isOptionsWindowOurs() const
{
    return m_optionsWindow && isAllPane() && m_optionsWindow->isVisible();
}

void CFeatureTreeWidget::showEvent(QShowEvent *event)
{
    if (isOptionsWindowOurs()) {
        m_optionsWindow->setFlags(Internal::View::optionsWindowFlags(true));
        m_optionsWindow->showNormal();
        m_optionsWindow->raise();
    } else {
        updateMenuAction();
    }
    QWidget::showEvent(event);
}

void CFeatureTreeWidget::hideEvent(QHideEvent *event)
{
    if (!isOptionsWindowOurs()) {
        updateMenuAction();
    } else if (event->spontaneous()) {
        m_optionsWindow->showMinimized();
    } else {
        showOptionsWindow(false);
    }
    QWidget::hideEvent(event);
}

// Qt's event delivery bears no exception: the entry keeps its mark then.
void CFeatureTreeWidget::updateMenuAction()
{
    if (m_menuAction && m_windowService) {
        runGuarded(
            [this] { m_menuAction->setChecked(!m_windowService->isDockWidgetClosed(m_id)); });
    }
}

void CFeatureTreeWidget::onScalingChanged(double dpi)
{
    if (m_optionsWindow && isAllPane()) {
        const QSize size = Internal::View::optionsWindowSize(dpi);
        m_optionsWindow->setMinimumSize(size);
        m_optionsWindow->resize(size);
    }
}

// The new screen is not followed any further, which is meant.
void CFeatureTreeWidget::onCurrentScreenChanged(QScreen *pScreen)
{
    if (m_currentScreen) {
        disconnect(m_currentScreen, &QScreen::logicalDotsPerInchChanged, this,
                   &CFeatureTreeWidget::onScalingChanged);
    }
    m_currentScreen = pScreen;
    if (pScreen) {
        onScalingChanged(pScreen->logicalDotsPerInch());
    }
}

void CFeatureTreeWidget::onFeatureTreeRefreshRequested()
{
    if (m_currentBrowser) {
        m_currentBrowser->refresh();
    }
}

void CFeatureTreeWidget::onCopyCameraFeaturesTriggered()
{
    if (m_currentBrowser) {
        m_currentBrowser->copyToClipboard();
    }
}

void CFeatureTreeWidget::onFirstSectionSizeChanged(int width, bool isConnectedToTreeView)
{
    if (isConnectedToTreeView == isAllPane()) {
        m_settings.nameColumnWidth = width;
    }
}

void CFeatureTreeWidget::onCategoryColumnWidthChanged(int width)
{
    m_settings.treeWidth = width;
}

} // namespace Plugin::Tessera
