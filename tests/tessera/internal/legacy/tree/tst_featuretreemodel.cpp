// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "internal/legacy/tree/featuretreemodel.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "plugin/constants/itemroles.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "support/fakecollection.h"
#include "support/modeltester.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using Core::Logging::ELogLevel;
using Tests::Fault;
using Tests::findRow;
using Tests::treeText;

namespace {

const QString path = QStringLiteral("@CameraDevice");
const QString category = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeModel");

QRegularExpression logged(const QString &text)
{
    return QRegularExpression(QStringLiteral("^featuretreemodel \\d+ %1$").arg(text));
}

class ThrowingItem final : public FeatureTreeItem
{
public:
    using FeatureTreeItem::FeatureTreeItem;
    QVariant data(int column, int role) const override
    {
        Tests::raise(isBroken ? Fault::Host : Fault::None);
        return FeatureTreeItem::data(column, role);
    }
    bool isBroken = true;
};

} // namespace

class tst_FeatureTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
        m_guard.verify();
    }
    void listsCategoriesOrTheWholeTree();
    void loadsOnDemand();
    void survivesACategoryThatHoldsItself();
    void logsATreeThatCannotBeRead_data();
    void logsATreeThatCannotBeRead();
    void skipsWhatCannotBeLoaded_data();
    void skipsWhatCannotBeLoaded();
    void writesThroughToTheParameter_data();
    void writesThroughToTheParameter();
    void keepsTheOldValueWhenAWriteFails();
    void refusesEditsAndUpdatesWhileInactive();
    void announcesAnUpdateForTheNameAlone();
    void logsTheFirstOfManyFailedReads();
    void pollsTheFirstCollection();
    void updatesNodes();
    void findsItems();
    void marksMatchesAndTheCategoriesAbove_data();
    void marksMatchesAndTheCategoriesAbove();
    void marksTheFeaturesOfAUseCase();
    void dragsTheFirstPath();
    void keepsItsCollectionsWhenCleared();

private:
    QModelIndex row(const char *name, int column = 0) const
    {
        return findRow(*m_model, QString::fromLatin1(name), column);
    }
    FeatureTreeItem *item(const char *name) const
    {
        return m_model->itemFromIndex(row(name));
    }
    Tests::FakeNode &node(const char *name) const
    {
        return m_collection->node(path + QLatin1Char('/') + QLatin1String(name));
    }
    void add()
    {
        m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), path, true);
    }

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model;
    std::unique_ptr<Tests::ModelTester> m_tester;
    Tests::WarningGuard m_guard;
};

