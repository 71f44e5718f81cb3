// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/optionswindow.h"

#include "internal/view/featureoptionsmenu.h"
#include "internal/view/standardiconprovider.h"
#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Plugin::Tessera::Internal::View;

namespace {

QQuickItem *find(QQuickItem *item, const QString &name)
{
    if (item->objectName() == name) {
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

QList<QQuickItem *> controlsOf(QQuickItem *item)
{
    QList<QQuickItem *> controls;
    if (item->isVisible() && item->activeFocusOnTab()) {
        controls.append(item);
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children) {
        controls += controlsOf(child);
    }
    return controls;
}

} // namespace

class tst_OptionsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerOptionsWindowTypes();
    }

    void init()
    {
        m_guard.begin();
        m_window.reset(createOptionsWindow());
        m_menu = qobject_cast<CFeatureOptionsMenu *>(m_window->rootObject());
        QVERIFY(m_menu);
        m_menu->setParameterCollection(QSharedPointer<Tests::FakeCollection>::create());
        // By signature, as the signals are the scene's.
        connect(m_menu, SIGNAL(nameChanged(int, QString)), m_menu,
                SLOT(onNameChanged(int, QString)));
        connect(m_menu, SIGNAL(addFeature(int, QString)), m_menu, SLOT(onAddFeature(int, QString)));
        connect(m_menu, SIGNAL(removeFeature(int, QString)), m_menu,
                SLOT(onRemoveFeature(int, QString)));
        connect(m_menu, SIGNAL(remove(int)), m_menu, SLOT(onRemove(int)));
    }

    void cleanup()
    {
        m_window.reset();
        m_guard.verify();
    }

    void isAToolWindowOfTheScreensSize()
    {
        QVERIFY(!m_window->isVisible());
        QCOMPARE(m_window->flags(), Qt::WindowFlags(0x0204100B));
        QCOMPARE(m_window->title(), QStringLiteral(" "));
        const double factor = m_window->screen()->logicalDotsPerInch() / 96.0;
        QCOMPARE(m_window->size(), QSize(int(factor * 350), int(factor * 440)));
        QCOMPARE(m_window->minimumSize(), m_window->size());
        QCOMPARE(optionsWindowSize(100.0), QSize(364, 458));
        QCOMPARE(m_menu->objectName(), QStringLiteral("_optionsMenu"));
        show();
        m_window->resize(m_window->size() * 2);
        QTRY_COMPARE(m_menu->size().toSize(), m_window->size());
    }

