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
    void init();
    void cleanup();
    void keepsCategoriesThatHoldAShownFeature_data();
    void keepsCategoriesThatHoldAShownFeature();
    void listsFeaturesOverAnotherModel();
    void letsEverythingPassWhileACollectionIsAdded();
    void filtersAgainOnlyWhenTold();
    void countsWhatItVisited();
    void mapsIndexesOfItsSource();
    void pollsWhatTheNameFilterShows();
    void marksInOneChangeOfLayout();
    void forgetsItsRowsWhenCleared();
    void answersNothingWithoutASource();
    void keepsTheRulesOfItemModels_data();
    void keepsTheRulesOfItemModels();

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

void tst_FeatureTreeProxyModel::init()
{
    m_guard.begin();
    m_collection = QSharedPointer<Tests::FakeCollection>::create();
    m_proxy = std::make_unique<FeatureTreeProxyModel>();
    m_source = new FeatureTreeModel(m_proxy.get());
    m_proxy->setSourceModel(m_source);
    m_proxy->setDynamicSortFilter(false);
}

void tst_FeatureTreeProxyModel::cleanup()
{
    m_proxy.reset();
    m_guard.verify();
}

void tst_FeatureTreeProxyModel::keepsCategoriesThatHoldAShownFeature_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("showUnavailable");
    QTest::addColumn<QStringList>("categories");
    const QStringList all = list("Image,Timing,Registers,Gone,Lost,Empty");
    const QStringList none;
    QTest::newRow("beginner") << 0 << none << false << list("Image,Timing,Gone,Empty");
    QTest::newRow("expert") << 1 << none << false << list("Image,Timing,Registers,Gone,Empty");
    QTest::newRow("guru") << 2 << none << false << list("Image,Timing,Registers,Gone,Empty");
    QTest::newRow("invisible shows all") << 3 << none << false << all;
    QTest::newRow("unavailable ones too") << 0 << none << true << all;
    QTest::newRow("by name, in any case")
        << 2 << list("@cameradevice/WIDTH") << false << list("Image");
    QTest::newRow("name above the level") << 0 << list("@CameraDevice/Tiles") << false << none;
    QTest::newRow("unknown name") << 3 << list("@CameraDevice/Widt") << false << none;
}

void tst_FeatureTreeProxyModel::keepsCategoriesThatHoldAShownFeature()
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

void tst_FeatureTreeProxyModel::listsFeaturesOverAnotherModel()
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

void tst_FeatureTreeProxyModel::letsEverythingPassWhileACollectionIsAdded()
{
    m_proxy->setFeatureNameFilter({QStringLiteral("@CameraDevice/Nothing")});
    QVector<int> rows;
    connect(m_proxy.get(), &QAbstractItemModel::layoutChanged, this,
            [&] { rows.append(m_proxy->rowCount()); });
    add(camera);
    QCOMPARE(rows, QVector<int> {1});
    m_proxy->setFeatureNameFilter({QStringLiteral("@CameraDevice/Nothing")});
    QCOMPARE(m_proxy->rowCount(), 0);
}

void tst_FeatureTreeProxyModel::filtersAgainOnlyWhenTold()
{
    add(camera);
    m_proxy->invalidate();
    const QString before = treeText(*m_proxy);
    m_proxy->setVisibility(0);
    QCOMPARE(m_source->visibility(), 0);
    QCOMPARE(treeText(*m_proxy), before);
    m_proxy->invalidate();
    QVERIFY(treeText(*m_proxy) != before);
}

void tst_FeatureTreeProxyModel::countsWhatItVisited()
{
    add("Image\n  Width Integer 1\nSecret expert\n  Key Integer 1 guru\n  Lock Integer 1 "
        "invisible");
    m_proxy->setVisibility(0);
    m_proxy->invalidate();
    treeText(*m_proxy);
    QCOMPARE(m_proxy->matchCount(), 2); // the top row and Image
    QCOMPARE(m_proxy->hiddenMatchCount(), 2); // Secret and Key
    m_proxy->setVisibility(3);
    m_proxy->invalidate();
    treeText(*m_proxy);
    QCOMPARE(m_proxy->matchCount(), 3);
    QCOMPARE(m_proxy->hiddenMatchCount(), 0);
}

void tst_FeatureTreeProxyModel::mapsIndexesOfItsSource()
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

void tst_FeatureTreeProxyModel::pollsWhatTheNameFilterShows()
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

void tst_FeatureTreeProxyModel::marksInOneChangeOfLayout()
{
    add(camera);
    m_proxy->invalidate();
    int layouts = 0;
    connect(m_proxy.get(), &QAbstractItemModel::layoutChanged, this, [&] { ++layouts; });
    m_proxy->markSearchMatches(QStringLiteral(" width "));
    m_proxy->markFavorites({QStringLiteral("@cameradevice/exposure")});
    QCOMPARE(layouts, 2);
    const auto marks = [&](const char *name, int role) {
        return findRow(*m_proxy, QString::fromLatin1(name)).data(role).toBool();
    };
    QVERIFY(marks("Image", IsSearchMatchRole) && !marks("Image", IsFavoriteMatchRole));
    QVERIFY(!marks("Timing", IsSearchMatchRole) && marks("Timing", IsFavoriteMatchRole));
}

void tst_FeatureTreeProxyModel::forgetsItsRowsWhenCleared()
{
    add(camera);
    const QPersistentModelIndex image = findRow(*m_proxy, QStringLiteral("Image"));
    QVERIFY(image.isValid());
    m_proxy->clear();
    QVERIFY(!image.isValid());
    QCOMPARE(m_proxy->rowCount(), 0);
    QCOMPARE(m_proxy->sourceModel(), m_source);
    m_source->setShowTreeView(true);
    QVERIFY(findRow(*m_proxy, QStringLiteral("Image")).isValid());
}

void tst_FeatureTreeProxyModel::answersNothingWithoutASource()
{
    m_proxy->setSourceModel(nullptr);
    FeatureTreeItem item(QStringLiteral("x"), m_proxy.get(), QStringLiteral("x"), nullptr, 0);
    QStringList names {QStringLiteral("x")};
    QVERIFY(!m_proxy->createItemIndex(&item, 0).isValid());
    QVERIFY(!m_proxy->indexOfItem(&item, nullptr, 0).isValid());
    QVERIFY(!m_proxy->itemFromIndex(QModelIndex()));
    QVERIFY(m_proxy->itemsForNames(names).isEmpty());
    QVERIFY(!m_proxy->isPolling() && !m_proxy->acceptUpdates() && !m_proxy->isUtf8());
    QCOMPARE(m_proxy->visibility(), 0);
    QCOMPARE(m_proxy->emptyText({}), QString());
    m_proxy->clear();
    m_proxy->refreshAll();
    m_proxy->markSearchMatches(QStringLiteral("x"));
    QVERIFY(!m_proxy->sourceModel());
}

void tst_FeatureTreeProxyModel::keepsTheRulesOfItemModels_data()
{
    QTest::addColumn<bool>("showTreeView");
    QTest::newRow("two levels") << false;
    QTest::newRow("whole tree") << true;
}

void tst_FeatureTreeProxyModel::keepsTheRulesOfItemModels()
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

QTEST_MAIN(tst_FeatureTreeProxyModel)
#include "tst_featuretreeproxymodel.moc"
