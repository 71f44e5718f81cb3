// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/appcore/baseinfo.h"
#include "plugin/contract/core/id.h"
#include "plugin/contract/genapi/visibility.h"
#include "plugin/contract/parametercollection/parameter.h"

#include <QMap>
#include <QMenu>
#include <QPoint>
#include <QSharedPointer>
#include <QVector>
#include <QWidget>

class FeatureTreeWidget;
class QAction;
class QLabel;

namespace ParameterCollection {
class IParameterCollection;
}
namespace Plugin::AppCore {
class IMenuService;
}
namespace Plugin::FeatureTree {
class IFeatureTreeControlService;
}
namespace Plugin::ParameterCollectionPool {
class IParameterService;
}

namespace Plugin::Tessera {

/// One dock of the host. Keeps a browser for each parameter source, shows the one of the active
/// source, and a hint while there is none.
class CFeatureTreeWidget final : public QWidget
{
    Q_OBJECT

public:
    /// `id` is the id of the dock as well. With `hasWorkbench` the hint names the Workbench too.
    CFeatureTreeWidget(
        QSharedPointer<Plugin::AppCore::IMenuService> menuService,
        QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> controlService,
        QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> parameterService,
        const Core::CId &id, bool hasWorkbench);
    ~CFeatureTreeWidget() override;

Q_SIGNALS:
    void visibilityChanged(GenApi::EVisibility visibility);
    /// The current parameter of the browser that is shown; null for none.
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> parameter);
    /// A text for the status area.
    void newText(QString text);

public Q_SLOTS:
    void onContextMenuRequested(QPoint point, QSharedPointer<QMenu> ptrMenu);
    void onActiveParameterSourceChanged(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void onParameterSourceRegistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    void onParameterSourceUnregistered(Core::AppCoreComponents::BaseInfoPtr ptrInfo);
    /// To be called by the signal of a collection.
    void onParameterCollectionAttached(const QString &parameterPath);
    void onFeatureTreeRefreshRequested();

private Q_SLOTS:
    void onCopyCameraFeaturesTriggered();

private: // NOLINT(readability-redundant-access-specifiers): ends the slots
    using BaseInfoPtr = Core::AppCoreComponents::BaseInfoPtr;
    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    void createHint(bool hasWorkbench);
    void connectControlService();
    void registerCopyAction();
    void addSource(const BaseInfoPtr &info, const CollectionPtr &collection);
    void attachCollection(FeatureTreeWidget *browser, const CollectionPtr &collection,
                          const BaseInfoPtr &info, const QString &path);
    void removeSource(const BaseInfoPtr &info);
    void setCurrentBrowser(FeatureTreeWidget *browser);
    void connectBrowser(FeatureTreeWidget *browser) const;
    void disconnectBrowser(FeatureTreeWidget *browser) const;
    void showHint();
    void discard(FeatureTreeWidget *browser);

    QSharedPointer<Plugin::AppCore::IMenuService> m_menuService;
    QSharedPointer<Plugin::ParameterCollectionPool::IParameterService> m_parameterService;
    QSharedPointer<Plugin::FeatureTree::IFeatureTreeControlService> m_controlService;
    Core::CId m_id;
    QMap<BaseInfoPtr, FeatureTreeWidget *> m_browsers; // by parent
    QMap<CollectionPtr, BaseInfoPtr> m_collectionSources;
    FeatureTreeWidget *m_currentBrowser = nullptr; // one of m_browsers
    QVector<FeatureTreeWidget *> m_discarded; // by parent; deleted when no menu is open
    QLabel *m_hintLabel = nullptr; // by parent
    QAction *m_copyCameraFeaturesAction = nullptr; // owned by the menu service
    int m_openMenus = 0;
};

} // namespace Plugin::Tessera