    void everyControlHasAName()
    {
        show({QStringLiteral("Gain"), QStringLiteral("Width")});
        const QList<QQuickItem *> controls = controlsOf(m_menu);
        QStringList names;
        for (QQuickItem *control : controls) {
            names.append(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name));
        }
        QCOMPARE(names.size(), 4 * 2 + 2 + 2);
        QVERIFY(!names.contains(QString()));
        QCOMPARE(names.removeDuplicates(), 0);
    }

    void namesATabAndSelectsAnother()
    {
        show();
        type(QStringLiteral("ab"));
        QVERIFY(m_menu->userTabNames().at(0).isEmpty());
        click(row(2));
        QCOMPARE(m_menu->userTabIndex(), 2);
        QCOMPARE(m_menu->userTabNames().at(0), QStringLiteral("ab"));
        QVERIFY(field(2)->hasActiveFocus());
        type(QStringLiteral("c"));
        QTest::keyClick(m_window.get(), Qt::Key_Return);
        QCOMPARE(m_menu->userTabNames().at(2), QStringLiteral("c"));
        QCOMPARE(m_menu->userTabIndex(), 2);
        QTest::keyClick(m_window.get(), Qt::Key_Up);
        QCOMPARE(m_menu->userTabIndex(), 1);
        QVERIFY(field(1)->hasActiveFocus());

        m_menu->setUserTabName(0, QStringLiteral("from outside"));
        QCOMPARE(field(0)->property("text").toString(), QStringLiteral("from outside"));
    }

    void deletesATabOnceItIsSelected()
    {
        show({QStringLiteral("Gain")});
        m_menu->setUserTabName(1, QStringLiteral("tab"));
        click(find(row(1), QStringLiteral("deleteButton")));
        QCOMPARE(m_menu->userTabIndex(), 1);
        QCOMPARE(m_menu->userTabNames().at(1), QStringLiteral("tab"));
        click(find(row(1), QStringLiteral("deleteButton")));
        QVERIFY(m_menu->userTabNames().at(1).isEmpty());
        QVERIFY(field(1)->property("text").toString().isEmpty());
        QCOMPARE(m_menu->userTabIndex(), 1);
        QCOMPARE(m_menu->featureNameList(0).size(), 1);
    }

    void walksAllControlsByKey()
    {
        show({QStringLiteral("Gain"), QStringLiteral("Width")});
        type(QStringLiteral("x"));
        QStringList walked;
        for (int i = 0; i < 12; ++i) {
            QTest::keyClick(m_window.get(), Qt::Key_Tab);
            const QQuickItem *item = m_window->activeFocusItem();
            walked.append(item->objectName());
        }
        const QString field = QStringLiteral("textField");
        const QString trash = QStringLiteral("deleteButton");
        const QString chip = QStringLiteral("removeButton");
        QCOMPARE(walked,
                 QStringList({trash, field, trash, field, trash, field, trash, chip, chip,
                              QStringLiteral("addButton"), QStringLiteral("cancelButton"), field}));
        QCOMPARE(m_menu->userTabNames().at(0), QStringLiteral("x"));
        QCOMPARE(m_menu->userTabIndex(), 0);
    }

    void confirmsOrCancels_data()
    {
        QTest::addColumn<int>("userTabIndex");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("signal");
        QTest::newRow("OK") << 3 << QStringLiteral("addButton") << QByteArray(SIGNAL(add()));
        QTest::newRow("OK without a tab")
            << -1 << QStringLiteral("addButton") << QByteArray(SIGNAL(cancel()));
        QTest::newRow("Cancel") << 3 << QStringLiteral("cancelButton")
                                << QByteArray(SIGNAL(cancel()));
        QTest::newRow("Escape") << 0 << QString() << QByteArray(SIGNAL(cancel()));
    }

    void confirmsOrCancels()
    {
        QFETCH(int, userTabIndex);
        QFETCH(QString, button);
        QFETCH(QByteArray, signal);
        show();
        m_menu->setUserTabIndex(userTabIndex);
        const QSignalSpy adds(m_menu, SIGNAL(add()));
        const QSignalSpy cancels(m_menu, SIGNAL(cancel()));
        if (button.isEmpty()) {
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
        } else {
            click(find(m_menu, button));
        }
        QCOMPARE(adds.size(), signal == SIGNAL(add()) ? 1 : 0);
        QCOMPARE(cancels.size(), signal == SIGNAL(cancel()) ? 1 : 0);
    }

    void showsTheFeaturesOfTheTab()
    {
        QQuickItem *view = find(m_menu, QStringLiteral("scrollView"));
        show();
        QVERIFY(!view->isVisible());
        QStringList many;
        for (int i = 0; i < 60; ++i) {
            many.append(QStringLiteral("Feature%1").arg(i));
        }
        setFeatures(many);
        QTRY_COMPARE(int(view->height()), int(m_menu->height()) / 8);
        // By key the last one is reached, scrolled into view, and taken out.
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(m_window.get(), Qt::Key_Backtab);
        }
        QQuickItem *chip = find(view, QStringLiteral("feature59"));
        QVERIFY(find(chip, QStringLiteral("removeButton"))->hasActiveFocus());
        const QRectF seen = chip->mapRectToItem(view, chip->boundingRect());
        QVERIFY(view->boundingRect().contains(seen));
        QTest::keyClick(m_window.get(), Qt::Key_Space);
        QCOMPARE(m_menu->featureNameList(0).size(), 59);
        QVERIFY(find(find(view, QStringLiteral("feature58")), QStringLiteral("removeButton"))
                    ->hasActiveFocus());
        setFeatures({QStringLiteral("Gain")});
        click(find(view, QStringLiteral("removeButton")));
        QVERIFY(m_menu->featureNameList(0).isEmpty());
        QVERIFY(field(0)->hasActiveFocus());
        QVERIFY(!view->isVisible());
    }

    void takesFeaturesFromOurTablesOnly_data()
    {
        QTest::addColumn<int>("userTabIndex");
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("taken");
        const QString table = QStringLiteral("tesseraTableView");
        QTest::newRow("our table") << 1 << table << true;
        QTest::newRow("no tab") << -1 << table << false;
        QTest::newRow("our tree") << 1 << QStringLiteral("treeView") << false;
        QTest::newRow("another application") << 1 << QString() << false;
    }

    void takesFeaturesFromOurTablesOnly()
    {
        QFETCH(int, userTabIndex);
        QFETCH(QString, source);
        QFETCH(bool, taken);
        show();
        m_menu->setUserTabIndex(userTabIndex);
        QQuickItem *area = find(m_menu, QStringLiteral("dragAndDrop"));
        const QPointF middle = area->mapToItem(m_menu, area->boundingRect().center());
        bool hovers = false;
        if (source.isEmpty()) {
            hovers = dropFromOutside(middle.toPoint(), area);
        } else {
            std::unique_ptr<QQuickItem> dragged(makeDragged());
            dragged->setObjectName(source);
            dragged->setPosition(middle);
            QMetaObject::invokeMethod(dragged.get(), "drag");
            hovers = area->property("containsDrag").toBool();
            QMetaObject::invokeMethod(dragged.get(), "drop");
        }
        QCOMPARE(hovers, taken);
        QCOMPARE(m_menu->featureNameList(1).size(), taken ? 1 : 0);
    }

    void drawsTheIconsOfTheStyle()
    {
        CStandardIconProvider provider;
        const auto picture = [&](const char *id, const QSize &requested) {
            QSize size;
            const QPixmap pixmap = provider.requestPixmap(QLatin1String(id), &size, requested);
            return size == pixmap.size() ? pixmap.toImage() : QImage();
        };
        QVERIFY(!picture("SP_TitleBarCloseButton", {10, 10}).allGray());
        QVERIFY(!picture("SP_TitleBarCloseButton", {-1, -1}).isNull());
        QImage nothing(8, 4, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        QCOMPARE(picture("SP_DialogOkButton", {8, 4}).convertToFormat(nothing.format()), nothing);
    }

private:
    void show(const QStringList &features = {})
    {
        m_menu->selectFirstNamedTab();
        setFeatures(features);
        m_window->show();
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(row(3));
    }

    void setFeatures(const QStringList &features)
    {
        CFeatureOptionsMenu::NameList list;
        for (const QString &feature : features) {
            list.append(ParameterCollection::ParameterName(feature));
        }
        m_menu->setFeatureNameList(0, list);
    }

    QQuickItem *row(int tab) const
    {
        return find(m_menu, QStringLiteral("editTabName%1").arg(tab));
    }

    QQuickItem *field(int tab) const
    {
        return find(row(tab), QStringLiteral("textField"));
    }

    void click(QQuickItem *item)
    {
        const QPointF middle = item->mapToScene(item->boundingRect().center());
        QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middle.toPoint());
    }

    void type(const QString &text)
    {
        for (QChar character : text) {
            QTest::keyClick(m_window.get(), character.toLatin1());
        }
    }

    bool dropFromOutside(const QPoint &position, QQuickItem *area)
    {
        QMimeData data;
        data.setText(QStringLiteral("@CameraDevice/Gain"));
        QDragEnterEvent enter(position, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &enter);
        const bool hovers = area->property("containsDrag").toBool();
        QDropEvent drop(position, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window.get(), &drop);
        return hovers;
    }

    // An item that can be dragged without a window system.
    QQuickItem *makeDragged()
    {
        QQmlComponent component(m_window->engine());
        component.setData("import QtQuick 2.15\n"
                          "Item {\n"
                          "    function drag() { Drag.active = true }\n"
                          "    function drop() { Drag.drop() }\n"
                          "}",
                          {});
        auto *item = qobject_cast<QQuickItem *>(component.create());
        item->setParentItem(m_menu);
        return item;
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<QQuickView> m_window;
    CFeatureOptionsMenu *m_menu = nullptr; // owned by the window
};

QTEST_MAIN(tst_OptionsWindow)
#include "tst_optionswindow.moc"
