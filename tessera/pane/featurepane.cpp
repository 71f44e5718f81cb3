// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurepane.h"

#include "parametertrees.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "plugin/constants/ids.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/viewer/parameterservice.h"
#include "plugin/services/featuretreecontrolservice.h"

#include <QAction>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>
#include <utility>

using ParameterCollection::IParameter;
using ParameterCollection::IParameterCollection;

namespace Plugin::Tessera {

namespace {

void logFault(const QString &text)
{
    static const quint64 category = Core::Logging::getCatId(LogCategories::Pane);
    Core::Logging::createLogEntry(Core::Logging::ELogLevel::Fault, category, text);
}

void logMissingInfo()
{
    logFault(QStringLiteral("Info is null."));
}

void logMissingCollection()
{
    logFault(QStringLiteral("ParameterCollection is null."));
}

} // namespace

CFeatureTreeWidget::CFeatureTreeWidget(
    QSharedPointer<Plugin::AppCore::IMenuService> menuService,
    QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> controlService,
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> parameterService,
    const Core::CId &id, bool hasWorkbench)
    : m_menuService(std::move(menuService))
    , m_parameterService(std::move(parameterService))
    , m_controlService(std::move(controlService))
    , m_id(id)
{
    setMinimumWidth(350);
    setMinimumHeight(350);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
    createHint(hasWorkbench);
    connectControlService();
    registerCopyAction();
}

// Children that are deleted after this must not reach into it any more.
CFeatureTreeWidget::~CFeatureTreeWidget()
{
    for (FeatureTreeWidget *browser : qAsConst(m_browsers)) {
        browser->disconnect(this);
    }
    for (auto entry = m_collectionSources.cbegin(); entry != m_collectionSources.cend(); ++entry) {
        entry.key()->disconnect(this);
    }
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

void CFeatureTreeWidget::onParameterSourceRegistered(BaseInfoPtr ptrInfo)
{
    if (!ptrInfo) {
        logMissingInfo();
        return;
    }
    const CollectionPtr collection = m_parameterService->parameterCollection(ptrInfo);
    if (!collection) {
        logMissingCollection();
        return;
    }
    addSource(ptrInfo, collection);
}

void CFeatureTreeWidget::addSource(const BaseInfoPtr &info, const CollectionPtr &collection)
{
    m_collectionSources.insert(collection, info);
    FeatureTreeWidget *browser = m_browsers.value(info);
    if (!browser) {
        browser = new FeatureTreeWidget(QString(), info, nullptr);
        m_browsers.insert(info, browser);
        connect(collection.data(), &IParameterCollection::nodeMapAttached, this,
                &CFeatureTreeWidget::onParameterCollectionAttached);
    }
    const QStringList paths = collection->attachedParameterPaths();
    for (const QString &path : paths) {
        attachCollection(browser, collection, info, path);
    }
    // Shown at once, before any word of the host.
    onActiveParameterSourceChanged(info);
}

void CFeatureTreeWidget::attachCollection(FeatureTreeWidget *browser,
                                          const CollectionPtr &collection, const BaseInfoPtr &info,
                                          const QString &path)
{
    if (browser) {
        const ParameterTree tree = parameterTree(info, path);
        browser->addParameterCollection(collection, tree.rootName, path, tree.isUtf8);
    }
}

void CFeatureTreeWidget::onParameterCollectionAttached(const QString &parameterPath)
{
    const auto *source = qobject_cast<IParameterCollection *>(sender());
    if (!source) {
        logMissingCollection();
        return;
    }
    const QList<CollectionPtr> collections = m_collectionSources.keys();
    const auto collection =
        std::find_if(collections.cbegin(), collections.cend(),
                     [&](const CollectionPtr &candidate) { return candidate == source; });
    const BaseInfoPtr info =
        collection == collections.cend() ? BaseInfoPtr() : m_collectionSources.value(*collection);
    if (!info) {
        logMissingInfo();
        return;
    }
    attachCollection(m_browsers.value(info), *collection, info, parameterPath);
}

void CFeatureTreeWidget::onActiveParameterSourceChanged(BaseInfoPtr ptrInfo)
{
    FeatureTreeWidget *browser = m_browsers.value(ptrInfo);
    setCurrentBrowser(browser);
    m_copyCameraFeaturesAction->setEnabled(browser != nullptr);
}

void CFeatureTreeWidget::setCurrentBrowser(FeatureTreeWidget *browser)
{
    if (browser == m_currentBrowser) {
        return;
    }
    if (m_currentBrowser) {
        m_currentBrowser->hide();
        disconnectBrowser(m_currentBrowser);
        layout()->removeWidget(m_currentBrowser);
    }
    m_currentBrowser = browser;
    if (!browser) {
        showHint();
        return;
    }
    layout()->addWidget(browser);
    browser->show();
    layout()->removeWidget(m_hintLabel);
    m_hintLabel->hide();
    connectBrowser(browser);
    // So that the host's status display follows the change of source.
    const auto *item = qobject_cast<FeatureTreeINodeItem *>(browser->currentItem());
    if (item && item->parameter()) {
        Q_EMIT currentChanged(item->parameter());
    }
}

void CFeatureTreeWidget::connectBrowser(FeatureTreeWidget *browser) const
{
    connect(browser, &FeatureTreeWidget::visibilityChanged, this,
            &CFeatureTreeWidget::visibilityChanged);
    connect(browser, qOverload<QSharedPointer<IParameter>>(&FeatureTreeWidget::onCurrentChanged),
            this, &CFeatureTreeWidget::currentChanged);
    connect(browser, &FeatureTreeWidget::onNewText, this, &CFeatureTreeWidget::newText);
    // A browser that was taken out with another one's source is connected already; its menu would
    // show twice.
    connect(browser, &FeatureTreeWidget::contextMenuRequested, this,
            &CFeatureTreeWidget::onContextMenuRequested, Qt::UniqueConnection);
}

void CFeatureTreeWidget::disconnectBrowser(FeatureTreeWidget *browser) const
{
    browser->disconnect(this);
}

void CFeatureTreeWidget::showHint()
{
    layout()->addWidget(m_hintLabel);
    m_hintLabel->show();
}

void CFeatureTreeWidget::onParameterSourceUnregistered(BaseInfoPtr ptrInfo)
{
    if (!ptrInfo) {
        logMissingInfo();
        return;
    }
    removeSource(ptrInfo);
}

// The entries of m_collectionSources stay, which is meant: a source that comes back finds its own.
void CFeatureTreeWidget::removeSource(const BaseInfoPtr &info)
{
    FeatureTreeWidget *browser = m_browsers.value(info);
    if (!browser) {
        return;
    }
    browser->clear();
    for (auto entry = m_collectionSources.cbegin(); entry != m_collectionSources.cend(); ++entry) {
        if (entry.value() == info) {
            disconnect(entry.key().data(), &IParameterCollection::nodeMapAttached, this,
                       &CFeatureTreeWidget::onParameterCollectionAttached);
        }
    }
    m_browsers.remove(info);
    if (m_currentBrowser) {
        // Whichever it is: the host names the next source. Hidden too, or it would cover the hint.
        m_currentBrowser->hide();
        layout()->removeWidget(m_currentBrowser);
    }
    showHint();
    discard(browser);
    m_currentBrowser = nullptr;
    m_copyCameraFeaturesAction->setEnabled(false);
}

// Below an open menu stands a signal of the browser, which must find it alive when it returns.
void CFeatureTreeWidget::discard(FeatureTreeWidget *browser)
{
    if (m_openMenus == 0) {
        delete browser;
        return;
    }
    browser->hide();
    m_discarded.append(browser);
}

void CFeatureTreeWidget::onContextMenuRequested(QPoint point, QSharedPointer<QMenu> ptrMenu)
{
    const AppCore::IActionContainer *container =
        m_menuService->actionContainer(Core::CId(Ids::FeatureTreeContextMenu));
    if (container && container->menu()) {
        ptrMenu->addActions(container->menu()->actions());
    }
    if (ptrMenu->isEmpty()) {
        return;
    }
    const QPointer<CFeatureTreeWidget> self(this);
    ++m_openMenus;
    ptrMenu->exec(point);
    if (!self) {
        return;
    }
    --m_openMenus;
    if (m_openMenus == 0) {
        const QVector<FeatureTreeWidget *> discarded = std::exchange(m_discarded, {});
        for (FeatureTreeWidget *browser : discarded) {
            browser->deleteLater();
        }
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

} // namespace Plugin::Tessera
