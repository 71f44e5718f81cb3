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
    void init();
    void cleanup()
    {
        m_guard.verify();
    }
    void takesTheKindFromTheParameter_data();
    void takesTheKindFromTheParameter();
    void showsTheValueOrWhyThereIsNone_data();
    void showsTheValueOrWhyThereIsNone();
    void isUnknownWithoutAParameter();
    void knowsWhenItIsVisible();
    void keepsDefaultsWhenPropertiesFail_data();
    void keepsDefaultsWhenPropertiesFail();
    void readsNoValueUntilItIsSubscribed();
    void countsItsSubscribers();
    void dropsSnapshotsThatAreNotForIt();
    void writesByKind_data();
    void writesByKind();
    void writesBytesOfTheStatedEncoding_data();
    void writesBytesOfTheStatedEncoding();
    void logsANumberThatIsNone();
    void letsWriteFailuresThrough_data();
    void letsWriteFailuresThrough();
    void pullsAValueIntoItsLimits_data();
    void pullsAValueIntoItsLimits();
    void givesUpRepairWhereTheDeviceInsists();
    void describesItselfInTheToolTip_data();
    void describesItselfInTheToolTip();
    void neverComparesEqual();

private:
    std::unique_ptr<FeatureTreeINodeItem> item(const QString &name, bool isUtf8 = true);
    std::unique_ptr<FeatureTreeINodeItem> describe(const QString &line, bool isUtf8 = true);
    Tests::FakeNode &node() const;

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model;
    Tests::WarningGuard m_guard;
};

void tst_FeatureTreeINodeItem::init()
{
    m_collection = QSharedPointer<Tests::FakeCollection>::create();
    m_model = std::make_unique<FeatureTreeModel>();
    m_guard.begin();
}

std::unique_ptr<FeatureTreeINodeItem> tst_FeatureTreeINodeItem::item(const QString &name,
                                                                     bool isUtf8)
{
    const QString path = QStringLiteral("@CameraDevice/") + name;
    return std::make_unique<FeatureTreeINodeItem>(m_collection, m_collection->parameter(path),
                                                  m_model.get(), path, nullptr, isUtf8, 3);
}

// An item for a parameter "F", which has sent its first snapshot.
std::unique_ptr<FeatureTreeINodeItem> tst_FeatureTreeINodeItem::describe(const QString &line,
                                                                         bool isUtf8)
{
    m_collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("F ") + line);
    auto result = item(QStringLiteral("F"), isUtf8);
    result->subscribe();
    result->requestRefresh();
    return result;
}

Tests::FakeNode &tst_FeatureTreeINodeItem::node() const
{
    return m_collection->node(QStringLiteral("@CameraDevice/F"));
}

void tst_FeatureTreeINodeItem::takesTheKindFromTheParameter_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("inlineEditor");
    QTest::newRow("integer") << "Integer 1 rep=PureNumber" << 0 << false;
    QTest::newRow("linear integer") << "Integer 1 rep=Linear" << 1 << true;
    QTest::newRow("logarithmic integer") << "Integer 1 rep=Logarithmic" << 1 << true;
    QTest::newRow("float") << "Float 1" << 2 << true;
    QTest::newRow("linear float") << "Float 1 rep=Linear" << 3 << true;
    QTest::newRow("enumeration") << "Enum A entries=A" << 4 << true;
    QTest::newRow("switch") << "Boolean 1" << 5 << true;
    QTest::newRow("string") << "String x" << 6 << false;
    QTest::newRow("command") << "Command" << 7 << true;
    QTest::newRow("category") << "" << 10 << false;
    QTest::newRow("other") << "Other" << 10 << false;
}

void tst_FeatureTreeINodeItem::takesTheKindFromTheParameter()
{
    QFETCH(QString, line);
    const auto feature = describe(line);
    QTEST(feature->editorKind(), "kind");
    QTEST(feature->hasInlineEditor(), "inlineEditor");
    QCOMPARE(feature->hasChildren(), line.isEmpty());
    QCOMPARE(feature->data(0, IsCategoryRole).toBool(), line.isEmpty());
    QCOMPARE(feature->columnCount(), line.isEmpty() ? 1 : 2);
}

