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
    void showsTheValueOrWhyThereIsNone_data()
    {
        QTest::addColumn<QVariant>("shown");
        QTest::addColumn<QVariant>("edited");
        QTest::addColumn<int>("access");
        QTest::addColumn<int>("flags");
        QTest::addColumn<bool>("grey");
        const auto text = [](const char *shown) { return QVariant(QString::fromLatin1(shown)); };
        const QVariant none;
        QTest::newRow("String hi") << text("hi") << text("hi") << 4 << 34 << false;
        QTest::newRow("String hi ro") << text("hi") << text("hi") << 3 << 32 << true;
        QTest::newRow("Float 1.5") << none << text("1.5") << 4 << 34 << false; // in its editor
        QTest::newRow("String hi ni") << text("<not implemented>") << none << 0 << 32 << true;
        QTest::newRow("String hi na") << text("<not available>") << none << 1 << 32 << true;
        QTest::newRow("String hi wo") << text("<not readable>") << none << 2 << 34 << false;
        QTest::newRow("") << text("") << none << 3 << 32 << false;
    }

    void showsTheValueOrWhyThereIsNone()
    {
        const auto feature = describe(QString::fromLatin1(QTest::currentDataTag()));
        QTEST(feature->data(1, Qt::DisplayRole), "shown");
        QTEST(feature->data(1, Qt::EditRole), "edited");
        QTEST(feature->accessMode(), "access");
        QTEST(int(feature->flags(1)), "flags");
        QTEST(feature->foreground().isValid(), "grey");
    }

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

    void knowsWhenItIsVisible()
    {
        const auto feature = describe(QStringLiteral("String x expert"));
        QVERIFY(!feature->isVisibleAt(0) && feature->isVisibleAt(1));
        node().visibility = 0;
        node().isImplemented = false; // what was there once does not vanish from the list
        node().publish();
        QVERIFY(feature->isVisibleAt(0));
        QVERIFY(!item("F")->isVisibleAt(2));
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

    void displayNamesAreKeptInTheSettings()
    {
        const Tests::SettingsFolder folder;
        const QString key = QStringLiteral("Tessera/DisplayNameCache");
        QSettings().setValue(key, QStringLiteral("r1:b;c;d:e:f;g:h;r2:x;r2:y;"));
        loadDisplayNameCache();
        QString names;
        for (const char *name : {"r1", "c", "d", "g", "r2", "r3"}) {
            names += cachedDisplayName(QString::fromLatin1(name)) + QLatin1Char(',');
        }
        QCOMPARE(names, QStringLiteral("b,,,h,y,,"));
        cacheDisplayName(QStringLiteral("z2"), QStringLiteral("%1 last"));
        cacheDisplayName(QStringLiteral("z2"), QStringLiteral("later")); // the first one stays
        cacheDisplayName(QStringLiteral("z1"), QStringLiteral("50 %2"));
        cacheDisplayName(QStringLiteral("z3"), QStringLiteral("a:b")); // would not come back
        saveDisplayNameCache();
        QVERIFY(QSettings().value(key).toString().endsWith(QLatin1String("z1:50 %2;z2:%1 last;")));
    }

    void writesByKind_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("isUtf8");
        QTest::addColumn<QString>("written");
        const QVariant text = QStringLiteral("\u00fc").append(QChar()).append(QChar(0x65e5));
        QTest::newRow("integer") << "Integer 1" << QVariant(QStringLiteral("7")) << true << "7";
        QTest::newRow("float") << "Float 1" << QVariant(2.25) << true << "2.25";
        QTest::newRow("switch") << "Boolean 0" << QVariant(QStringLiteral("1")) << true << "1";
        QTest::newRow("UTF-8") << "String hi" << text << true << QStringLiteral("\u00c3\u00bc");
        QTest::newRow("Latin-1") << "String hi" << text << false << QStringLiteral("\u00fc");
        QTest::newRow("command") << "Command" << QVariant(true) << true << "";
    }

    void writesByKind()
    {
        QFETCH(QString, line);
        QFETCH(QVariant, value);
        QFETCH(bool, isUtf8);
        const auto feature = describe(line, isUtf8);
        node().isWritable = false;
        feature->setData(1, value, Qt::EditRole);
        node().isWritable = true;
        feature->setData(0, value, Qt::EditRole);
        feature->setData(1, value, Qt::DisplayRole);
        QVERIFY(node().writes.isEmpty());
        feature->setData(1, value, Qt::EditRole);
        QTEST(node().writes.value(0), "written");
        QCOMPARE(node().refreshes, 1 + node().executions);
        QCOMPARE(node().writes.size() + node().executions, 1);
        node().onWrite = Fault::Standard;
        QVERIFY_EXCEPTION_THROWN(feature->setData(1, value, Qt::EditRole), std::exception);
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