void tst_FeatureTreeModel::init()
{
    m_guard.begin();
    m_collection = QSharedPointer<Tests::FakeCollection>::create();
    m_collection->attach(path,
                         QStringLiteral("Image\n"
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

void tst_FeatureTreeModel::listsCategoriesOrTheWholeTree()
{
    add();
    // Two levels of categories; what is below joins the second one, deepest first.
    const QString flat = QStringLiteral("Camera\n"
                                        "  Image\n"
                                        "    Deepest: <not available>\n"
                                        "    OffsetX: <not available>\n"
                                        "    Width: <not available>\n"
                                        "    Height: <not available>\n"
                                        "  Gain [dB]: <not available>\n"
                                        "  Shy: <not available>\n");
    QCOMPARE(treeText(*m_model), flat);
    m_model->setShowTreeView(true);
    QCOMPARE(treeText(*m_model),
             QStringLiteral("Camera\n"
                            "  Image\n"
                            "    Width: <not available>\n"
                            "    Offsets\n"
                            "      OffsetX: <not available>\n"
                            "      Deep\n"
                            "        Deepest: <not available>\n"
                            "    Height: <not available>\n"
                            "  Gain [dB]: <not available>\n"
                            "  Shy: <not available>\n"));
    m_model->setShowTreeView(false);
    QCOMPARE(treeText(*m_model), flat);
    QCOMPARE(m_model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Category"));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Value"));
}

void tst_FeatureTreeModel::loadsOnDemand()
{
    const FeatureTreeModel model;
    FeatureTreeModel bare;
    bare.addParameterCollection(m_collection, QStringLiteral("Camera"), path, true);
    const QModelIndex image = bare.index(0, 0, bare.index(0, 0));
    QSignalSpy inserted(&bare, &QAbstractItemModel::rowsInserted);
    QVERIFY(!bare.itemFromIndex(image)->child(0));
    QVERIFY(bare.hasChildren(image));
    QVERIFY(bare.itemFromIndex(image)->child(0));
    QVERIFY(!inserted.isEmpty());
    const int inserts = inserted.count();
    QCOMPARE(bare.rowCount(image), 4);
    QCOMPARE(inserted.count(), inserts);
    QVERIFY(!node("Width").isSubscribed());
    QCOMPARE(node("Width").refreshes, 0);
    QVERIFY(!bare.hasChildren(image.siblingAtColumn(1)));
    QCOMPARE(bare.rowCount(image.siblingAtColumn(1)), 0);
    QVERIFY(!bare.index(0, 0, image.siblingAtColumn(1)).isValid());
}

void tst_FeatureTreeModel::survivesACategoryThatHoldsItself()
{
    node("Deep").children.append(path + QLatin1String("/Image"));
    node("Offsets").children.append(path + QLatin1String("/Offsets"));
    add();
    QVERIFY(!treeText(*m_model).isEmpty());
    m_model->setShowTreeView(true);
    QCOMPARE(treeText(*m_model).count(QLatin1String("Image")), 1);
}

void tst_FeatureTreeModel::logsATreeThatCannotBeRead_data()
{
    Tests::addFaultRows();
    QTest::newRow("null object") << Fault::None;
}

void tst_FeatureTreeModel::logsATreeThatCannotBeRead()
{
    QFETCH(Tests::Fault, fault);
    m_collection->onParameter.insert(path + QLatin1String("/Root"), fault);
    node("Root").isNull = fault == Fault::None;
    m_guard.expectLogEntry(
        ELogLevel::Fault, category,
        logged(QStringLiteral("could not retrieve @CameraDevice /Root from camera node map")));
    add();
    QCOMPARE(m_model->rowCount(), 0);

    m_collection->onParameter.clear();
    node("Root").isNull = false;
    m_model->setShowTreeView(true);
    QCOMPARE(m_model->rowCount(), 1);
}

void tst_FeatureTreeModel::skipsWhatCannotBeLoaded_data()
{
    Tests::addFaultRows();
}

void tst_FeatureTreeModel::skipsWhatCannotBeLoaded()
{
    QFETCH(Tests::Fault, fault);
    m_collection->onParameter.insert(path + QLatin1String("/Gain"), fault);
    m_collection->onChildren.insert(path + QLatin1String("/Image"), fault);
    m_guard.expectLogEntry(ELogLevel::Fault, category,
                           logged(QStringLiteral("could not retrieve @CameraDevice/Gain")));
    m_guard.expectLogEntry(
        ELogLevel::Fault, category,
        logged(QStringLiteral("could not retrieve the children of @CameraDevice/Image")));
    add();
    QCOMPARE(treeText(*m_model), QStringLiteral("Camera\n  Image\n  Shy: <not available>\n"));
}

void tst_FeatureTreeModel::writesThroughToTheParameter_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QStringList>("writes");
    const QStringList none;
    QTest::newRow("new value") << QVariant(QStringLiteral("800")) << 1 << int(Qt::EditRole) << true
                               << QStringList(QStringLiteral("800"));
    QTest::newRow("unchanged") << QVariant(QStringLiteral("640")) << 1 << int(Qt::EditRole) << true
                               << none;
    QTest::newRow("unchanged number") << QVariant(640.0) << 1 << int(Qt::EditRole) << true << none;
    QTest::newRow("name") << QVariant(QStringLiteral("800")) << 0 << int(Qt::EditRole) << false
                          << none;
    QTest::newRow("other role") << QVariant(QStringLiteral("800")) << 1 << int(Qt::DisplayRole)
                                << false << none;
    QTest::newRow("no value") << QVariant() << 1 << int(Qt::EditRole) << false << none;
}

void tst_FeatureTreeModel::writesThroughToTheParameter()
{
    QFETCH(QVariant, value);
    QFETCH(int, column);
    QFETCH(int, role);
    add();
    auto *width = qobject_cast<FeatureTreeINodeItem *>(item("Width"));
    width->subscribe();
    width->requestRefresh();
    QTEST(m_model->setData(row("Width", column), value, role), "accepted");
    QTEST(node("Width").writes, "writes");
}

void tst_FeatureTreeModel::keepsTheOldValueWhenAWriteFails()
{
    add();
    auto *width = qobject_cast<FeatureTreeINodeItem *>(item("Width"));
    width->subscribe();
    width->requestRefresh();
    m_guard.expectLogEntry(ELogLevel::Fault, category,
                           logged(QStringLiteral("Failed to set a feature value\\.")));
    QVERIFY(!m_model->setData(row("Width", 1), QStringLiteral("5000")));
    QCOMPARE(row("Width", 1).data().toString(), QStringLiteral("640"));
}

void tst_FeatureTreeModel::refusesEditsAndUpdatesWhileInactive()
{
    add();
    auto *width = qobject_cast<FeatureTreeINodeItem *>(item("Width"));
    width->subscribe();
    m_model->setActive(false);
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    node("Width").publish();
    QVERIFY(changed.isEmpty());
    QVERIFY(!m_model->setData(row("Width", 1), QStringLiteral("800")));
    QVERIFY(node("Width").writes.isEmpty());
}

void tst_FeatureTreeModel::announcesAnUpdateForTheNameAlone()
{
    add();
    auto *height = qobject_cast<FeatureTreeINodeItem *>(item("Height"));
    height->subscribe();
    QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
    node("Height").number = 500.0;
    node("Height").publish();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.value(0).value(0).toModelIndex(), row("Height"));
    QCOMPARE(changed.value(0).value(1).toModelIndex(), row("Height"));
    QCOMPARE(row("Height", 1).data().toString(), QStringLiteral("500"));

    changed.clear();
    m_model->refreshAll();
    QCOMPARE(changed.count(), 8); // each loaded row of three levels
}