void tst_FeatureTreeINodeItem::showsTheValueOrWhyThereIsNone_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QVariant>("shown");
    QTest::addColumn<QVariant>("edited");
    QTest::addColumn<int>("access");
    QTest::addColumn<int>("nameFlags");
    QTest::addColumn<int>("valueFlags");
    QTest::addColumn<bool>("grey");
    const auto text = [](const char *value) { return QVariant(QString::fromLatin1(value)); };
    QTest::newRow("text") << "String hi" << text("hi") << text("hi") << 4 << 45 << 34 << false;
    QTest::newRow("read only text")
        << "String hi ro" << text("hi") << text("hi") << 3 << 45 << 32 << true;
    QTest::newRow("editor shows it")
        << "Float 1.5" << QVariant() << text("1.5") << 4 << 45 << 34 << false;
    QTest::newRow("read only editor")
        << "Float 1.5 ro" << QVariant() << text("1.5") << 3 << 45 << 34 << true;
    QTest::newRow("switch") << "Boolean 1" << QVariant() << QVariant() << 4 << 45 << 34 << false;
    QTest::newRow("not implemented")
        << "String hi ni" << text("<not implemented>") << QVariant() << 0 << 45 << 32 << true;
    QTest::newRow("not available")
        << "String hi na" << text("<not available>") << QVariant() << 1 << 45 << 32 << true;
    QTest::newRow("write only") << "String hi wo" << text("<not readable>") << QVariant() << 2 << 45
                                << 34 << false;
    QTest::newRow("write only command")
        << "Command wo" << QVariant() << QVariant() << 2 << 45 << 34 << false;
    QTest::newRow("category") << "" << text("") << QVariant() << 3 << 41 << 32 << false;
}

void tst_FeatureTreeINodeItem::showsTheValueOrWhyThereIsNone()
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

void tst_FeatureTreeINodeItem::isUnknownWithoutAParameter()
{
    const auto none = item(QStringLiteral("Nothing"));
    QCOMPARE(none->editorKind(), int(ItemEditorKind::NoParameter));
    QCOMPARE(none->text(), QStringLiteral("Unknown"));
    QVERIFY(!none->data(0, Qt::DisplayRole).isValid());
    none->setData(1, QStringLiteral("x"), Qt::EditRole);
    none->subscribe();
    none->requestRefresh();
    none->unsubscribe();

    m_collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("F Integer 1"));
    node().isNull = true;
    const auto gone = item(QStringLiteral("F"));
    QCOMPARE(gone->editorKind(), int(ItemEditorKind::NoParameter));
    QCOMPARE(gone->data(0, Qt::DisplayRole).toString(), QStringLiteral("Unknown"));
    QVERIFY(gone->foreground().isValid());
}

void tst_FeatureTreeINodeItem::knowsWhenItIsVisible()
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

void tst_FeatureTreeINodeItem::keepsDefaultsWhenPropertiesFail_data()
{
    Tests::addFaultRows();
}

void tst_FeatureTreeINodeItem::keepsDefaultsWhenPropertiesFail()
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
    m_guard.expectLogEntry(ELogLevel::Fault,
                           QStringLiteral("vantrel.viewer.plugins.tessera.nodeItem"),
                           QStringLiteral("Failed to refresh @CameraDevice/F: %1")
                               .arg(fault == Fault::Unknown ? QString() : QStringLiteral("fault")));
    feature->requestRefresh();
}

void tst_FeatureTreeINodeItem::readsNoValueUntilItIsSubscribed()
{
    m_collection->attach(QStringLiteral("@CameraDevice"),
                         QStringLiteral("F String hi name=Eff unit=m\nN Integer 1 name=Enn\nC"));
    const auto feature = item(QStringLiteral("F"));
    QCOMPARE(feature->data(0, Qt::DisplayRole).toString(), QStringLiteral("Eff [m]"));
    QCOMPARE(feature->data(1, Qt::DisplayRole).toString(), QStringLiteral("<not available>"));
    item(QStringLiteral("N"));
    QCOMPARE(cachedDisplayName(QStringLiteral("@CameraDevice/N")), QStringLiteral("Enn"));
    QVERIFY(!node().isSubscribed());
    feature->requestRefresh();
    QCOMPARE(node().refreshes, 0);

    const auto category = item(QStringLiteral("C"));
    QVERIFY(m_collection->node(QStringLiteral("@CameraDevice/C")).isSubscribed());
}

