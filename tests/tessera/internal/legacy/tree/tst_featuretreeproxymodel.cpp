// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Connections end with the test function.
// clazy:excludeall=lambda-in-connect

#include "internal/legacy/tree/featuretreeproxymodel.h"

#include "internal/legacy/tree/featuretreeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "plugin/constants/itemroles.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <memory>

using Tests::findRow;
using Tests::treeText;

namespace {

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

class tst_FeatureTreeProxyModel : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
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

    void filtersAgainOnlyWhenTold()
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

    void letsEverythingPassWhileACollectionIsAdded()
    {
        m_proxy->setFeatureNameFilter({pathOf("Nothing")});
        QVector<int> rows;
        connect(m_proxy.get(), &QAbstractItemModel::layoutChanged, this,
                [&] { rows.append(m_proxy->rowCount()); });
        add(camera);
        QCOMPARE(rows, QVector<int> {1});
    }

    void countsWhatItVisited()
    {
        add("Image\n  Width Integer 1\nSecret expert\n  Key Integer 1 guru");
        m_proxy->setVisibility(0);
        m_proxy->invalidate();
        treeText(*m_proxy);
        QCOMPARE(m_proxy->matchCount(), 2); // the top row and Image
        QCOMPARE(m_proxy->hiddenMatchCount(), 2); // Secret and Key
        m_proxy->setVisibility(3);
        m_proxy->invalidate();
        treeText(*m_proxy);
        QCOMPARE(m_proxy->hiddenMatchCount(), 0);
    }

    void marksInOneChangeOfLayout()
    {
        add(camera);
        int layouts = 0;
        connect(m_proxy.get(), &QAbstractItemModel::layoutChanged, this, [&] { ++layouts; });
        m_proxy->markSearchMatches(QStringLiteral(" width "));
        m_proxy->markFavorites({QStringLiteral("@cameradevice/exposure")});
        QCOMPARE(layouts, 2);
        QVERIFY(findRow(*m_proxy, QStringLiteral("Image")).data(IsSearchMatchRole).toBool());
        QVERIFY(findRow(*m_proxy, QStringLiteral("Timing")).data(IsFavoriteMatchRole).toBool());
    }

    void mapsIndexesOfItsSource()
    {
        add("First expert\n  A Integer 1 guru\nSecond\n  B Integer 1");
        m_proxy->setVisibility(0);
        m_proxy->invalidate();
        const QModelIndex second = findRow(*m_proxy, QStringLiteral("Second"), 1);
        QCOMPARE(second.row(), 0);
        QVERIFY(m_proxy->isUtf8());
        FeatureTreeItem *item = m_proxy->itemFromIndex(second);
        QCOMPARE(m_proxy->createItemIndex(item, 1), second);
        QCOMPARE(m_proxy->indexOfItem(item, nullptr, 1), second);
        QCOMPARE(m_proxy->indexOfName(pathOf("Second"), nullptr, 1), second);
        QVERIFY(!m_proxy->indexOfName(pathOf("First"), nullptr, 0).isValid());
    }

    void pollsWhatTheNameFilterShows()
    {
        add("Image\n  Width Integer 1\n  Height Integer 1");
        const QString width = pathOf("Width");
        m_proxy->pollNodes({pathOf("Height")});
        QCOMPARE(m_collection->batchUpdates, 1);
        m_proxy->setFeatureNameFilter({width});
        m_proxy->pollNodes({pathOf("Height")});
        QCOMPARE(m_collection->batchUpdates, 1);
        QCOMPARE(m_collection->node(width).invalidations, 1);
        QCOMPARE(node("Height").invalidations, 0);
    }

    void keepsTheRulesOfItemModels()
    {
        const Tests::ModelTester tester(m_proxy.get());
        m_source->setShowTreeView(true);
        add("Image\n  Width Integer 1\n  Format\n    Pixel Integer 1\nTiming\n  Line Enum A "
            "entries=A,B\n  Deep\n    Deeper\n      Rate Float 1");
        treeText(tester);
        for (const int level : {0, 3, 2}) {
            m_proxy->setVisibility(level);
            m_proxy->invalidate();
            treeText(tester);
        }
        m_proxy->setFeatureNameFilter({pathOf("Rate")});
        QVERIFY(!treeText(tester).contains(QLatin1String("Image")));
        m_proxy->setFeatureNameFilter({});
        m_proxy->markSearchMatches(QStringLiteral("pixel"));
        m_source->setShowTreeView(false);
        QVERIFY(treeText(tester).contains(QLatin1String("Image")));
        m_proxy->clear();
        QCOMPARE(treeText(tester), QString());
        m_proxy->addParameterCollection(m_collection, QStringLiteral("Again"), m_path, true);
        QVERIFY(treeText(tester).contains(QLatin1String("Timing")));
    }

private:
    void prepare() override
    {
        m_proxy = std::make_unique<FeatureTreeProxyModel>();
        m_source = new FeatureTreeModel(m_proxy.get());
        m_proxy->setSourceModel(m_source);
        m_proxy->setDynamicSortFilter(false);
    }
    void release() override
    {
        m_proxy.reset();
    }
    void add(const char *text)
    {
        attach(QString::fromLatin1(text));
        m_proxy->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
    }

    std::unique_ptr<FeatureTreeProxyModel> m_proxy;
    FeatureTreeModel *m_source = nullptr; // by parent
};

QTEST_MAIN(tst_FeatureTreeProxyModel)
#include "tst_featuretreeproxymodel.moc"
