// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/featuretreewidget.h"

#include "internal/legacy/tree/featuretreeitem.h"
#include "internal/legacy/tree/featuretreemodelextension.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"
#include "plugin/constants/itemroles.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include "host/framework/camerarecord.h"
#include "host/framework/parameterpool.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>

#include <memory>
#include <utility>

using ParameterCollection::IParameter;
using ParameterCollection::ParameterName;
using Tests::Fault;
using Tests::findRow;

namespace {

const QString features = QStringLiteral("Image name=Image_Format\n"
                                        "  Width Integer 640 [16..1280] rep=PureNumber\n"
                                        "  Gain Float 1.5 [0..24] unit=dB expert\n"
                                        "  Empty\n"
                                        "  Inner guru\n"
                                        "    Hidden String x invisible\n"
                                        "    Lost Integer 1 ni\n"
                                        "    Away Integer 1 na\n"
                                        "    Mute String x wo\n"
                                        "    AVeryLongNameThatDoesNotFitIntoTheColumn Boolean 1\n"
                                        "Other\n"
                                        "  Far Integer 3\n"
                                        "  Near Boolean 0\n"
                                        "  Gain/Alias Integer 15 [0..240] invisible\n");

ParameterName name(const char *shortName)
{
    return ParameterName(QLatin1String("@CameraDevice/") + QLatin1String(shortName));
}

} // namespace

/// Counts what is painted in the windows of the program.
class PaintCounter final : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::Paint && watched->isWidgetType() ? 1 : 0;
        return false;
    }
    int count = 0;
};

