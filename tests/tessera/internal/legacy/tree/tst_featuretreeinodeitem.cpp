// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeinodeitem.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/itemeditorkind.h"
#include "plugin/constants/itemroles.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"
#include "support/settingsfolder.h"
#include "tessera/featuretest.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

using Tests::Fault;

class tst_FeatureTreeINodeItem : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsDefaultsWhenPropertiesFail()
    {
        attach(QStringLiteral("F Integer 1 name=Eff rep=Linear"));
        node().onProperty = node().onType = node().onRefresh = Fault::Unknown;
        const auto feature = item("F");
        QCOMPARE(feature->text(), QString());
        QCOMPARE(feature->editorKind(), int(ItemEditorKind::NoEditor));
        feature->subscribe();
        expectFault("nodeItem", QStringLiteral("Failed to refresh @CameraDevice/F: "));
        feature->requestRefresh();
    }

    void readsItsValueWhileItIsSubscribed()
    {
        attach(QStringLiteral("F String hi name=Eff unit=m\nC name=Sea"));
        const auto category = item("C");
        QVERIFY(node("C").isSubscribed());
        QCOMPARE(cachedDisplayName(pathOf("C")), QStringLiteral("Sea"));
        const auto feature = item("F");
        QCOMPARE(feature->data(0, Qt::DisplayRole).toString(), QStringLiteral("Eff [m]"));
        feature->requestRefresh();
        feature->unsubscribe();
        QCOMPARE(node().refreshes, 0);

        const QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
        feature->subscribe();
        feature->subscribe();
        feature->requestRefresh();
        QCOMPARE(updates.count(), 1);
        feature->unsubscribe();
        QVERIFY(node().isSubscribed());
        feature->unsubscribe();
        QVERIFY(!node().isSubscribed());
    }

    void dropsSnapshotsThatAreNotForIt()
    {
        const auto feature = describe(QStringLiteral("Integer 5"));
        const auto before = feature->parameterData();
        node().send(QSharedPointer<ParameterCollection::StringParameterData>::create());
        m_model->setAcceptUpdates(false);
        node().publish();
        QCOMPARE(feature->parameterData(), before);
    }

    void pullsAValueIntoItsLimits()
    {
        for (const char *line : {"Integer 5", "Float 5", "Integer 5 ro"}) {
            const auto feature = describe(QString::fromLatin1(line));
            node().minimum = 10.0;
            node().maximum = 20.0;
            node().publish();
            QTRY_COMPARE(node().writes.join(QLatin1Char(',')),
                         QLatin1String(node().isWritable ? "10" : ""));
        }
    }

    void givesUpRepairWhereTheDeviceInsists()
    {
        const auto feature = describe(QStringLiteral("Integer 5"));
        node().onWrite = Fault::GenICam;
        node().minimum = 10.0;
        node().maximum = 20.0;
        node().publish();
        node().publish();
        QCOMPARE(node().writes, QStringList(QStringLiteral("10")));
        node().minimum = 12.0; // other limits are another case
        node().publish();
        QCOMPARE(node().writes.constLast(), QStringLiteral("12"));
    }

    void describesItselfInTheToolTip()
    {
        const auto feature = describe(QStringLiteral("Integer 1 name=xEFf tip=A_tip"));
        QCOMPARE(feature->data(0, Qt::ToolTipRole).toString(),
                 QStringLiteral("<nobr><b>xEFf (F)</b></nobr><br><nobr>A tip</nobr>"));
        const QString search = QStringLiteral(" ef ");
        feature->setSearchText(&search);
        QVERIFY(
            feature->data(0, Qt::ToolTipRole).toString().contains(QLatin1String("'>EF</span>f")));
    }

    void ownsItsChildren()
    {
        FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
        const auto add = [](FeatureTreeItem &parent) {
            parent.appendChild(new FeatureTreeItem(QString(), nullptr, QString(), nullptr, 1));
            return QPointer<FeatureTreeItem>(parent.child(parent.childCount() - 1));
        };
        const auto outer = add(root);
        const auto deep = add(*outer);
        const auto later = add(root);
        const QScopedPointer<FeatureTreeItem> taken(root.takeChild(0));
        QCOMPARE(later->row(), 0);
        QVERIFY(!taken->parent() && !root.child(1) && !root.takeChild(1));
        delete later;
        QCOMPARE(root.childCount(), 0);
        taken->clear();
        QVERIFY(!deep);
    }

private:
    void prepare() override
    {
        m_model = std::make_unique<FeatureTreeModel>();
    }
    std::unique_ptr<FeatureTreeINodeItem> item(const char *name, bool isUtf8 = true)
    {
        return std::make_unique<FeatureTreeINodeItem>(
            m_collection, m_collection->parameter(pathOf(name)), m_model.get(), pathOf(name),
            nullptr, isUtf8, 3);
    }

    // An item for a parameter "F", which has sent its first snapshot.
    std::unique_ptr<FeatureTreeINodeItem> describe(const QString &line, bool isUtf8 = true)
    {
        attach(QStringLiteral("F ") + line);
        auto result = item("F", isUtf8);
        result->subscribe();
        result->requestRefresh();
        return result;
    }

    std::unique_ptr<FeatureTreeModel> m_model;
};

QTEST_MAIN(tst_FeatureTreeINodeItem)
#include "tst_featuretreeinodeitem.moc"
