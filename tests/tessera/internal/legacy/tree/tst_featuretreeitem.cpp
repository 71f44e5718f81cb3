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

private:
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeItem)
#include "tst_featuretreeitem.moc"