void tst_FeatureTreeINodeItem::countsItsSubscribers()
{
    const auto feature = describe(QStringLiteral("String hi"));
    QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
    feature->subscribe();
    node().publish();
    QCOMPARE(updates.count(), 1);
    feature->unsubscribe();
    QVERIFY(node().isSubscribed());
    feature->unsubscribe();
    QVERIFY(!node().isSubscribed());
    feature->unsubscribe();
    feature->subscribe();
    QVERIFY(node().isSubscribed());
}

void tst_FeatureTreeINodeItem::dropsSnapshotsThatAreNotForIt()
{
    const auto feature = describe(QStringLiteral("Integer 5"));
    QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
    const auto before = feature->parameterData();
    node().send({});
    node().send(QSharedPointer<ParameterCollection::StringParameterData>::create());
    m_model->setAcceptUpdates(false);
    node().publish();
    QCOMPARE(feature->parameterData(), before);
    QVERIFY(updates.isEmpty());
}

void tst_FeatureTreeINodeItem::writesByKind_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("writes");
    QTest::newRow("integer") << "Integer 1" << QVariant(QStringLiteral("7"))
                             << QStringList(QStringLiteral("7"));
    QTest::newRow("float") << "Float 1" << QVariant(2.25) << QStringList(QStringLiteral("2.25"));
    QTest::newRow("switch") << "Boolean 0" << QVariant(QStringLiteral("1"))
                            << QStringList(QStringLiteral("1"));
    QTest::newRow("enumeration") << "Enum A entries=A,B" << QVariant(QStringLiteral("B"))
                                 << QStringList(QStringLiteral("B"));
    QTest::newRow("locked") << "Integer 1 ro" << QVariant(QStringLiteral("7")) << QStringList();
}

void tst_FeatureTreeINodeItem::writesByKind()
{
    QFETCH(QString, line);
    QFETCH(QVariant, value);
    const auto feature = describe(line);
    feature->setData(0, value, Qt::EditRole);
    feature->setData(1, value, Qt::DisplayRole);
    QVERIFY(node().writes.isEmpty());
    feature->setData(1, value, Qt::EditRole);
    QTEST(node().writes, "writes");
}

void tst_FeatureTreeINodeItem::writesBytesOfTheStatedEncoding_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isUtf8");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << QStringLiteral("\u00fc\u65e5") << true
                           << QByteArray("\xc3\xbc\xe6\x97\xa5");
    QTest::newRow("Latin-1") << QStringLiteral("\u00fc") << false << QByteArray("\xfc");
    QTest::newRow("outside Latin-1") << QStringLiteral("\u65e5") << false << QByteArray("?");
    QTest::newRow("up to the first NUL")
        << QStringLiteral("ab").append(QChar()).append(QLatin1Char('c')) << true
        << QByteArray("ab");
}

void tst_FeatureTreeINodeItem::writesBytesOfTheStatedEncoding()
{
    QFETCH(QString, text);
    QFETCH(bool, isUtf8);
    const auto feature = describe(QStringLiteral("String hi"), isUtf8);
    feature->setData(1, text, Qt::EditRole);
    QTEST(node().text, "bytes");
}

void tst_FeatureTreeINodeItem::logsANumberThatIsNone()
{
    const auto feature = describe(QStringLiteral("Float 1"));
    m_guard.expectLogEntry(
        ELogLevel::Fault, QStringLiteral("vantrel.viewer.plugins.tessera.nodeItem"),
        QStringLiteral("FeatureTreeItem::setData() float editor, but no double in variant()  "
                       "(node name = F )"));
    feature->setData(1, QStringLiteral("3.5"), Qt::EditRole);
    QCOMPARE(node().writes, QStringList(QStringLiteral("3.5")));
}

void tst_FeatureTreeINodeItem::letsWriteFailuresThrough_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("integer") << "Integer 1" << QVariant(QStringLiteral("7"));
    QTest::newRow("float") << "Float 1" << QVariant(2.25);
    QTest::newRow("command") << "Command" << QVariant(true);
}

