// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeinodeitem.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/itemeditorkind.h"
#include "plugin/constants/itemroles.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "plugin/contract/parametercollection/stringparameterdata.h"
#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QBrush>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using Core::Logging::ELogLevel;
using Tests::Fault;

class tst_FeatureTreeINodeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_collection = QSharedPointer<Tests::FakeCollection>::create();
        m_model = std::make_unique<FeatureTreeModel>();
        m_guard.begin();
    }

    void cleanup()
    {
        m_guard.verify();
    }
    void showsTheValueOrWhyThereIsNone_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QVariant>("shown");
        QTest::addColumn<QVariant>("edited");
        QTest::addColumn<int>("access");
        QTest::addColumn<int>("nameFlags");
        QTest::addColumn<int>("valueFlags");
        QTest::addColumn<bool>("grey");
        const auto row = [](const char *line, const char *shown, const char *edited, int access,
                            int nameFlags, int valueFlags, bool grey) {
            const auto value = [](const char *text) {
                return text ? QVariant(QString::fromLatin1(text)) : QVariant();
            };
            QTest::newRow(line) << QString::fromLatin1(line) << value(shown) << value(edited)
                                << access << nameFlags << valueFlags << grey;
        };
        row("String hi", "hi", "hi", 4, 45, 34, false);
        row("String hi ro", "hi", "hi", 3, 45, 32, true);
        row("Float 1.5", nullptr, "1.5", 4, 45, 34, false); // its editor shows the value
        row("String hi ni", "<not implemented>", nullptr, 0, 45, 32, true);
        row("String hi na", "<not available>", nullptr, 1, 45, 32, true);
        row("String hi wo", "<not readable>", nullptr, 2, 45, 34, false);
        row("", "", nullptr, 3, 41, 32, false);
    }

    void showsTheValueOrWhyThereIsNone()
    {
        QFETCH(QString, line);
        const auto feature = describe(line);
        QTEST(feature->data(1, Qt::DisplayRole), "shown");
        QTEST(feature->data(1, Qt::EditRole), "edited");
        QTEST(feature->accessMode(), "access");
        QTEST(int(feature->flags(0)), "nameFlags");
        QTEST(int(feature->flags(1)), "valueFlags");
        QTEST(feature->foreground().isValid(), "grey");
    }

    void knowsWhenItIsVisible()
    {
        const auto feature = describe(QStringLiteral("String x expert"));
        QVERIFY(!feature->isVisibleAt(0));
        QVERIFY(feature->isVisibleAt(1));
        node().visibility = 3;
        node().publish();
        QVERIFY(!feature->isVisibleAt(2));
        QVERIFY(feature->isVisibleAt(3));

        // What was there once does not vanish from the list.
        node().visibility = 0;
        node().isImplemented = false;
        node().publish();
        QVERIFY(feature->isVisibleAt(0));
        QVERIFY(!item(QStringLiteral("F"))->isVisibleAt(2));
    }

    void keepsDefaultsWhenPropertiesFail_data()
    {
        Tests::addFaultRows();
    }

    void keepsDefaultsWhenPropertiesFail()
    {
        QFETCH(Tests::Fault, fault);
        m_collection->attach(QStringLiteral("@CameraDevice"),
                             QStringLiteral("F Integer 1 name=Eff rep=Linear"));
        node().onProperty = fault;
        node().onType = fault;
        node().onRefresh = fault;
        const auto feature = item(QStringLiteral("F"));
        QCOMPARE(feature->text(), QString());
        QCOMPARE(feature->editorKind(), int(ItemEditorKind::NoEditor));
        feature->subscribe();
        m_guard.expectLogEntry(
            ELogLevel::Fault, QStringLiteral("vantrel.viewer.plugins.tessera.nodeItem"),
            QStringLiteral("Failed to refresh @CameraDevice/F: %1")
                .arg(fault == Fault::Unknown ? QString() : QStringLiteral("fault")));
        feature->requestRefresh();
    }

    void readsItsValueWhileItIsSubscribed()
    {
        m_collection->attach(QStringLiteral("@CameraDevice"),
                             QStringLiteral("F String hi name=Eff unit=m\nC name=Sea"));
        const auto category = item(QStringLiteral("C"));
        QVERIFY(m_collection->node(QStringLiteral("@CameraDevice/C")).isSubscribed());
        const auto feature = item(QStringLiteral("F"));
        QCOMPARE(feature->data(0, Qt::DisplayRole).toString(), QStringLiteral("Eff [m]"));
        QCOMPARE(cachedDisplayName(QStringLiteral("@CameraDevice/C")), QStringLiteral("Sea"));
        feature->requestRefresh();
        feature->unsubscribe();
        QVERIFY(!node().isSubscribed());
        QCOMPARE(node().refreshes, 0);
        QCOMPARE(feature->data(1, Qt::DisplayRole).toString(), QStringLiteral("<not available>"));

        QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
        feature->subscribe();
        feature->subscribe();
        feature->requestRefresh();
        QCOMPARE(updates.count(), 1);
        feature->unsubscribe();
        QVERIFY(node().isSubscribed());
        feature->unsubscribe();
        QVERIFY(!node().isSubscribed());
    }

    void writesByKind_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<bool>("isUtf8");
        const auto row = [](const char *tag, const char *line, const QVariant &value,
                            const char *written, bool isUtf8 = true) {
            QTest::newRow(tag) << QString::fromLatin1(line) << value << QString::fromLatin1(written)
                               << isUtf8;
        };
        const QString umlaut = QStringLiteral("\u00fc");
        row("integer", "Integer 1", QStringLiteral("7"), "7");
        row("float", "Float 1", 2.25, "2.25");
        row("text for a float", "Float 1", QStringLiteral("3.5"), "3.5");
        row("UTF-8", "String hi", QStringLiteral("\u00fc\u65e5"), "\xc3\xbc\xe6\x97\xa5");
        row("Latin-1", "String hi", umlaut, "\xfc", false);
        row("up to the first NUL", "String hi", QStringLiteral("ab").append(QChar()).append(umlaut),
            "ab");
        row("command", "Command", true, "");
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
        const auto write = [&] {
            if (line.startsWith(QLatin1String("Float")) && value.type() != QVariant::Double) {
                m_guard.expectLogEntry(
                    ELogLevel::Fault, QStringLiteral("vantrel.viewer.plugins.tessera.nodeItem"),
                    QStringLiteral("FeatureTreeItem::setData() float editor, but no double in "
                                   "variant()  (node name = F )"));
            }
            feature->setData(1, value, Qt::EditRole);
        };
        write();
        QTEST(node().writes.value(0), "written");
        QCOMPARE(node().refreshes, 1 + node().executions);
        QCOMPARE(node().writes.size() + node().executions, 1);
        node().onWrite = Fault::Standard;
        QVERIFY_EXCEPTION_THROWN(write(), std::exception);
    }

    void isUnknownWithoutAParameter()
    {
        const auto none = item(QStringLiteral("Nothing"));
        QCOMPARE(none->text(), QStringLiteral("Unknown"));
        none->setData(1, QStringLiteral("x"), Qt::EditRole);
        none->subscribe();
        none->requestRefresh();
        none->unsubscribe();

        m_collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("F Integer 1"));
        node().isNull = true;
        const auto gone = item(QStringLiteral("F"));
        QCOMPARE(gone->editorKind(), int(ItemEditorKind::NoParameter));
        QCOMPARE(gone->data(0, Qt::DisplayRole).toString(), QStringLiteral("Unknown"));
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

    void pullsAValueIntoItsLimits_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("written");
        QTest::newRow("integer") << "Integer 5"
                                 << "10";
        QTest::newRow("float") << "Float 5"
                               << "10";
        QTest::newRow("locked") << "Integer 5 ro"
                                << "";
    }

    void pullsAValueIntoItsLimits()
    {
        QFETCH(QString, line);
        QFETCH(QString, written);
        const auto feature = describe(line);
        QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
        node().minimum = 10.0;
        node().maximum = 20.0;
        node().publish();
        QTRY_COMPARE(updates.count(), 1);
        QCOMPARE(node().writes.join(QLatin1Char(',')), written);
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

    void describesItselfInTheToolTip_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("toolTip");
        const QString feature = QStringLiteral("Integer 1 name=Eff tip=A_tip");
        QTest::newRow("feature") << feature << ""
                                 << "<nobr><b>Eff (F)</b></nobr><br><nobr>A tip</nobr>";
        QTest::newRow("category") << "name=Eff"
                                  << ""
                                  << "<nobr><b>Eff</b></nobr>";
        QTest::newRow("search") << "name=xEFf"
                                << " ef "
                                << "<nobr><b>x<span style='background-color: #ffa700; "
                                   "font-weight:bold'>EF</span>f</b></nobr>";
    }

    void describesItselfInTheToolTip()
    {
        QFETCH(QString, line);
        QFETCH(QString, search);
        const auto feature = describe(line);
        feature->setSearchText(&search);
        QTEST(feature->data(0, Qt::ToolTipRole).toString(), "toolTip");
    }

private:
    std::unique_ptr<FeatureTreeINodeItem> item(const QString &name, bool isUtf8 = true)
    {
        const QString path = QStringLiteral("@CameraDevice/") + name;
        return std::make_unique<FeatureTreeINodeItem>(m_collection, m_collection->parameter(path),
                                                      m_model.get(), path, nullptr, isUtf8, 3);
    }

    // An item for a parameter "F", which has sent its first snapshot.
    std::unique_ptr<FeatureTreeINodeItem> describe(const QString &line, bool isUtf8 = true)
    {
        m_collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("F ") + line);
        auto result = item(QStringLiteral("F"), isUtf8);
        result->subscribe();
        result->requestRefresh();
        return result;
    }

    Tests::FakeNode &node() const
    {
        return m_collection->node(QStringLiteral("@CameraDevice/F"));
    }

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model;
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeINodeItem)
#include "tst_featuretreeinodeitem.moc"