class tst_FeatureTreeWidget : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void copiesAllFeaturesAsText()
    {
        add();
        m_browser->copyToClipboard();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 QStringLiteral("Camera\n"
                                "  Image Format                          \n"
                                "    Width                               \t640\n"
                                "    Gain [dB]                           \t1.5\n"
                                "    Empty                               \n"
                                "    Inner                               \n"
                                "      Lost                              \t<not implemented>\n"
                                "      Away                              \t<not available>\n"
                                "      Mute                              \t<not readable>\n"
                                "      AVeryLongNameThatDoesNotFitIntoTheColumn\t1\n"
                                "  Other                                 \n"
                                "    Far                                 \t3\n"
                                "    Near                                \t0\n"));
    }

    void copiesWhatCanBeRead()
    {
        add();
        for (const char *name : {"Width", "Gain", "Inner"}) {
            expectFault("featureTreeWidget",
                        QRegularExpression(
                            QStringLiteral("could not retrieve \"%1\" from ").arg(pathOf(name))));
        }
        m_collection->onParameter.insert(pathOf("Width"), Fault::Unknown);
        node("Gain").onProperty = Fault::Unknown;
        m_collection->onChildren.insert(pathOf("Inner"), Fault::Unknown);
        node("Empty").children.append(pathOf("Image")); // holds itself
        node("Other").isNull = true;
        m_browser->copyToClipboard();
        QCOMPARE(QGuiApplication::clipboard()->text().simplified(),
                 QStringLiteral("Camera Image Format Empty Image Format Inner"));
    }

    void listsTheFeaturesOfTheSelectedCategory()
    {
        add();
        QVERIFY(tree()->isExpanded(treeRow("Camera")));
        QCOMPARE(shown(), QString());
        QVERIFY(!m_browser->currentItem());
        select("Image Format");
        QCOMPARE(shown(),
                 QStringLiteral("Away Mute AVeryLongNameThatDoesNotFitIntoTheColumn "
                                "Width Gain [dB] "));
        QCOMPARE(tableRow("Width", 1).data().toString(), QStringLiteral("640"));
        QVERIFY(node("Width").isSubscribed() && !node("Far").isSubscribed());
        select("Other");
        QCOMPARE(shown(), QStringLiteral("Far Near "));
        QVERIFY(!node("Width").isSubscribed());
        tree()->clearSelection();
        QCOMPARE(shown(), QString());
    }

    void paintsWhatChangesAndNothingElse_data()
    {
        QTest::addColumn<QString>("representation");
        QTest::newRow("box") << QStringLiteral("PureNumber");
        QTest::newRow("box and slider") << QStringLiteral("Linear");
    }

    void paintsWhatChangesAndNothingElse()
    {
        QFETCH(const QString, representation);
        add();
        node("Gain").properties.insert(QStringLiteral("Representation"), representation);
        node("Gain").number = 1.0 / 3; // more decimals than are shown
        node("Gain").minimum = -1.0 / 3;
        select("Image Format");
        PaintCounter painted;
        qApp->installEventFilter(&painted);
        const auto publish = [&] {
            node("Width").publish();
            node("Gain").publish();
            node("Gain/Alias").publish();
            node("AVeryLongNameThatDoesNotFitIntoTheColumn").publish();
            QCoreApplication::processEvents();
            return std::exchange(painted.count, 0);
        };
        QTRY_COMPARE(publish(), 0); // as soon as the editors are laid out
        node("Width").number = 80;
        QVERIFY(publish() + publish() > 0);
    }

    void marksWhatIsSearched()
    {
        add();
        select("Image Format");
        auto *search = widget<QLineEdit>("filterEdit");
        QTest::keyClick(m_browser.get(), Qt::Key_F3);
        QVERIFY(search->hasFocus());
        QTest::keyClicks(search, QStringLiteral("idt"));
        QCOMPARE(names(*table()->model(), IsSearchMatchRole), QStringLiteral("Width "));
        QVERIFY(treeRow("Image Format").data(IsSearchMatchRole).toBool());
        QVERIFY(!treeRow("Other").data(IsSearchMatchRole).toBool());
        search->clear();
        QCOMPARE(names(*table()->model(), IsSearchMatchRole), QString());
    }

    void twoEscapesEmptyTheSearch()
    {
        FeatureTreeWidget other(QString(), m_info, nullptr);
        auto *search = widget<QLineEdit>("filterEdit");
        search->setText(QStringLiteral("x"));
        QTest::keyClick(search, Qt::Key_Escape);
        QTest::keyClick(search, Qt::Key_A);
        QTest::keyClick(search, Qt::Key_Escape);
        QVERIFY(!search->text().isEmpty());
        QTest::keyClick(search, Qt::Key_Left);
        QTest::keyClick(&other, Qt::Key_Escape); // the first press may go to another browser
        QTest::keyClick(search, Qt::Key_Escape);
        QVERIFY(search->text().isEmpty());
    }

    void marksTheFeaturesOfAUseCase()
    {
        add();
        select("Other");
        m_browser->setUseCases({{QStringLiteral("Light"), QStringList {pathOf("gain")}},
                                {QStringLiteral("Near things"), QStringList {pathOf("Near")}}});
        auto *box = widget<QComboBox>("useCaseComboBox");
        auto *edit = widget<QLineEdit>("useCaseEdit");
        QCOMPARE(box->currentText(), QStringLiteral("Common Tasks"));
        box->setFocus();
        QTest::keyClicks(box, QStringLiteral("L"));
        QTRY_VERIFY(edit->isVisible() && !box->isVisible());
        QCOMPARE(edit->text(), QStringLiteral("Light"));
        QVERIFY(treeRow("Image Format").data(IsFavoriteMatchRole).toBool());
        select("Image Format");
        QCOMPARE(names(*table()->model(), IsFavoriteMatchRole), QStringLiteral("Gain [dB] "));
        edit->actions().constLast()->trigger();
        QVERIFY(box->isVisible() && !edit->isVisible());
        QCOMPARE(names(*table()->model(), IsFavoriteMatchRole), QString());
    }

    void pollsWhileTheBoxIsChecked()
    {
        add();
        auto *box = widget<QCheckBox>("checkBoxPolling");
        auto *action = m_browser->findChild<QAction *>(QStringLiteral("actionTogglePolling"));
        QVERIFY(!box->isChecked() && !action->isChecked());
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
        QVERIFY(action->isChecked());
        QTRY_COMPARE(m_collection->polls, QVector<int>({300}));
        m_browser->setMonitorMode(true);
        QTRY_VERIFY(m_collection->batchUpdates > 0);
        action->trigger();
        QVERIFY(!box->isChecked());
    }

    void keepsTheCategoryInBothShapes()
    {
        add();
        select("Other");
        auto *box = widget<QCheckBox>("checkBoxShowTreeView");
        widget<QLineEdit>("filterEdit")->setText(QStringLiteral("inner"));
        box->click();
        QCOMPARE(shown(), QStringLiteral("Far Near "));
        QVERIFY(treeRow("Inner").isValid());
        QVERIFY(treeRow("Inner").data(IsSearchMatchRole).toBool());
        select("Inner");
        box->click();
        QVERIFY(!treeRow("Inner").isValid());
        QVERIFY(shown().contains(QLatin1String("Width")));
    }

    void keysOfTwoBrowsersGoToTheOneWithTheFocus()
    {
        QWidget window;
        const auto second = QSharedPointer<Tests::FakeCollection>::create();
        second->attach(m_path, features);
        auto *other = new FeatureTreeWidget(QString(), m_info, &window);
        add();
        other->addParameterCollection(second, QStringLiteral("Second"), m_path, true);
        m_browser->setParent(&window);
        window.show();
        m_browser->show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (int press = 1; press <= 2; ++press) {
            tree()->setFocus();
            QTest::keyClick(tree(), Qt::Key_F5);
            QTRY_COMPARE(m_collection->batchUpdates, press);
            other->treeView()->setFocus();
            QTest::keyClick(other->treeView(), Qt::Key_F5);
            QTRY_COMPARE(second->batchUpdates, press);
        }
        QCOMPARE(m_collection->batchUpdates, 2);
        m_browser->setParent(nullptr);
    }

    void listsAndMovesTheFeaturesOfAUserTab()
    {
        m_browser->setUserTabMode(true);
        QVERIFY(!widget<QWidget>("filterEdit")->isVisible() && !tree()->isVisible());
        const auto pool = QSharedPointer<Host::ParameterPool>::create();
        pool->insert(m_info, m_collection);
        m_browser->setDeviceParameterService(pool);
        m_browser->setFeatureNameList({name("Lost"), name("Far"), name("Gone"), name("Width")});
        add();
        QCOMPARE(shown(), QStringLiteral("Far Width "));
        QSignalSpy moved(m_browser.get(), &FeatureTreeWidget::orderOfTableItemsChanged);
        auto *up = m_browser->findChild<QAction *>(QStringLiteral("actionMoveFavouriteUp"));
        auto *down = m_browser->findChild<QAction *>(QStringLiteral("actionMoveFavouriteDown"));
        table()->setCurrentIndex(tableRow("Width"));
        QVERIFY(up->isEnabled() && !down->isEnabled());
        table()->setFocus();
        QTest::keyClick(table(), Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(shown(), QStringLiteral("Width Far "));
        QVERIFY(!up->isEnabled() && down->isEnabled());
        QCOMPARE(moved.count(), 1);
        down->trigger();
        widget<QCheckBox>("checkBoxUnavailableFavs")->click();
        QVERIFY(shown().startsWith(QLatin1String("Lost ")));
        m_browser->setFeatureNameList({name("Far"), name("Width"), name("Far")});
        QCOMPARE(shown(), QStringLiteral("Far Width Far "));
    }

private:
    void prepare() override
    {
        attach(features);
        m_info.reset(new Host::CameraRecord(QStringLiteral("Cam"), QStringLiteral("Model"),
                                            QStringLiteral("GEV")));
        m_browser = std::make_unique<FeatureTreeWidget>(QString(), m_info, nullptr);
        m_browser->resize(700, 500);
        m_browser->show();
        QVERIFY(QTest::qWaitForWindowActive(m_browser.get()));
    }
    void release() override
    {
        m_browser.reset();
    }
    template<typename Widget> Widget *widget(const char *objectName) const
    {
        return m_browser->findChild<Widget *>(QLatin1String(objectName));
    }
    FeatureTreeView *tree() const
    {
        return m_browser->treeView();
    }
    QTableView *table() const
    {
        return m_browser->tableView();
    }
    QModelIndex treeRow(const char *text) const
    {
        return findRow(*tree()->model(), QString::fromLatin1(text));
    }
    QModelIndex tableRow(const char *text, int column = 0) const
    {
        return findRow(*table()->model(), QString::fromLatin1(text), column);
    }
    void select(const char *category) const
    {
        const QModelIndex index = treeRow(category);
        tree()->scrollTo(index);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree()->visualRect(index).center());
        QCoreApplication::processEvents(); // where answers are late
    }
    /// The names of the rows that can be seen in the table.
    QString shown() const
    {
        QString text;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            if (!table()->isRowHidden(row)) {
                text += table()->model()->index(row, 0).data().toString() + QLatin1Char(' ');
            }
        }
        return text;
    }
    void add() const
    {
        m_browser->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
    }

    Core::AppCoreComponents::BaseInfoPtr m_info;
    std::unique_ptr<FeatureTreeWidget> m_browser;
};

QTEST_MAIN(tst_FeatureTreeWidget)
#include "tst_featuretreewidget.moc"