void tst_FeatureTreeINodeItem::letsWriteFailuresThrough()
{
    QFETCH(QString, line);
    QFETCH(QVariant, value);
    const auto feature = describe(line);
    if (node().type == ParameterCollection::Command) {
        const int refreshes = node().refreshes;
        feature->setData(1, value, Qt::EditRole);
        QCOMPARE(node().executions, 1);
        QCOMPARE(node().refreshes, refreshes + 1);
    }
    node().onWrite = Fault::Standard;
    QVERIFY_EXCEPTION_THROWN(feature->setData(1, value, Qt::EditRole), std::exception);
}

void tst_FeatureTreeINodeItem::pullsAValueIntoItsLimits_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QStringList>("writes");
    QTest::addColumn<bool>("delayed");
    const QStringList none;
    for (const bool delayed : {false, true}) {
        const char *how = delayed ? ", published later" : "";
        QTest::addRow("integer below%s", how)
            << "Integer 5" << 10.0 << 20.0 << QStringList(QStringLiteral("10")) << delayed;
        QTest::addRow("float above%s", how)
            << "Float 5" << 1.0 << 2.5 << QStringList(QStringLiteral("2.5")) << delayed;
        QTest::addRow("inside%s", how) << "Integer 5" << 5.0 << 20.0 << none << delayed;
        QTest::addRow("locked%s", how) << "Integer 5 ro" << 10.0 << 20.0 << none << delayed;
        QTest::addRow("contradiction%s", how) << "Integer 5" << 20.0 << 10.0 << none << delayed;
    }
}

void tst_FeatureTreeINodeItem::pullsAValueIntoItsLimits()
{
    QFETCH(QString, line);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(QStringList, writes);
    QFETCH(bool, delayed);
    const auto feature = describe(line);
    m_collection->setDelayed(delayed);
    QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
    node().minimum = minimum;
    node().maximum = maximum;
    node().publish();
    QTRY_COMPARE(updates.count(), 1);
    QCOMPARE(node().writes, writes);
    QCOMPARE(feature->parameterData()->valueText,
             writes.isEmpty() ? QStringLiteral("5") : writes.constFirst());
}

void tst_FeatureTreeINodeItem::givesUpRepairWhereTheDeviceInsists()
{
    const auto feature = describe(QStringLiteral("Integer 5"));
    QSignalSpy updates(feature.get(), &FeatureTreeINodeItem::nodeUpdated);
    node().onWrite = Fault::GenICam;
    node().minimum = 10.0;
    node().maximum = 20.0;
    node().publish();
    QCOMPARE(updates.count(), 1); // what the refused write published
    node().publish();
    QCOMPARE(updates.count(), 2);
    QCOMPARE(node().writes.size(), 1);

    // Other limits are another case.
    node().onWrite = Fault::None;
    node().minimum = 12.0;
    node().publish();
    QCOMPARE(node().writes.constLast(), QStringLiteral("12"));
}

void tst_FeatureTreeINodeItem::describesItselfInTheToolTip_data()
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
    QTest::newRow("blank search") << feature << "  "
                                  << "<nobr><b>Eff (F)</b></nobr><br><nobr>A tip</nobr>";
    QTest::newRow("search") << "name=xEFf"
                            << " ef "
                            << "<nobr><b>x<span style='background-color: #ffa700; "
                               "font-weight:bold'>EF</span>f</b></nobr>";
}

void tst_FeatureTreeINodeItem::describesItselfInTheToolTip()
{
    QFETCH(QString, line);
    QFETCH(QString, search);
    const auto feature = describe(line);
    feature->setSearchText(&search);
    QTEST(feature->data(0, Qt::ToolTipRole).toString(), "toolTip");
}

void tst_FeatureTreeINodeItem::neverComparesEqual()
{
    const auto feature = describe(QStringLiteral("Integer 1"));
    QVERIFY(feature->data(0, UniqueKeyRole) != feature->data(0, UniqueKeyRole));
}

QTEST_MAIN(tst_FeatureTreeINodeItem)
#include "tst_featuretreeinodeitem.moc"
