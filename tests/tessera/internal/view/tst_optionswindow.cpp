// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/optionswindow.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "internal/view/featureoptionsmenu.h"
#include "tessera/featuretest.h"

#include <QQuickView>
#include <QSignalSpy>

#include <memory>

using namespace Plugin::Tessera::Internal::View;

namespace {

QQuickItem *find(QQuickItem *item, const char *name)
{
    if (item->objectName() == QLatin1String(name)) {
        return item;
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = find(child, name)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

class tst_OptionsWindow : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerOptionsWindowTypes();
    }

    void keepsAWorkingCopyBesideTheSavedState()
    {
        const auto state = [this] {
            QString text = m_menu->userTabNames().at(0) + QLatin1Char('=');
            const auto list = m_menu->featureNameList(0);
            for (const ParameterCollection::ParameterName &name : list) {
                text += name.toString();
            }
            return text;
        };
        const QString a = QStringLiteral("A");
        const QString b = QStringLiteral("B");
        m_menu->setUserTabName(0, QStringLiteral("old"));
        m_menu->onAddFeature(0, a);
        m_menu->onAddFeature(0, b);
        m_menu->onAddFeature(0, a); // is there
        m_menu->setFeatureNameList(0, m_menu->featureNameList(0)); // confirmed
        m_menu->onNameChanged(0, QStringLiteral("new"));
        m_menu->onRemoveFeature(0, a);
        QCOMPARE(state(), QStringLiteral("new=B"));
        m_menu->onRemove(0);
        QCOMPARE(state(), QStringLiteral("="));
        m_menu->revertChanges();
        QCOMPARE(state(), QStringLiteral("old=AB"));
        m_menu->setParameterCollection({});
        m_menu->onRemoveFeature(0, a);
        m_menu->onRemove(4); // no such tab
        QCOMPARE(state(), QStringLiteral("old=AB"));
        m_menu->setUserTabName(0, QString());
        m_menu->setUserTabName(2, QStringLiteral("c"));
        m_menu->selectFirstNamedTab();
        QCOMPARE(m_menu->userTabIndex(), 2);
    }

    void confirmsOrCancels()
    {
        show();
        const QMetaObject *type = m_menu->metaObject();
        const QSignalSpy adds(m_menu, type->method(type->indexOfSignal("add()")));
        const QSignalSpy cancels(m_menu, type->method(type->indexOfSignal("cancel()")));
        press(Qt::Key_A);
        press(Qt::Key_Escape);
        click(m_menu->findChild<QQuickItem *>(QStringLiteral("cancelButton")));
        QCOMPARE(cancels.size(), 2);
        m_menu->revertChanges();
        QVERIFY(field(0)->property("text").toString().isEmpty());
        click(m_menu->findChild<QQuickItem *>(QStringLiteral("addButton")));
        QCOMPARE(adds.size(), 1);
        m_menu->setUserTabIndex(-1); // no tab: nothing to confirm
        click(m_menu->findChild<QQuickItem *>(QStringLiteral("addButton")));
        QCOMPARE(adds.size(), 1);
        QCOMPARE(cancels.size(), 3);
    }

private:
    void prepare() override
    {
        m_window.reset(createOptionsWindow());
        m_menu = qobject_cast<CFeatureOptionsMenu *>(m_window->rootObject());
        QVERIFY(m_menu);
        m_menu->setParameterCollection(m_collection);
        // By name, as the signals are the scene's.
        const QMetaObject *type = m_menu->metaObject();
        for (const char *signal : {"nameChanged(int,QString)", "addFeature(int,QString)",
                                   "removeFeature(int,QString)", "remove(int)"}) {
            QByteArray slot(signal);
            slot.replace(0, 1, "on" + slot.left(1).toUpper());
            QVERIFY(QMetaObject::connect(m_menu, type->indexOfSignal(signal), m_menu,
                                         type->indexOfSlot(slot.constData())));
        }
    }
    void release() override
    {
        m_window.reset();
    }
    void show(const QStringList &features = {})
    {
        m_menu->selectFirstNamedTab();
        for (const QString &feature : features) {
            m_menu->onAddFeature(0, feature);
        }
        m_window->show();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(row(3));
    }

    QQuickItem *row(int tab) const
    {
        return find(m_menu, qPrintable(QStringLiteral("editTabName%1").arg(tab)));
    }

    QQuickItem *field(int tab) const
    {
        return find(row(tab), "textField");
    }

    void click(QQuickItem *item)
    {
        const QPointF middle = item->mapToScene(item->boundingRect().center());
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
    }

    void press(Qt::Key key)
    {
        QTest::keyClick(m_window.get(), key);
    }

    std::unique_ptr<QQuickView> m_window;
    CFeatureOptionsMenu *m_menu = nullptr; // owned by the window
};

QTEST_MAIN(tst_OptionsWindow)
#include "tst_optionswindow.moc"