void tst_FeatureTreeModel::logsTheFirstOfManyFailedReads()
{
    add();
    FeatureTreeItem *image = item("Image");
    auto *broken = new ThrowingItem(QStringLiteral("x"), m_model.get(), QString(), nullptr, 3);
    image->appendChild(broken);
    const QModelIndex index = m_model->createItemIndex(broken, 0);
    for (int run = 0; run < 2; ++run) {
        broken->isBroken = true;
        m_guard.expectLogEntry(ELogLevel::Fault, category,
                               logged(QStringLiteral("Failed to get a feature value")));
        QVERIFY(!index.data().isValid());
        QVERIFY(!index.data().isValid());
        broken->isBroken = false;
        QCOMPARE(index.data().toString(), QStringLiteral("x"));
    }
    image->removeChild(broken->row());
}

void tst_FeatureTreeModel::pollsTheFirstCollection()
{
    const auto second = QSharedPointer<Tests::FakeCollection>::create();
    second->attach(path, QString());
    add();
    m_model->addParameterCollection(second, QStringLiteral("Second"), path, true);
    auto *timer = m_model->findChild<QTimer *>();
    QVERIFY(!timer->isActive());

    m_model->setPolling(true);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 300);
    m_collection->onUpdate = Fault::Unknown; // dropped
    timer->stop();
    m_model->onTimerPoll();
    QCOMPARE(m_collection->polls, QVector<int>(1, 300));
    QVERIFY(second->polls.isEmpty());
    QVERIFY(timer->isActive());

    m_collection->onUpdate = Fault::None;
    m_model->setPollByInvalidation(true);
    m_model->onTimerPoll();
    QCOMPARE(m_collection->batchUpdates, 1);
    QCOMPARE(m_collection->polls.size(), 1);

    timer->stop();
    m_model->setPolling(false);
    m_model->onTimerPoll();
    QVERIFY(!timer->isActive());

    m_model->setPolling(true);
    timer->stop();
    m_model->setActive(false);
    m_model->onTimerPoll();
    QVERIFY(!timer->isActive());
}

