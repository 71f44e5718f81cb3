// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "featurepane.h"

#include "parametertrees.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/view/featureoptionsmenu.h"
#include "plugin/constants/ids.h"
#include "plugin/constants/logcategories.h"
#include "plugin/contract/appcore/actioncontainer.h"
#include "plugin/contract/appcore/menuservice.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/parametercollection/parametercollection.h"
#include "plugin/contract/viewer/featuretreeusecaseservice.h"
#include "plugin/contract/viewer/parameterservice.h"
#include "plugin/services/exceptionbarrier.h"

#include <QAction>
#include <QDrag>
#include <QLabel>
#include <QLayout>

#include <algorithm>
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

void logMissingUseCases()
{
    logFault(QStringLiteral("IFeatureTreeUseCaseService not set!"));
}

} // namespace

/// Lives while the pane passes a signal of a browser on. Whoever hears it may take the source away;
/// the browser must be there when its signal returns.
class CFeatureTreeWidget::BrowserSignal
{
public:
    explicit BrowserSignal(CFeatureTreeWidget *pane)
        : m_pane(pane)
    {
        ++m_pane->m_browserSignals;
    }
    ~BrowserSignal()
    {
        if (m_pane && --m_pane->m_browserSignals == 0) {
            m_pane->deleteDiscarded();
        }
    }
    Q_DISABLE_COPY_MOVE(BrowserSignal)

private:
    QPointer<CFeatureTreeWidget> m_pane; // borrowed
};

void CFeatureTreeWidget::onParameterSourceRegistered(BaseInfoPtr ptrInfo)
{
    if (!ptrInfo) {
        logMissingInfo();
        return;
    }
    // An exception of the host must not keep the source from the panes after this one.
    CollectionPtr collection;
    runGuarded([&] { collection = m_parameterService->parameterCollection(ptrInfo); });
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
        browser = createBrowser(info, collection);
    }
    connect(collection.data(), &IParameterCollection::nodeMapAttached, this,
            &CFeatureTreeWidget::onParameterCollectionAttached, Qt::UniqueConnection);
    QStringList paths;
    runGuarded([&] { paths = collection->attachedParameterPaths(); });
    for (const QString &path : qAsConst(paths)) {
        attachCollection(browser, collection, info, path);
    }
    // Shown at once, before any word of the host.
    onActiveParameterSourceChanged(info);
}

FeatureTreeWidget *CFeatureTreeWidget::createBrowser(const BaseInfoPtr &info,
                                                     const CollectionPtr &collection)
{
    auto *browser = new FeatureTreeWidget(QString(), info, this);
    browser->hide(); // until it is shown in the layout
    m_browsers.insert(info, browser);
    browser->setDeviceParameterService(m_parameterService);
    connect(browser, &FeatureTreeWidget::pollingStateChanged, this,
            &CFeatureTreeWidget::onPollingStateChanged);
    browser->setAddNewFavoriteButtonVisible(isAllPane());
    if (isAllPane()) {
        connect(browser, &FeatureTreeWidget::addFavoriteButtonClicked, this,
                &CFeatureTreeWidget::onAddFavoriteButtonClicked);
    }
    browser->setUserTabMode(!isAllPane());
    // The window works with the source that came last.
    if (Internal::View::CFeatureOptionsMenu *menu = optionsMenu()) {
        menu->setParameterCollection(collection);
    }
    browser->onPollingStateChanged(m_settings.isPolling);
    return browser;
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
    const BrowserSignal keepsBrowser(this);
    setCurrentBrowser(browser);
    if (browser) {
        browser->onPollingStateChanged(m_settings.isPolling);
    }
    m_copyCameraFeaturesAction->setEnabled(m_currentBrowser != nullptr);
}

void CFeatureTreeWidget::setCurrentBrowser(FeatureTreeWidget *browser)
{
    if (browser == m_currentBrowser) {
        return;
    }
    if (!browser) {
        disconnectBrowser(m_currentBrowser);
        layout()->removeWidget(m_currentBrowser);
        showHint();
        m_currentBrowser->hide();
        if (m_optionsWindow) {
            m_optionsWindow->setVisible(false);
        }
        m_currentBrowser = nullptr;
        return;
    }
    takeOutCurrentBrowser();
    layout()->addWidget(browser);
    applyUseCases(browser);
    browser->show();
    m_currentBrowser = browser;
    layout()->removeWidget(m_hintLabel);
    m_hintLabel->hide();
    applySettings(browser);
    connectBrowser(browser);
    tellCurrentParameter();
}

void CFeatureTreeWidget::takeOutCurrentBrowser()
{
    if (FeatureTreeWidget *browser = std::exchange(m_currentBrowser, nullptr)) {
        browser->hide();
        disconnectBrowser(browser);
        layout()->removeWidget(browser);
    }
}

void CFeatureTreeWidget::applyUseCases(FeatureTreeWidget *browser)
{
    if (isUserPane()) {
        return;
    }
    if (!m_useCaseService) {
        logMissingUseCases();
    }
    if (isAllPane()) {
        browser->setUseCases(m_useCaseService ? m_useCaseService->useCaseMap() : QVariantMap());
    } else if (m_useCaseService) {
        m_settings.features =
            mergedWithCatalogue(m_settings.features, m_useCaseService->basicUseCaseMap());
    }
}

