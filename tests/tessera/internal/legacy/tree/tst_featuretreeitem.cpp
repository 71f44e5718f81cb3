// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeitem.h"
#include "plugin/constants/itemroles.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QBrush>
#include <QFontMetricsF>
#include <QMap>
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
    void answersRoles_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("answer");
        const QString name = QStringLiteral("@A/Width");
        const auto height = static_cast<int>(QFontMetricsF(QApplication::font()).height() + 10.0);
        const auto row = [](const char *tag, int column, int role, const QVariant &answer) {
            QTest::newRow(tag) << column << role << answer;
        };
        row("text", 0, Qt::DisplayRole, QStringLiteral("Width"));
        row("size", 0, Qt::SizeHintRole, QSize(0, height));
        row("no value", 1, Qt::DisplayRole, QVariant());
        row("no edit value", 1, Qt::EditRole, QVariant());
        row("short name", 0, ShortNameRole, name);
        row("visibility", 1, VisibilityRole, 99);
        row("key", 0, UniqueKeyRole, qHash(name));
        row("available", 0, IsAvailableRole, false);
        row("depth", 0, DepthRole, 1);
        row("full name in column 2", 2, FullNameRole, name);
        row("hole in the numbers", 0, 263, QVariant());
    }

    void answersRoles()
    {
        QFETCH(int, column);
        QFETCH(int, role);
        FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
        FeatureTreeItem *item = add(root, "Width");
        item->setData(1, 1, Qt::EditRole); // is never edited
        QTEST(item->data(column, role), "answer");
        QCOMPARE(item->accessMode(), 1);
        QCOMPARE(int(item->flags(column)), column == 0 ? 45 : 32);
        QVERIFY(item->foreground().canConvert<QBrush>());
    }

    void knowsItsPlace()
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

    void findsAndOwnsItsChildren()
    {
        FeatureTreeItem root(QString(), nullptr, QString(), nullptr, 0);
        const QPointer<FeatureTreeItem> outer = add(root, "a");
        const QPointer<FeatureTreeItem> deep = add(*outer, "b");
        const FeatureTreeItem *later = add(root, "b");
        QCOMPARE(root.findByFullName(QStringLiteral("@A/b")), deep.data()); // depth first
        QCOMPARE(root.findByRole(DepthRole, 1), outer.data());
        QVERIFY(!root.findByFullName(QStringLiteral("@a/b")));
        QVERIFY(root.containsItem(deep));
        QVERIFY(!deep->containsItem(outer));
        delete later;
        QCOMPARE(root.childCount(), 1);
        root.clear();
        QVERIFY(!outer && !deep && !root.hasChildren());
    }

    void cutsTheTreeFromThePath()
    {
        const QMap<QString, QString> relativePaths {
            {QStringLiteral("@CameraDevice/Width"), QStringLiteral("Width")},
            {QStringLiteral("@CameraDevice/Gain/Alias"), QStringLiteral("Gain/Alias")},
            {QStringLiteral("@CameraDevice*Root"), QStringLiteral("Root")},
            {QStringLiteral("@A*ROOT"), QStringLiteral("ROOT")},
            {QStringLiteral("Width"), QStringLiteral("Width")},
        };
        for (auto path = relativePaths.cbegin(); path != relativePaths.cend(); ++path) {
            const FeatureTreeItem item(QString(), nullptr, path.key(), nullptr, 1);
            QCOMPARE(item.relativePath().toString(), path.value());
        }
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeItem)
#include "tst_featuretreeitem.moc"
