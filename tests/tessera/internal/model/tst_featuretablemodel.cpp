// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object; lambdas live as long as what they refer to.
// clazy:excludeall=missing-qobject-macro,lambda-in-connect,reserve-candidates

#include "internal/model/featuretablemodel.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "plugin/constants/itemroles.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <QApplication>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>

#include <memory>

using Core::Logging::ELogLevel;
using Plugin::Tessera::Internal::Model::CFeatureTableModel;
using Tests::Fault;
using Tests::findRow;

class tst_FeatureTableModel : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void aProxyShowsEachChangeOfRowsOnce()
    {
        const QList<FeatureTreeItem *> features = items(
            "  A Integer 1\n  B Integer 2\n  C Integer 3 guru\n  D Integer 4 ni\n  E Integer 5");
        const Tests::ModelTester tester(m_proxy.get());
        QSignalSpy inserted(m_proxy.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(m_proxy.get(), &QAbstractItemModel::rowsRemoved);
        m_proxy->setTableItems(features, true);
        QCOMPARE(Tests::treeText(*m_proxy), QStringLiteral("A: 1\nB: 2\nC: 3\nE: 5\n"));
        m_proxy->markSearchMatches(QStringLiteral(" b "));
        QCOMPARE(names(*m_table, IsSearchMatchRole), QStringLiteral("B "));
        m_proxy->setTableItems(features.mid(3), false);
        QCOMPARE(Tests::treeText(*m_proxy), QStringLiteral("E: 5\n"));
        QCOMPARE(inserted.count(), 2);
        QCOMPARE(removed.count(), 1);
        QVERIFY(!node("A").isSubscribed());
    }

    void aDropMovesARowToAnother_data()
    {
        QTest::addColumn<int>("target");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("result");
        QTest::newRow("down") << 3 << 0 << "ACDB";
        QTest::newRow("up") << 0 << 0 << "BACD";
        QTest::newRow("between rows") << -1 << 0 << "ABCD";
        QTest::newRow("onto a value") << 3 << 1 << "ABCD";
    }

    void aDropMovesARowToAnother()
    {
        QFETCH(const int, target);
        QFETCH(const int, column);
        QFETCH(const QString, result);
        m_table->setItems(items("  A Integer\n  B Integer\n  C Integer\n  D Integer"), true);
        const Tests::ModelTester tester(m_proxy.get());
        const QPersistentModelIndex b(findRow(*m_proxy, QStringLiteral("B")));
        const QSignalSpy moves(m_table, &CFeatureTableModel::orderOfItemsChanged);
        const std::unique_ptr<QMimeData> data(m_proxy->mimeData({b}));
        QCOMPARE(data->text(), pathOf("B"));
        const QModelIndex place = m_proxy->index(target, column);
        const bool moved = result != QLatin1String("ABCD");
        QVERIFY(!m_proxy->dropMimeData(data.get(), Qt::CopyAction, -1, -1, place));
        QCOMPARE(m_proxy->dropMimeData(data.get(), Qt::MoveAction, -1, -1, place), moved);
        QCOMPARE(names(*m_table).remove(QLatin1Char(' ')), result);
        QCOMPARE(moves.count(), moved ? 1 : 0);
        QCOMPARE(b.data().toString(), QStringLiteral("B"));
    }

    void movesPastHiddenRows()
    {
        m_table->setItems(items("  A Integer\n  B Integer ni\n  C Integer\n  D Integer"), true);
        const Tests::ModelTester tester(m_proxy.get());
        QSignalSpy moves(m_table, &CFeatureTableModel::orderOfItemsChanged);
        const QPersistentModelIndex c(findRow(*m_proxy, QStringLiteral("C")));
        const auto source = [this](int row) {
            return m_proxy->mapToSource(m_proxy->index(row, 0));
        };
        m_table->moveItem(source(1), source(0), true);
        QCOMPARE(names(*m_table), QStringLiteral("C A B D "));
        m_table->moveItem(source(0), source(2), false);
        QCOMPARE(names(*m_table), QStringLiteral("A B D C "));
        QCOMPARE(c.row(), 2);
        QCOMPARE(moves.last(), QVariantList({0, 3}));
    }

    void writesOnlyWhatDiffers()
    {
        m_table->setItems(items("  A Integer 5"), true);
        QVERIFY(m_table->setData(row("A", 1), 5));
        QVERIFY(!m_table->setData(row("A", 1), QVariant()));
        QVERIFY(!m_table->setData(row("A", 0), 8));
        QVERIFY(!m_table->setData(row("A", 1), 8, Qt::DisplayRole));
        m_table->setActive(false);
        QVERIFY(!m_table->setData(row("A", 1), 7));
        QVERIFY(node("A").writes.isEmpty());
        m_table->setActive(true);
        QVERIFY(m_table->setData(row("A", 1), 7));
        QCOMPARE(node("A").writes, QStringList(QStringLiteral("7")));
    }

    void keepsTheRowOfAnItemThatIsGone()
    {
        m_table->setItems(items("  A Integer 1\n  B Integer 2"), true);
        const QModelIndex stale = m_table->index(0, 1);
        delete m_table->itemFromIndex(m_table->index(0, 0));
        QVERIFY(!stale.data().isValid());
        QVERIFY(!m_table->setData(stale, 5));
        m_table->refreshAll();
        m_table->markSearchMatches(QStringLiteral("b"));
        QCOMPARE(m_table->indexOfName(pathOf("B"), nullptr, 1).data().toInt(), 2);
    }

    void reportsAWriteThatFails_data()
    {
        Tests::addFaultRows();
    }

    void reportsAWriteThatFails()
    {
        QFETCH(const Fault, fault);
        m_table->setItems(items("  A Integer 5\n  B Command"), true);
        m_guard.expectLogEntry(
            ELogLevel::Fault, QStringLiteral("vantrel.viewer.exceptions"),
            QRegularExpression(QStringLiteral("Model::CFeatureTableModel::setData")));
        node("A").onWrite = fault;
        QVERIFY(!m_table->setData(row("A", 1), 7));
        const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(box && box->text().contains(QLatin1String("Failed to set a feature value.")));
        delete box;
        m_table->setActive(false);
        QVERIFY(!m_table->setData(row("A", 1), 7));
        QCOMPARE(row("A", 1).data().toInt(), 5);
    }

private:
    void prepare() override
    {
        m_tree = std::make_unique<FeatureTreeModel>();
        m_proxy = std::make_unique<FeatureTreeProxyModel>();
        m_proxy->setDynamicSortFilter(false);
        m_table = new CFeatureTableModel(m_proxy.get());
        m_proxy->setSourceModel(m_table);
    }
    void release() override
    {
        m_proxy.reset();
        m_tree.reset();
    }
    // The features of one category, which the tree owns.
    QList<FeatureTreeItem *> items(const char *text)
    {
        attach(QLatin1String("Category\n") + QString::fromLatin1(text));
        m_tree->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
        FeatureTreeItem *category =
            m_tree->itemFromIndex(findRow(*m_tree, QStringLiteral("Category")));
        QList<FeatureTreeItem *> found;
        for (int i = 0; i < category->childCount(); ++i) {
            found.append(category->child(i));
        }
        return found;
    }

    QModelIndex row(const char *name, int column = 0) const
    {
        return findRow(*m_table, QString::fromLatin1(name), column);
    }

    std::unique_ptr<FeatureTreeModel> m_tree;
    std::unique_ptr<FeatureTreeProxyModel> m_proxy;
    CFeatureTableModel *m_table = nullptr; // by parent
};

QTEST_MAIN(tst_FeatureTableModel)
#include "tst_featuretablemodel.moc"
