// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "panesettings.h"

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/id.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"

#include <QMap>
#include <QMenu>
#include <QPoint>
#include <QPointer>
#include <QQuickView>
#include <QSharedPointer>
#include <QVariantMap>
#include <QVector>
#include <QWidget>

class FeatureTreeWidget;
class QAction;
class QLabel;
class QScreen;

namespace ParameterCollection {
class IParameterCollection;
}
namespace Plugin::AppCore {
class IActionCommand;
class IMenuService;
class IWindowService;
} // namespace Plugin::AppCore
namespace Plugin::FeatureTree {
class IFeatureTreeControlService;
}
namespace Plugin::ParameterCollectionPool {
class IParameterService;
}

namespace Plugin::Tessera {

class IFeatureTreeUseCaseService;

namespace Internal::View {
class CFeatureOptionsMenu;
}

/// One dock of the host. Keeps a browser for each parameter source, shows the one of the active
/// source, and a hint while there is none. The id tells what the browsers show: the tree of all
/// features, the basic ones, or those of one of four tabs that the user makes.
class CFeatureTreeWidget final : public QWidget
{
    Q_OBJECT

public:
    /// `id` is the id of the dock as well. `optionsWindow` is the window Edit Feature Tabs, which
    /// all panes share and none owns; null while there is none. With `hasWorkbench` the hint names
    /// the Workbench too. Lets exceptions of the host pass.
    CFeatureTreeWidget(
        QSharedPointer<Plugin::AppCore::IMenuService> menuService,
        QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> controlService,
        QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> parameterService,
        QSharedPointer<Plugin::Tessera::IFeatureTreeUseCaseService> useCaseService,
        QSharedPointer<Plugin::AppCore::IWindowService> windowService, const Core::CId &id,
        QQuickView *optionsWindow, bool hasWorkbench);
    ~CFeatureTreeWidget() override;

    /// Writes the settings and takes the entry in the Window menu back; the pane is of no use after
    /// it. Lets exceptions of the host pass, which the destructor, doing the same for a pane that
    /// nobody retired, has to drop.
    void retire();

Q_SIGNALS:
    void visibilityChanged(GenApi::EVisibility visibility);
    /// The current parameter of the browser that is shown; null for none.
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    /// A text for the status area.
    void newText(QString text);
    /// Declared for the host; never emitted.
    void addUserTab(uint i, QString name);

public Q_SLOTS:
    void onContextMenuRequested(QPoint point, QSharedPointer<QMenu> ptrMenu);
    void onActiveParameterSourceChanged(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void onParameterSourceRegistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void onParameterSourceUnregistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    /// To be called by the signal of a collection.
    void onParameterCollectionAttached(const QString &parameterPath);
    void onFeatureTreeRefreshRequested();

private Q_SLOTS:
    void onScalingChanged(double dpi);
    void onCurrentScreenChanged(QScreen *pScreen);
    void onFirstSectionSizeChanged(int width, bool isConnectedToTreeView);
    void onCategoryColumnWidthChanged(int width);
    void onCopyCameraFeaturesTriggered();
    void onPollingStateChanged(bool polling);
    void onToggleVisibility();
    void onNewParameterNameList(int userTabIndex,
                                const QList<ParameterCollection::ParameterName> &featureNameList);
    void onCancel();
    void onAdd();
    void onHide();
    void onAddFavoriteButtonClicked();
    void onOrderOfTableItemsChanged(int from, int to);
    void onBrowserVisibilityChanged(GenApi::EVisibility visibility);
    void onBrowserCurrentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    void onBrowserNewText(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    using BaseInfoPtr = Core::AppCoreComponents::BaseInfoPtr;
    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    class BrowserSignal;

    void createHint(bool hasWorkbench);
    void connectControlService();
    void registerCopyAction();
    void createMenuAction();
    void setUserTabName(const QString &name);
    bool isAllPane() const;
    bool isUserPane() const;
    bool isOptionsWindowOurs() const;
    void updateMenuAction();

    Internal::View::CFeatureOptionsMenu *optionsMenu() const;
    void connectOptionsMenu();
    void setFeatureNameList(const FeatureList &list);
    void showOptionsWindow(bool show);
    void placeOptionsWindow();
    void closeOptionsWindow();
    void discardOptions();

    void addSource(const BaseInfoPtr &info, const CollectionPtr &collection);
    FeatureTreeWidget *createBrowser(const BaseInfoPtr &info, const CollectionPtr &collection);
    void attachCollection(FeatureTreeWidget *browser, const CollectionPtr &collection,
                          const BaseInfoPtr &info, const QString &path);
    void removeSource(const BaseInfoPtr &info);
    void setCurrentBrowser(FeatureTreeWidget *browser);
    void takeOutCurrentBrowser();
    void applyUseCases(FeatureTreeWidget *browser);
    void applySettings(FeatureTreeWidget *browser);
    void connectBrowser(FeatureTreeWidget *browser) const;
    void disconnectBrowser(FeatureTreeWidget *browser);
    void tellCurrentParameter();
    void showHint();
    void discard(FeatureTreeWidget *browser);
    void deleteDiscarded();

    QSharedPointer<Plugin::AppCore::IMenuService> m_menuService;
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> m_parameterService;
    QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> m_controlService;
    QSharedPointer<Plugin::Tessera::IFeatureTreeUseCaseService> m_useCaseService;
    QSharedPointer<Plugin::AppCore::IWindowService> m_windowService;
    Core::CId m_id;
    QPointer<QQuickView> m_optionsWindow; // borrowed
    QMap<BaseInfoPtr, FeatureTreeWidget *> m_browsers; // by parent
    QMap<CollectionPtr, BaseInfoPtr> m_collectionSources;
    FeatureTreeWidget *m_currentBrowser = nullptr; // one of m_browsers
    QVector<FeatureTreeWidget *> m_discarded; // by parent; deleted when their signals have returned
    QLabel *m_hintLabel = nullptr; // by parent
    QPointer<QAction> m_copyCameraFeaturesAction; // owned by the menu service
    QPointer<QAction> m_menuAction; // owned; in the Window menu, of a user pane only
    AppCore::IActionCommand *m_menuCommand = nullptr; // owned by the menu service
    PaneSettings m_settings;
    QPointer<QScreen> m_currentScreen; // borrowed
    int m_browserSignals = 0; // of browsers, that have not returned
    bool m_isRetired = false;
};

} // namespace Plugin::Tessera
