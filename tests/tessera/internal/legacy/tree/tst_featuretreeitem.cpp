// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeitem.h"
#include "plugin/constants/itemroles.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QPointer>
#include <QSize>
#include <QTest>

namespace {

FeatureTreeItem *add(FeatureTreeItem &parent, const char *name)
{
    const QString text = QString::fromLatin1(name);
    auto *item = new FeatureTreeItem(text, nullptr, QStringLiteral("@A/") + text, nullptr,
                                     parent.depth() + 1);
    parent.appendChild(item);
    return item;
}

} // namespace

class tst_FeatureTreeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }
    void cleanup()
    {
        m_guard.verify();
    }
    void answersRoles_data();
    void answersRoles();
    void isNeverEdited();
    void knowsItsPlace();
    void findsItemsDepthFirst();
    void ownsItsChildren();
    void cutsTheTreeFromThePath_data();
    void cutsTheTreeFromThePath();

private:
    Tests::WarningGuard m_guard;
};

void tst_FeatureTreeItem::answersRoles_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("answer");
    const QString name = QStringLiteral("@A/Width");
    const auto height = static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10.0);
    QTest::newRow("text") << 0 << int(Qt::DisplayRole) << QVariant(QStringLiteral("Width"));
    QTest::newRow("size") << 0 << int(Qt::SizeHintRole) << QVariant(QSize(0, height));
    QTest::newRow("no value") << 1 << int(Qt::DisplayRole) << QVariant();
    QTest::newRow("no edit value") << 1 << int(Qt::EditRole) << QVariant();
    QTest::newRow("tool tip") << 0 << int(Qt::ToolTipRole) << QVariant(QString());
    QTest::newRow("short name") << 0 << int(ShortNameRole) << QVariant(name);
    QTest::newRow("description") << 0 << int(DescriptionRole) << QVariant();
    QTest::newRow("visibility") << 1 << int(VisibilityRole) << QVariant(99);
    QTest::newRow("key") << 0 << int(UniqueKeyRole) << QVariant(qHash(name));
    QTest::newRow("available") << 0 << int(IsAvailableRole) << QVariant(false);
    QTest::newRow("depth") << 0 << int(DepthRole) << QVariant(1);
    QTest::newRow("full name in column 2") << 2 << int(FullNameRole) << QVariant(name);
    QTest::newRow("hole in the numbers") << 0 << 263 << QVariant();
}

void tst_FeatureTreeItem::answersRoles()
{
    QFETCH(int, column);
    QFETCH(int, role);
    FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
    QTEST(add(root, "Width")->data(column, role), "answer");
}

void tst_FeatureTreeItem::isNeverEdited()
{
    FeatureTreeItem item(QStringLiteral("x"), nullptr, QString(), nullptr, 0);
    QCOMPARE(item.accessMode(), 1);
    QCOMPARE(int(item.flags(0)), 45);
    QCOMPARE(int(item.flags(1)), 32);
    QCOMPARE(int(item.flags(2)), 32);
    item.setData(1, 1, Qt::EditRole);
    QVERIFY(!item.data(1, Qt::EditRole).isValid());
    QVERIFY(item.foreground().canConvert<QBrush>());
}

void tst_FeatureTreeItem::knowsItsPlace()
{
    FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
    FeatureTreeItem *first = add(root, "a");
    FeatureTreeItem *second = add(root, "b");
    QCOMPARE(root.row(), 0);
    QCOMPARE(second->row(), 1);
    QVERIFY(!root.child(-1));
    QVERIFY(!root.child(2));
    QVERIFY(!root.takeChild(2));

    const QScopedPointer<FeatureTreeItem> taken(root.takeChild(0));
    QCOMPARE(taken.data(), first);
    QVERIFY(!first->parent());
    QCOMPARE(second->row(), 0);
    root.insertChild(new FeatureTreeItem(QString(), nullptr, QString(), nullptr, 1), 0);
    QCOMPARE(second->row(), 1);
    root.removeChild(0);
    QCOMPARE(second->row(), 0);
}

void tst_FeatureTreeItem::findsItemsDepthFirst()
{
    FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
    FeatureTreeItem *outer = add(root, "a");
    FeatureTreeItem *deep = add(*outer, "b");
    add(root, "b");
    QCOMPARE(root.findByFullName(QStringLiteral("@A/b")), deep);
    QCOMPARE(root.findByRole(DepthRole, 1), outer);
    QVERIFY(!root.findByFullName(QStringLiteral("@a/b")));
    QVERIFY(root.containsItem(deep));
    QVERIFY(!deep->containsItem(outer));
}

void tst_FeatureTreeItem::ownsItsChildren()
{
    FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
    const QPointer<FeatureTreeItem> a = add(root, "a");
    const QPointer<FeatureTreeItem> b = add(*a, "b");
    const QPointer<FeatureTreeItem> c = add(root, "c");
    delete c.data();
    QCOMPARE(root.childCount(), 1);
    root.clear();
    QVERIFY(!a);
    QVERIFY(!b);
    QVERIFY(!root.hasChildren());
}

void tst_FeatureTreeItem::cutsTheTreeFromThePath_data()
{
    QTest::addColumn<QString>("fullName");
    QTest::addColumn<QString>("relative");
    QTest::newRow("feature") << "@CameraDevice/Width"
                             << "Width";
    QTest::newRow("alias") << "@CameraDevice/Gain/Alias"
                           << "Gain/Alias";
    QTest::newRow("top") << "@CameraDevice*Root"
                         << "Root";
    QTest::newRow("top in capitals") << "@A*ROOT"
                                     << "ROOT";
    QTest::newRow("bare") << "Width"
                          << "Width";
}

void tst_FeatureTreeItem::cutsTheTreeFromThePath()
{
    QFETCH(QString, fullName);
    const FeatureTreeItem item(QString(), nullptr, fullName, nullptr, 1);
    QTEST(item.relativePath(), "relative");
}

QTEST_MAIN(tst_FeatureTreeItem)
#include "tst_featuretreeitem.moc"
