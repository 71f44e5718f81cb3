// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeview.h"

#include "internal/legacy/tree/featuretreedelegate.h"
#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <QSignalSpy>

#include <memory>

using Tests::findRow;

class tst_FeatureTreeView : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void reportsNoCurrentRowWhenItIsHidden()
    {
        showFeatures("Width Integer 1\nTiles Integer 1 guru");
        receive("Tiles");
        m_view->setCurrentIndex(value("Tiles").siblingAtColumn(0));
        const QSignalSpy current(m_view.get(), &FeatureTreeView::onCurrentChanged);
        m_view->setVisibility(GenApi::Expert);
        receive("Tiles");
        QCOMPARE(current.size(), 1);
        QVERIFY(!current.constFirst().constFirst().toModelIndex().isValid());
        QVERIFY(m_view->isRowHidden(1, value("Tiles").parent()));
        QVERIFY(!m_view->isRowHidden(0, value("Tiles").parent()));
        m_view->setVisibility(GenApi::Guru);
        receive("Tiles");
        QVERIFY(!m_view->isRowHidden(1, value("Tiles").parent()));
    }

    void keepsACategoryForTheSakeOfAFeature()
    {
        add("Timing expert\n  Exposure Float 1\nRegisters expert\n  Address Integer 1 guru");
        proxy().setVisibility(0);
        m_view->setVisibility(GenApi::Beginner);
        m_view->collapseAll();
        m_view->expandAll();
        const QModelIndex camera = m_view->model()->index(0, 0);
        QVERIFY(!m_view->isRowHidden(value("Timing").row(), camera));
        QVERIFY(m_view->isRowHidden(value("Registers").row(), camera));
    }

    void opensEditorsWithItsCategory()
    {
        showFeatures("Group\n  Switch Boolean 1\n  Locked Float 1 ro\n  Text String a\n  Gone "
                     "Boolean 1 na\n  Secret Boolean 1 invisible");
        m_view->expand(value("Group").siblingAtColumn(0));
        QVERIFY(!editor("Switch"));
        for (const char *name : {"Switch", "Locked", "Text", "Gone", "Secret"}) {
            receive(name);
            m_view->closePersistentEditor(value(name));
        }
        m_view->collapse(value("Group").siblingAtColumn(0));
        m_view->expand(value("Group").siblingAtColumn(0));
        QVERIFY(editor("Switch") && editor("Locked"));
        QVERIFY(!editor("Text") && !editor("Gone") && !editor("Secret"));
        QVERIFY(m_view->isRowHidden(value("Secret").row(), value("Secret").parent()));
    }

    void editorsFollowTheAccess()
    {
        showFeatures("Mode Enum A entries=A,B");
        receive("Mode");
        const QPointer<QWidget> first = editor("Mode");
        m_view->setCurrentIndex(value("Mode"));
        first->setFocus();
        node("Mode").isReadable = node("Mode").isWritable = false;
        receive("Mode");
        QVERIFY(!editor("Mode"));
        QTRY_VERIFY(!first);
        node("Mode").isReadable = true;
        receive("Mode");
        QVERIFY(editor("Mode") && !editor("Mode")->isEnabled());
        QVERIFY(node("Mode").writes.isEmpty());
    }

    void opensEditorsOfRowsThatComeBack()
    {
        showFeatures("Mode Enum A entries=A,B");
        receive("Mode");
        m_view->closePersistentEditor(value("Mode"));
        Q_EMIT m_features->layoutChanged();
        QVERIFY(editor("Mode"));
        m_view->closePersistentEditor(value("Mode"));
        auto *top = qobject_cast<FeatureTreeINodeItem *>(
            m_features->itemFromIndex(m_features->index(0, 0)));
        m_features->loadChildren(top, top->parameter());
        QVERIFY(editor("Mode"));
    }

    void saysWhenThereIsNothingToShow()
    {
        const auto picture = [this] { return m_view->viewport()->grab().toImage(); };
        const QImage empty = picture();
        add("Image\n  Width Integer 1");
        proxy().setFeatureNameFilter({QStringLiteral("none")});
        const QImage filtered = picture();
        m_view->setModel(nullptr);
        QVERIFY(empty != picture() && filtered != picture());
    }

private:
    void prepare() override
    {
        m_view = std::make_unique<FeatureTreeView>();
        m_view->setContextMenuPolicy(Qt::CustomContextMenu);
        m_view->resize(400, 300);
        m_view->show();
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    }
    void release() override
    {
        m_view.reset();
        m_features.reset();
    }
    void add(const char *text)
    {
        attach(QString::fromLatin1(text));
        proxy().addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
        proxy().invalidate();
        m_view->expandAll();
    }

    // The features themselves as rows, with their editors.
    void showFeatures(const char *text)
    {
        m_features = std::make_unique<FeatureTreeModel>();
        attach(QString::fromLatin1(text));
        m_features->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
        m_view->setModel(m_features.get());
        m_view->setItemDelegate(
            new FeatureTreeDelegate(m_view.get(), m_features.get(), m_view->searchTextPointer()));
        m_view->setColumnWidth(0, 200);
        m_view->expand(m_features->index(0, 0));
    }

    // Has the item read its parameter and the view hear of both columns.
    void receive(const char *name)
    {
        auto *item = qobject_cast<FeatureTreeINodeItem *>(m_features->itemFromIndex(value(name)));
        item->subscribe();
        item->requestRefresh();
        QCoreApplication::processEvents(); // where it is delayed
        item->unsubscribe();
        m_view->dataChanged(value(name), value(name));
    }

    QModelIndex value(const char *name) const
    {
        return findRow(*m_view->model(), QString::fromLatin1(name), 1);
    }
    QWidget *editor(const char *name) const
    {
        return m_view->indexWidget(value(name));
    }
    FeatureTreeProxyModel &proxy() const
    {
        return *qobject_cast<FeatureTreeProxyModel *>(m_view->model());
    }

    std::unique_ptr<FeatureTreeModel> m_features;
    std::unique_ptr<FeatureTreeView> m_view;
};

QTEST_MAIN(tst_FeatureTreeView)
#include "tst_featuretreeview.moc"