void tst_FeatureTreeModel::updatesNodes()
{
    m_model->pollNodes({});
    add();
    m_model->pollNodes({});
    QCOMPARE(m_collection->batchUpdates, 1);
    m_model->pollNodes({path + QLatin1String("/Width"), path + QLatin1String("/Nothing")});
    QCOMPARE(node("Width").invalidations, 1);
    QCOMPARE(m_collection->batchUpdates, 1);
    m_collection->onUpdate = Fault::GenICam;
    m_guard.expectLogEntry(ELogLevel::Fault, category,
                           logged(QStringLiteral("Failed to update nodes\\. Message: fault")));
    m_model->pollNodes({});
}

void tst_FeatureTreeModel::findsItems()
{
    add();
    const QString deepest = path + QLatin1String("/Deepest");
    QCOMPARE(m_model->indexOfName(deepest, nullptr, 1), row("Deepest", 1));
    QCOMPARE(m_model->indexOfItem(item("Deepest"), item("Image"), 0), row("Deepest"));
    QVERIFY(!m_model->indexOfItem(item("Gain [dB]"), item("Image"), 0).isValid());
    QVERIFY(!m_model->indexOfName(QString(), nullptr, 0).isValid());
    QCOMPARE(m_model->indexOfRoleValue(ShortNameRole, QStringLiteral("Gain"), nullptr, 0),
             row("Gain [dB]"));

    QStringList names {path + QLatin1String("/Gain"), QStringLiteral("@X/Y"), deepest};
    const QList<FeatureTreeItem *> found = m_model->itemsForNames(names);
    QCOMPARE(found, (QList<FeatureTreeItem *> {item("Deepest"), item("Gain [dB]")}));
    QCOMPARE(names, QStringList(QStringLiteral("@X/Y")));
}

void tst_FeatureTreeModel::marksMatchesAndTheCategoriesAbove_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("marked");
    QTest::newRow("text") << " offsetx "
                          << "Camera,Image,OffsetX";
    QTest::newRow("category itself") << "IMAGE"
                                     << "Camera,Image";
    QTest::newRow("invisible") << "Shy"
                               << "";
    QTest::newRow("nothing") << "zzz"
                             << "";
    QTest::newRow("blank") << "  "
                           << "";
}

void tst_FeatureTreeModel::marksMatchesAndTheCategoriesAbove()
{
    QFETCH(QString, search);
    add();
    m_model->markSearchMatches(QStringLiteral("Height"));
    QVERIFY(item("Height")->data(0, IsSearchMatchRole).toBool());
    m_model->markSearchMatches(search);
    QStringList marked;
    for (const char *name : {"Camera", "Image", "Deepest", "OffsetX", "Width", "Height", "Shy"}) {
        if (item(name)->data(0, IsSearchMatchRole).toBool()) {
            marked.append(QString::fromLatin1(name));
        }
    }
    QTEST(marked.join(QLatin1Char(',')), "marked");
    QCOMPARE(m_model->markSearchBelow(item("Image"), search),
             marked.contains(QLatin1String("Image")));
}

void tst_FeatureTreeModel::marksTheFeaturesOfAUseCase()
{
    add();
    m_model->markFavorites({QStringLiteral("@cameradevice/WIDTH")});
    QVERIFY(item("Width")->data(0, IsFavoriteMatchRole).toBool());
    QVERIFY(item("Camera")->data(0, IsFavoriteMatchRole).toBool());
    QVERIFY(!item("Height")->data(0, IsFavoriteMatchRole).toBool());
    m_model->markFavorites({});
    QVERIFY(!item("Camera")->data(0, IsFavoriteMatchRole).toBool());
}

void tst_FeatureTreeModel::dragsTheFirstPath()
{
    add();
    const std::unique_ptr<QMimeData> payload(m_model->mimeData({row("Width"), row("Height")}));
    QCOMPARE(payload->data(QStringLiteral("text/plain")), QByteArray("@CameraDevice/Width"));
    QVERIFY(!m_model->mimeData({}));
    QCOMPARE(int(m_model->supportedDropActions()), int(Qt::MoveAction));
}

void tst_FeatureTreeModel::keepsItsCollectionsWhenCleared()
{
    add();
    QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
    m_tester.reset(); // nobody shows a model that is cleared
    m_model->clear();
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(reset.isEmpty());
    m_model->setShowTreeView(true);
    QCOMPARE(m_model->rowCount(), 1);
}

QTEST_MAIN(tst_FeatureTreeModel)
#include "tst_featuretreemodel.moc"
