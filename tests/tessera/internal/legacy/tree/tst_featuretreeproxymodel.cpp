// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeproxymodel.h"

#include "internal/legacy/tree/featuretreemodel.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <memory>

using Tests::treeText;

class tst_FeatureTreeProxyModel : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
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