void CFeatureTreeWidget::applySettings(FeatureTreeWidget *browser)
{
    if (isAllPane()) {
        browser->setCategoryColumnWidth(m_settings.treeWidth);
    } else {
        browser->setFeatureNameList(m_settings.features);
    }
    browser->setFirstSectionSize(m_settings.nameColumnWidth);
}

// A browser that was taken out when another source went is connected already: run twice, a move
// would undo itself and a menu show again.
void CFeatureTreeWidget::connectBrowser(FeatureTreeWidget *browser) const
{
    connect(browser, &FeatureTreeWidget::visibilityChanged, this,
            &CFeatureTreeWidget::onBrowserVisibilityChanged, Qt::UniqueConnection);
    connect(browser, qOverload<QSharedPointer<IParameter>>(&FeatureTreeWidget::onCurrentChanged),
            this, &CFeatureTreeWidget::onBrowserCurrentChanged, Qt::UniqueConnection);
    connect(browser, &FeatureTreeWidget::onNewText, this, &CFeatureTreeWidget::onBrowserNewText,
            Qt::UniqueConnection);
    connect(browser, &FeatureTreeWidget::contextMenuRequested, this,
            &CFeatureTreeWidget::onContextMenuRequested, Qt::UniqueConnection);
    connect(browser, &FeatureTreeWidget::orderOfTableItemsChanged, this,
            &CFeatureTreeWidget::onOrderOfTableItemsChanged, Qt::UniqueConnection);
    connect(browser, &FeatureTreeWidget::firstSectionSizeChanged, this,
            &CFeatureTreeWidget::onFirstSectionSizeChanged, Qt::UniqueConnection);
    connect(browser, &FeatureTreeWidget::categoryColumnWidthChanged, this,
            &CFeatureTreeWidget::onCategoryColumnWidthChanged, Qt::UniqueConnection);
}

// What the pane hears from browsers that are not shown stays connected.
void CFeatureTreeWidget::disconnectBrowser(FeatureTreeWidget *browser)
{
    const auto release = [&](auto signal) { disconnect(browser, signal, this, nullptr); };
    release(&FeatureTreeWidget::visibilityChanged);
    release(qOverload<QSharedPointer<IParameter>>(&FeatureTreeWidget::onCurrentChanged));
    release(&FeatureTreeWidget::onNewText);
    release(&FeatureTreeWidget::contextMenuRequested);
    release(&FeatureTreeWidget::orderOfTableItemsChanged);
    release(&FeatureTreeWidget::firstSectionSizeChanged);
    release(&FeatureTreeWidget::categoryColumnWidthChanged);
}

// So that the host's status display follows the change of source.
void CFeatureTreeWidget::tellCurrentParameter()
{
    const auto *item = qobject_cast<FeatureTreeINodeItem *>(m_currentBrowser->currentItem());
    if (item && item->parameter()) {
        Q_EMIT currentChanged(item->parameter());
    }
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
        if (m_currentBrowser == browser && m_optionsWindow) {
            m_optionsWindow->setVisible(false);
        }
    }
    showHint();
    m_currentBrowser = nullptr;
    m_copyCameraFeaturesAction->setEnabled(false);
    discard(browser);
}

// A signal of the browser, a search in it or a drag out of it may stand below: they must find it
// when they return.
void CFeatureTreeWidget::discard(FeatureTreeWidget *browser)
{
    const auto *drag = browser->findChild<QDrag *>();
    if (m_browserSignals == 0 && !drag && !browser->isSearching()) {
        delete browser;
        return;
    }
    browser->disconnect(this);
    browser->hide();
    if (drag) {
        connect(drag, &QObject::destroyed, browser, &QObject::deleteLater);
    } else if (browser->isSearching()) {
        connect(browser, &FeatureTreeWidget::searchEnded, browser, &QObject::deleteLater);
    } else {
        m_discarded.append(browser);
    }
}

void CFeatureTreeWidget::deleteDiscarded()
{
    const QVector<FeatureTreeWidget *> discarded = std::exchange(m_discarded, {});
    for (FeatureTreeWidget *browser : discarded) {
        browser->deleteLater();
    }
}

void CFeatureTreeWidget::onContextMenuRequested(QPoint point, QSharedPointer<QMenu> ptrMenu)
{
    const AppCore::IActionContainer *container =
        m_menuService->actionContainer(Core::CId(Ids::FeatureTreeContextMenu));
    if (container && container->menu()) {
        ptrMenu->addActions(container->menu()->actions());
    }
    if (!ptrMenu->isEmpty()) {
        const BrowserSignal keepsBrowser(this);
        ptrMenu->exec(point);
    }
}

void CFeatureTreeWidget::onBrowserVisibilityChanged(GenApi::EVisibility visibility)
{
    const BrowserSignal keepsBrowser(this);
    Q_EMIT visibilityChanged(visibility);
}

void CFeatureTreeWidget::onBrowserCurrentChanged(QSharedPointer<IParameter> parameter)
{
    const BrowserSignal keepsBrowser(this);
    Q_EMIT currentChanged(std::move(parameter));
}

void CFeatureTreeWidget::onBrowserNewText(const QString &text)
{
    const BrowserSignal keepsBrowser(this);
    Q_EMIT newText(text);
}

// Browsers in user-tab mode take no notice.
void CFeatureTreeWidget::onPollingStateChanged(bool polling)
{
    m_settings.isPolling = polling;
    for (FeatureTreeWidget *browser : qAsConst(m_browsers)) {
        browser->onPollingStateChanged(polling);
    }
}

} // namespace Plugin::Tessera
