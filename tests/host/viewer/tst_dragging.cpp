// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewertest.h"

#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>

/// A window of somebody else's, out of which the path of a feature can be dragged as a text.
class Foreign final : public QLabel
{
    Q_OBJECT

public:
    QVector<Qt::DropAction> offers; // what the places below the pointer would do with it
    bool ended = false;

protected:
    void mouseMoveEvent(QMouseEvent * /*event*/) override
    {
        auto *drag = new QDrag(this);
        auto *text = new QMimeData;
        text->setText(QStringLiteral("@CameraDevice/BlackLevel"));
        drag->setMimeData(text);
        connect(drag, &QDrag::actionChanged, this,
                [this](Qt::DropAction offer) { offers.append(offer); });
        drag->exec(Qt::CopyAction | Qt::MoveAction);
        ended = true;
    }
};

/// Tabs of a user's own, made with a real pointer: rows dragged out of the table of All, foreign
/// things refused, rows put in another order, all of it found again by the next viewer.
class DraggingTest : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void fillsATab()
    {
        window()->move(0, 0);
        pane().select(path("Gain"));
        QTest::mouseClick(widget("addNewFavoriteButton"), Qt::LeftButton);
        QTRY_VERIFY(tabsWindow());
        QVERIFY(QTest::qWaitForWindowExposed(tabsWindow()));

        clickInWindow("textField");
        type(QStringLiteral("Light"));
        QTRY_COMPARE(item("textField")->property("text").toString(), QStringLiteral("Light"));
        drag(nameCell("All", "Gain"), middleOf("dragAndDrop"));
        QTRY_VERIFY(item("feature0"));
        drag(nameCell("All", "GainAuto"), middleOf("dragAndDrop"));
        QTRY_VERIFY(item("feature1"));
        expectAForeignDragIsRefused();

        clickInWindow("addButton");
        expectTab({path("Gain"), path("GainAuto")});
        QTRY_VERIFY(table("User0")->indexWidget(table("User0")->model()->index(0, 1)));

        drag(nameCell("User0", "GainAuto"), nameCell("User0", "Gain"));
        expectTab({path("GainAuto"), path("Gain")});

        m_viewer->shutDown();
        start();
        expectTab({path("GainAuto"), path("Gain")});
    }

private:
    void expectAForeignDragIsRefused() const
    {
        Foreign foreign;
        foreign.setGeometry(20, 900, 200, 100);
        foreign.show();
        QVERIFY(QTest::qWaitForWindowExposed(&foreign));
        drag(foreign.mapToGlobal(foreign.rect().center()), middleOf("dragAndDrop"));
        QTRY_VERIFY(foreign.ended);
        QCOMPARE(foreign.offers, QVector<Qt::DropAction> {Qt::IgnoreAction});
        QVERIFY(!item("feature2"));
    }

    void expectTab(const QStringList &features) const
    {
        QTRY_VERIFY(dock("User0")->isVisible());
        QCOMPARE(dock("User0")->windowTitle(), QStringLiteral("Features – Light"));
        pane("User0");
        QTRY_COMPARE(rows("User0"), features);
    }

    QStringList rows(const char *pane) const
    {
        QStringList names;
        const QTableView *list = table(pane);
        names.reserve(list ? list->model()->rowCount() : 0);
        for (int row = 0; list && row < list->model()->rowCount(); ++row) {
            constexpr int fullNameRole = 288;
            names.append(list->model()->index(row, 0).data(fullNameRole).toString());
        }
        return names;
    }

    /// The middle of the name on the screen.
    QPoint nameCell(const char *pane, const char *feature) const
    {
        const QTableView *list = table(pane);
        const QModelIndex name = list->model()->index(rows(pane).indexOf(path(feature)), 0);
        return list->viewport()->mapToGlobal(list->visualRect(name).center());
    }

    static QQuickItem *item(const char *name)
    {
        return itemBelow(tabsWindow()->rootObject(), QLatin1String(name));
    }

    // What a list makes is no child of its objects, but of its items.
    static QQuickItem *itemBelow(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name) {
            return item;
        }
        const QList<QQuickItem *> parts = item->childItems();
        for (QQuickItem *part : parts) {
            if (QQuickItem *found = itemBelow(part, name)) {
                return found;
            }
        }
        return nullptr;
    }

    static QPoint middleOf(const char *name)
    {
        const QQuickItem *part = item(name);
        const QPointF middle = part->mapToScene({part->width() / 2, part->height() / 2});
        return tabsWindow()->mapToGlobal(middle.toPoint());
    }

    static void clickInWindow(const char *name)
    {
        move({moveTo(middleOf(name)), pointer("click")});
    }
};

QTEST_MAIN(DraggingTest)
#include "tst_dragging.moc"
