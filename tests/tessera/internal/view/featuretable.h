// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

// Has nothing to connect. clazy:excludeall=missing-qobject-macro

#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/view/featuretableview.h"
#include "plugin/contract/parametercollection/parametercollection.h"

#include <QApplication>
#include <QTest>

/// A table of features of "@CameraDevice", and the tree that owns its rows.
class FeatureTable final : public Plugin::Tessera::Internal::View::CFeatureTableView
{
public:
    using CFeatureTableView::CFeatureTableView;
    using CFeatureTableView::viewOptions;

    ~FeatureTable() override
    {
        proxy().setTableItems({}, true);
    }

    /// Shows the features of these names, in the order of the tree.
    void show(const QSharedPointer<ParameterCollection::IParameterCollection> &collection,
              QStringList names)
    {
        for (QString &name : names) {
            name.prepend(QLatin1String("@CameraDevice/"));
        }
        m_tree.addParameterCollection(collection, QStringLiteral("Camera"),
                                      QStringLiteral("@CameraDevice"), true);
        proxy().setShowUnavailable(true);
        proxy().setTableItems(m_tree.itemsForNames(names), true);
        QTableView::show();
        QApplication::setActiveWindow(window());
        setFocus();
        QVERIFY(QTest::qWaitForWindowActive(window()));
    }

    FeatureTreeModel &tree()
    {
        return m_tree;
    }
    FeatureTreeProxyModel &proxy() const
    {
        return *qobject_cast<FeatureTreeProxyModel *>(model());
    }
    /// The cell of a value.
    QModelIndex value(const QString &name) const
    {
        return proxy().indexOfName(QLatin1String("@CameraDevice/") + name, nullptr, 1);
    }
    QWidget *editor(const QString &name) const
    {
        return indexWidget(value(name));
    }
    /// The editor of a value, or the part of it that is such a widget.
    template<typename Widget> Widget *part(const QString &name) const
    {
        auto *self = qobject_cast<Widget *>(editor(name));
        return self ? self : editor(name)->findChild<Widget *>();
    }

private:
    FeatureTreeModel m_tree;
};
