// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreemodel.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "plugin/constants/itemroles.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <memory>

using Tests::Fault;
using Tests::findRow;
using Tests::treeText;

class tst_FeatureTreeModel : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void survivesACategoryThatHoldsItself()
    {
        node("Deep").children.append(pathOf("Image"));
        node("Offsets").children.append(pathOf("Offsets"));
        add();
        QVERIFY(!treeText(*m_model).isEmpty());
        m_model->setShowTreeView(true);
        QCOMPARE(treeText(*m_model).count(QLatin1String("Image")), 1);
    }

    void logsWhatCannotBeLoaded()
    {
        m_collection->onParameter = {{pathOf("Root"), Fault::Unknown},
                                     {pathOf("Gain"), Fault::Unknown}};
        m_collection->onChildren = {{pathOf("Image"), Fault::Unknown}};
        expectLog("could not retrieve @CameraDevice /Root from camera node map");
        add();
        QCOMPARE(m_model->rowCount(), 0);

        m_collection->onParameter.remove(pathOf("Root"));
        node("Root").isNull = true;
        expectLog("could not retrieve @CameraDevice /Root from camera node map");
        m_model->setShowTreeView(true);
        QCOMPARE(m_model->rowCount(), 0);

        node("Root").isNull = false;
        expectLog("could not retrieve @CameraDevice/Gain");
        expectLog("could not retrieve the children of @CameraDevice/Image");
        m_model->setShowTreeView(false);
        QCOMPARE(treeText(*m_model), QStringLiteral("Camera\n  Image\n  Shy: <not available>\n"));
    }

    void writesThroughToTheParameter()
    {
        add();
        read("Width");
        const QModelIndex value = row("Width", 1);
        const QString width = QStringLiteral("800");
        QVERIFY(m_model->setData(value, QStringLiteral("640"))); // it is that already
        QVERIFY(node("Width").writes.isEmpty());
        QVERIFY(m_model->setData(value, width));
        expectLog("Failed to set a feature value\\.");
        QVERIFY(!m_model->setData(value, QStringLiteral("5000")));
        QTRY_COMPARE(value.data().toString(), width);
    }

    void polls()
    {
        add();
        auto *timer = m_model->findChild<QTimer *>();
        // Whether the next round is due.
        const auto fire = [&] {
            timer->stop();
            QMetaObject::invokeMethod(timer, "timeout");
            return timer->isActive();
        };
        m_model->setPolling(true);
        m_collection->onUpdate = Fault::Unknown; // dropped
        QVERIFY(fire());
        QCOMPARE(m_collection->polls, QVector<int>(1, 300));

        m_collection->onUpdate = Fault::None;
        m_model->setPollByInvalidation(true);
        QVERIFY(fire());
        m_model->pollNodes({pathOf("Width"), pathOf("Nothing")});
        QCOMPARE(node("Width").invalidations, 1);
        m_collection->onUpdate = Fault::GenICam;
        expectLog("Failed to update nodes\\. Message: fault");
        m_model->pollNodes({});
        QCOMPARE(m_collection->batchUpdates, 2);
        m_collection->onUpdate = Fault::None;
        m_model->setActive(false);
        QVERIFY(!fire());
    }

private:
    void prepare() override
    {
        attach(QStringLiteral("Image\n"
                              "  Width Integer 640 [16..1280]\n"
                              "  Offsets expert\n"
                              "    OffsetX Integer 0\n"
                              "    Deep\n"
                              "      Deepest Float 1.5\n"
                              "  Height Integer 480\n"
                              "Secret invisible\n"
                              "  Hidden Integer 1\n"
                              "Gain Float 1.5 [0..24] unit=dB\n"
                              "Shy String x invisible\n"));
        m_model = std::make_unique<FeatureTreeModel>();
        m_tester = std::make_unique<Tests::ModelTester>(m_model.get());
    }
    void release() override
    {
        m_tester.reset();
        m_model.reset();
    }
    QModelIndex row(const char *name, int column = 0) const
    {
        return findRow(*m_model, QString::fromLatin1(name), column);
    }
    FeatureTreeItem *item(const char *name) const
    {
        return m_model->itemFromIndex(row(name));
    }
    void add()
    {
        m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
    }
    void read(const char *name)
    {
        auto *feature = qobject_cast<FeatureTreeINodeItem *>(item(name));
        feature->subscribe();
        feature->requestRefresh();
        QCoreApplication::processEvents(); // where it is delayed
    }
    void expectLog(const char *text)
    {
        expectFault(
            "featureTreeModel",
            QRegularExpression(QLatin1String("^featuretreemodel \\d+ ") + QLatin1String(text)));
    }

    std::unique_ptr<FeatureTreeModel> m_model;
    std::unique_ptr<Tests::ModelTester> m_tester;
};

QTEST_MAIN(tst_FeatureTreeModel)
#include "tst_featuretreemodel.moc"
