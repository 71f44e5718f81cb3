// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Connections end with the test function.
// clazy:excludeall=lambda-in-connect

#include "internal/legacy/tree/featuretreeproxymodel.h"

#include "internal/legacy/tree/featuretreeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "plugin/constants/itemroles.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "support/fakecollection.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QStandardItemModel>
#include <QTest>

#include <memory>

using Tests::findRow;
using Tests::treeText;

namespace {

const QString path = QStringLiteral("@CameraDevice");

const char *const camera = "Image\n"
                           "  Width Integer 640\n"
                           "  Tiles Integer 1 expert\n"
                           "Timing expert\n"
                           "  Exposure Float 1\n"
                           "Registers expert\n"
                           "  Address Integer 1 guru\n"
                           "Gone ni\n"
                           "  Present Integer 1\n"
                           "Lost ni\n"
                           "  Missing Integer 1 ni\n"
                           "Empty\n";

QStringList list(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(','));
}

} // namespace

class tst_FeatureTreeProxyModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_collection = QSharedPointer<Tests::FakeCollection>::create();
        m_proxy = std::make_unique<FeatureTreeProxyModel>();
        m_source = new FeatureTreeModel(m_proxy.get());
        m_proxy->setSourceModel(m_source);
        m_proxy->setDynamicSortFilter(false);
    }

    void cleanup()
    {
        m_proxy.reset();
        m_guard.verify();
    }

    void keepsCategoriesThatHoldAShownFeature_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("showUnavailable");
        QTest::addColumn<QStringList>("categories");
        const QStringList all = list("Image,Timing,Registers,Gone,Lost,Empty");
        const QStringList none;
        QTest::newRow("beginner") << 0 << none << false << list("Image,Timing,Gone,Empty");
        QTest::newRow("expert") << 1 << none << false << list("Image,Timing,Registers,Gone,Empty");
        QTest::newRow("invisible shows all") << 3 << none << false << all;
        QTest::newRow("unavailable ones too") << 0 << none << true << all;
        QTest::newRow("by name, in any case")
            << 2 << list("@cameradevice/WIDTH") << false << list("Image");
        QTest::newRow("name above the level") << 0 << list("@CameraDevice/Tiles") << false << none;
    }

    void keepsCategoriesThatHoldAShownFeature()
    {
        QFETCH(int, level);
        QFETCH(QStringList, names);
        QFETCH(bool, showUnavailable);
        QFETCH(QStringList, categories);
        add(camera);
        m_proxy->setVisibility(level);
        m_proxy->setShowUnavailable(showUnavailable);
        m_proxy->setFeatureNameFilter(names);
        QString expected;
        if (!categories.isEmpty()) {
            categories.prepend(QStringLiteral("Camera"));
            expected = categories.join(QLatin1String("\n  ")) + QLatin1Char('\n');
        }
        QCOMPARE(treeText(*m_proxy).remove(QStringLiteral(": <not implemented>")), expected);
    }

    void listsFeaturesOverAnotherModel()
    {
        QStandardItemModel features;
        const auto append = [&](const char *name, bool isCategory, int visibility) {
            auto *item = new QStandardItem(QString::fromLatin1(name));
            item->setData(QString::fromLatin1(name), FullNameRole);
            item->setData(isCategory, IsCategoryRole);
            item->setData(visibility, VisibilityRole);
            item->setData(true, IsAvailableRole);
            features.appendRow(item);
        };
        append("Feature", false, 0);
        append("Category", true, 0);
        append("Secret", false, 2);
        m_proxy->setSourceModel(&features);
        m_proxy->setVisibility(1);
        m_proxy->invalidate();
        QCOMPARE(treeText(*m_proxy), QStringLiteral("Feature\n"));
        m_proxy->setSourceModel(m_source);
    }

    void filtersAgainOnlyWhenTold()
    {
        add(camera);
        m_proxy->invalidate();
        const QString before = treeText(*m_proxy);
        m_proxy->setVisibility(0);
        QCOMPARE(treeText(*m_proxy), before);
        m_proxy->invalidate();
        QVERIFY(treeText(*m_proxy) != before);
    }

    void letsEverythingPassWhileACollectionIsAdded()
    {
        m_proxy->setFeatureNameFilter({QStringLiteral("@CameraDevice/Nothing")});
        QVector<int> rows;
        connect(m_proxy.get(), &QAbstractItemModel::layoutChanged, this,
                [&] { rows.append(m_proxy->rowCount()); });
        add(camera);
        QCOMPARE(rows, QVector<int> {1});
    }

    void mapsIndexesOfItsSource()
    {
        add("First expert\n  A Integer 1 guru\nSecond\n  B Integer 1");
        m_proxy->setVisibility(0);
        m_proxy->invalidate();
        const QModelIndex second = findRow(*m_proxy, QStringLiteral("Second"), 1);
        QCOMPARE(second.row(), 0);
        FeatureTreeItem *item = m_proxy->itemFromIndex(second);
        QCOMPARE(item->text(), QStringLiteral("Second"));
        QCOMPARE(m_proxy->createItemIndex(item, 1), second);
        QCOMPARE(m_proxy->indexOfItem(item, nullptr, 1), second);
        QCOMPARE(m_proxy->indexOfName(QStringLiteral("@CameraDevice/Second"), nullptr, 1), second);
        QCOMPARE(m_proxy->indexOfRoleValue(ShortNameRole, QStringLiteral("Second"), nullptr, 1),
                 second);
        QVERIFY(!m_proxy->indexOfName(QStringLiteral("@CameraDevice/First"), nullptr, 0).isValid());
        QStringList names {QStringLiteral("@CameraDevice/B"), QStringLiteral("@CameraDevice/None")};
        const QList<FeatureTreeItem *> found = m_proxy->itemsForNames(names);
        QCOMPARE(found.size(), 1);
        QCOMPARE(names, QStringList(QStringLiteral("@CameraDevice/None")));
    }

    void pollsWhatTheNameFilterShows()
    {
        add("Image\n  Width Integer 1\n  Height Integer 1");
        const QString width = QStringLiteral("@CameraDevice/Width");
        m_proxy->pollNodes({QStringLiteral("@CameraDevice/Height")});
        QCOMPARE(m_collection->batchUpdates, 1);
        m_proxy->setFeatureNameFilter({width});
        m_proxy->pollNodes({QStringLiteral("@CameraDevice/Height")});
        QCOMPARE(m_collection->batchUpdates, 1);
        QCOMPARE(m_collection->node(width).invalidations, 1);
        QCOMPARE(m_collection->node(QStringLiteral("@CameraDevice/Height")).invalidations, 0);
    }

    void keepsTheRulesOfItemModels_data()
    {
        QTest::addColumn<bool>("showTreeView");
        QTest::newRow("two levels") << false;
        QTest::newRow("whole tree") << true;
    }

    void keepsTheRulesOfItemModels()
    {
        QFETCH(bool, showTreeView);
        const Tests::ModelTester tester(m_proxy.get());
        m_source->setShowTreeView(showTreeView);
        add("Image\n  Width Integer 1\n  Format\n    Pixel Integer 1\nTiming\n  Line Enum A "
            "entries=A,B\n  Deep\n    Deeper\n      Rate Float 1");
        treeText(tester);
        for (const int level : {0, 3, 2}) {
            m_proxy->setVisibility(level);
            m_proxy->invalidate();
            treeText(tester);
        }
        m_proxy->setFeatureNameFilter({QStringLiteral("@CameraDevice/Rate")});
        QVERIFY(!treeText(tester).contains(QLatin1String("Image")));
        m_proxy->setFeatureNameFilter({});
        m_proxy->markSearchMatches(QStringLiteral("pixel"));
        m_source->setShowTreeView(!showTreeView);
        QVERIFY(treeText(tester).contains(QLatin1String("Image")));
        m_proxy->clear();
        QCOMPARE(treeText(tester), QString());
        m_proxy->addParameterCollection(m_collection, QStringLiteral("Again"), path, true);
        QVERIFY(treeText(tester).contains(QLatin1String("Timing")));
    }

private:
    void add(const char *text)
    {
        m_collection->attach(path, QString::fromLatin1(text));
        m_proxy->addParameterCollection(m_collection, QStringLiteral("Camera"), path, true);
    }

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeProxyModel> m_proxy;
    FeatureTreeModel *m_source = nullptr; // by parent
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeProxyModel)
#include "tst_featuretreeproxymodel.moc"
