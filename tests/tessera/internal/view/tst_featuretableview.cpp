// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro,reserve-candidates

#include "internal/view/featuretableview.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/model/featuretablemodel.h"
#include "internal/view/treeviewheaderview.h"
#include "support/fakecollection.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <memory>

using Plugin::Tessera::Internal::View::CFeatureTableView;
using Plugin::Tessera::Internal::View::CTreeViewHeaderView;
using Tests::findRow;

namespace {

const QString path = QStringLiteral("@CameraDevice");

const char *const allKinds =
    "  Number Integer 5 [0..100] rep=PureNumber\n  Hex Integer 16 rep=HexNumber\n"
    "  Slide Integer 5 [0..100] rep=Linear\n  Float Float 1.5 [0..9]\n"
    "  Time Float 10 [1..1000] rep=Logarithmic\n  Time/Alias Integer 5 rep=PureNumber\n"
    "  Mode Enum Off entries=Off,Once,On\n  Switch Boolean 1\n"
    "  Name String camera\n  Secret String wo wo\n  Run Command\n"
    "  Locked Float 1 ro\n  Gone Integer 1 rep=PureNumber na\n";

double ratio()
{
    return QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0;
}

class Table final : public CFeatureTableView
{
public:
    using CFeatureTableView::CFeatureTableView;
    using CFeatureTableView::viewOptions;
};

} // namespace

class tst_FeatureTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensEditorsForWhatCanBeUsed_data();
    void opensEditorsForWhatCanBeUsed();
    void editorsFollowTheAccess();
    void opensEditorsOfRowsThatComeBack();
    void aTextEditorDoesNotOutliveAnUpdate();
    void aRowAboveTheLevelGoesAndComesBack();
    void arrowKeysWriteNothing();
    void keysEnterAnEditorAndEscapeLeavesIt_data();
    void keysEnterAnEditorAndEscapeLeavesIt();
    void aKeyOnTheCellClicksAButton_data();
    void aKeyOnTheCellClicksAButton();
    void takesTheFocusFromAnEditorThatGoes_data();
    void takesTheFocusFromAnEditorThatGoes();
    void theWheelOverAnEditorScrolls();
    void tabLeavesTheTable();
    void editorsTravelWithADraggedRow();
    void aTableBesideATreeTakesNoDrop();
    void paintsNoBarForTheSelection();
    void asksForAMenuOnRowsOnly();
    void theHeaderStandsOnALine_data();
    void theHeaderStandsOnALine();
    void elidesALongTitle();

private:
    void show(const char *text);
    QModelIndex value(const char *name) const
    {
        return findRow(*m_table->model(), QString::fromLatin1(name), 1);
    }
    QWidget *editor(const char *name) const
    {
        return m_table->indexWidget(value(name));
    }
    Tests::FakeNode &node(const char *name) const
    {
        return m_collection->node(path + QLatin1Char('/') + QString::fromLatin1(name));
    }
    FeatureTreeProxyModel &proxy() const
    {
        return *qobject_cast<FeatureTreeProxyModel *>(m_table->model());
    }
    bool drop(const char *name, const char *target);

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_tree;
    std::unique_ptr<QWidget> m_window;
    Table *m_table = nullptr; // by parent
    QPushButton *m_next = nullptr; // by parent
    Tests::WarningGuard m_guard;
};

void tst_FeatureTableView::init()
{
    m_guard.begin();
    m_collection = QSharedPointer<Tests::FakeCollection>::create();
    m_tree = std::make_unique<FeatureTreeModel>();
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_table = new Table(m_window.get());
    m_next = new QPushButton(m_window.get());
    layout->addWidget(m_table);
    layout->addWidget(m_next);
    m_table->setHorizontalHeader(new CTreeViewHeaderView(m_table));
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::EditTriggers(31));
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_window->resize(500, 600);
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_FeatureTableView::cleanup()
{
    m_window.reset();
    m_tree.reset();
    m_guard.verify();
}

void tst_FeatureTableView::show(const char *text)
{
    m_collection->attach(path, QLatin1String("Category\n") + QString::fromLatin1(text));
    m_tree->addParameterCollection(m_collection, QStringLiteral("Camera"), path, true);
    FeatureTreeItem *category = m_tree->itemFromIndex(findRow(*m_tree, QStringLiteral("Category")));
    QList<FeatureTreeItem *> items;
    for (int i = 0; i < category->childCount(); ++i) {
        items.append(category->child(i));
    }
    proxy().setShowUnavailable(true);
    proxy().setTableItems(items, true);
    m_table->setFocus();
}

void tst_FeatureTableView::opensEditorsForWhatCanBeUsed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QByteArray>("editor");
    const auto row = [](const char *line, const char *editor) {
        QTest::newRow(line) << QString::fromLatin1(line) << QByteArray(editor);
    };
    row("  F Integer 1 rep=PureNumber", "");
    row("  F Integer 1 rep=Linear", "IntSliderEditor");
    row("  F Float 1 ro", "FloatEditor");
    row("  F Boolean 1 wo", "CheckBoxEditor");
    row("  F Enum A entries=A,B guru", "EnumEditor");
    row("  F Command", "ToolButtonEditor");
    row("  F String a", "");
    row("  F Integer 1 rep=PureNumber na", "");
    row("  F Integer 1 rep=PureNumber invisible", "");
}

void tst_FeatureTableView::opensEditorsForWhatCanBeUsed()
{
    QFETCH(const QString, line);
    QFETCH(const QByteArray, editor);
    show(line.toLatin1().constData());
    const QWidget *made = m_table->indexWidget(m_table->model()->index(0, 1));
    QCOMPARE(QByteArray(made ? made->metaObject()->className() : ""), editor);
}

void tst_FeatureTableView::editorsFollowTheAccess()
{
    show("  A Integer 1 rep=Linear\n  B Integer 2 rep=Linear");
    const auto setAccess = [this](bool readable, bool writable) {
        node("A").isReadable = readable;
        node("A").isWritable = writable;
        node("A").publish();
    };
    setAccess(false, false);
    QVERIFY(!editor("A"));
    QVERIFY(editor("B"));
    setAccess(true, false);
    QVERIFY(editor("A"));
    QCOMPARE(editor("A")->geometry().size(), m_table->visualRect(value("A")).size());
}

void tst_FeatureTableView::opensEditorsOfRowsThatComeBack()
{
    show("  A Integer 1 rep=Linear\n  B Integer 2 rep=Linear");
    proxy().setFeatureNameFilter({path + QStringLiteral("/A")});
    QCOMPARE(proxy().rowCount(), 1);
    proxy().setFeatureNameFilter({});
    QVERIFY(editor("B"));
    proxy().invalidate();
    QVERIFY(editor("A") && editor("B"));
    const QAbstractItemModel *before = m_table->model();
    m_table->recreateModels();
    QVERIFY(m_table->model() != before);
    proxy().setTableItems({m_tree->itemFromIndex(findRow(*m_tree, QStringLiteral("B")))}, true);
    QVERIFY(editor("B"));
}

void tst_FeatureTableView::aTextEditorDoesNotOutliveAnUpdate()
{
    show("  Name String camera");
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      m_table->visualRect(value("Name")).center());
    QVERIFY(editor("Name") && editor("Name")->hasFocus());
    QTest::keyClicks(editor("Name"), QStringLiteral("x"));
    node("Name").publish();
    QVERIFY(!editor("Name"));
    QVERIFY(m_table->hasFocus());
    QCOMPARE(node("Name").writes, QStringList());
}

void tst_FeatureTableView::aRowAboveTheLevelGoesAndComesBack()
{
    show("  A Integer 1 rep=Linear\n  B Integer 2 rep=Linear expert");
    m_table->setCurrentIndex(value("B"));
    QSignalSpy current(m_table, &CFeatureTableView::onCurrentChanged);
    m_table->setVisibility(GenApi::Beginner);
    node("B").publish();
    QVERIFY(m_table->isRowHidden(1));
    QVERIFY(!editor("B"));
    QCOMPARE(current.count(), 1);
    QVERIFY(!current.first().first().toModelIndex().isValid());
    node("B").publish();
    QCOMPARE(current.count(), 1);
    m_table->setVisibility(GenApi::Expert);
    node("B").publish();
    QVERIFY(!m_table->isRowHidden(1));
    QVERIFY(editor("B"));
}

void tst_FeatureTableView::arrowKeysWriteNothing()
{
    show(allKinds);
    m_table->setCurrentIndex(m_table->model()->index(0, 1));
    const int rows = m_table->model()->rowCount();
    for (const auto key : {Qt::Key_Down, Qt::Key_Up}) {
        for (int i = 1; i < rows; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key);
            QVERIFY(m_table->hasFocus());
            QCOMPARE(m_table->currentIndex().row(), key == Qt::Key_Down ? i : rows - 1 - i);
        }
    }
    for (const char *name : {"Number", "Hex", "Slide", "Float", "Time", "Mode", "Switch", "Name",
                             "Secret", "Run", "Locked", "Gone"}) {
        QVERIFY2(node(name).writes.isEmpty() && node(name).executions == 0, name);
    }
}

void tst_FeatureTableView::keysEnterAnEditorAndEscapeLeavesIt_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Qt::Key>("key");
    for (const char *name : {"Number", "Hex", "Slide", "Float", "Time", "Mode", "Name", "Secret"}) {
        QTest::addRow("%s by F2", name) << QByteArray(name) << Qt::Key_F2;
        QTest::addRow("%s by Enter", name) << QByteArray(name) << Qt::Key_Return;
    }
}

void tst_FeatureTableView::keysEnterAnEditorAndEscapeLeavesIt()
{
    QFETCH(const QByteArray, name);
    QFETCH(const Qt::Key, key);
    show(allKinds);
    const QModelIndex cell = value(name.constData());
    m_table->setCurrentIndex(cell);
    QTest::keyClick(m_table, key);
    QWidget *part = QApplication::focusWidget();
    QVERIFY(m_table->indexWidget(cell)->isAncestorOf(part) || m_table->indexWidget(cell) == part);
    if (name != "Mode") { // where a key is a choice
        QTest::keyClicks(part, QStringLiteral("7"));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(m_table->hasFocus());
    QCOMPARE(m_table->currentIndex(), cell);
    QCOMPARE(node(name.constData()).writes, QStringList());
    m_next->setFocus();
    QCOMPARE(node(name.constData()).writes, QStringList());
}

void tst_FeatureTableView::aKeyOnTheCellClicksAButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("enter") << Qt::Key_Enter;
    QTest::newRow("F2") << Qt::Key_F2;
}

void tst_FeatureTableView::aKeyOnTheCellClicksAButton()
{
    QFETCH(const Qt::Key, key);
    show("  Switch Boolean 1\n  Run Command\n  Locked Boolean 1 ro");
    for (const char *name : {"Switch", "Run", "Locked"}) {
        m_table->setCurrentIndex(value(name).siblingAtColumn(0));
        QTest::keyClick(m_table, key);
        m_table->setCurrentIndex(value(name));
        QTest::keyClick(m_table, key);
        QVERIFY(m_table->hasFocus());
    }
    QCOMPARE(node("Switch").writes, QStringList(QStringLiteral("0")));
    QCOMPARE(node("Run").executions, 1);
    QCOMPARE(node("Locked").writes, QStringList());
}

void tst_FeatureTableView::takesTheFocusFromAnEditorThatGoes_data()
{
    QTest::addColumn<QString>("event");
    for (const char *event : {"locked", "hidden", "removed", "filtered", "cleared", "new models"}) {
        QTest::newRow(event) << QString::fromLatin1(event);
    }
}

void tst_FeatureTableView::takesTheFocusFromAnEditorThatGoes()
{
    QFETCH(const QString, event);
    show("  A Float 1 [0..9]\n  B Float 2 [0..9] expert\n  C Float 3 [0..9]");
    m_table->setCurrentIndex(value("B"));
    QTest::keyClick(m_table, Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    QVERIFY(!m_table->hasFocus());
    if (event == QLatin1String("locked")) {
        node("B").isReadable = node("B").isWritable = false;
        node("B").publish();
    } else if (event == QLatin1String("hidden")) {
        m_table->setVisibility(GenApi::Beginner);
        node("B").publish();
    } else if (event == QLatin1String("removed")) {
        proxy().setTableItems({}, true);
    } else if (event == QLatin1String("filtered")) {
        proxy().setVisibility(0);
        proxy().setShowUnavailable(false);
        proxy().invalidate();
    } else if (event == QLatin1String("cleared")) {
        proxy().clear();
    } else {
        m_table->recreateModels();
    }
    QVERIFY(m_table->hasFocus());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(node("B").writes, QStringList());
}

void tst_FeatureTableView::theWheelOverAnEditorScrolls()
{
    show(allKinds);
    m_window->resize(400, 260);
    QCoreApplication::processEvents();
    QVERIFY(m_table->verticalScrollBar()->maximum() > 0);
    QWidget *slide = editor("Slide")->findChild<QAbstractSlider *>();
    const QPointF place = slide->rect().center();
    QWheelEvent wheel(place, slide->mapToGlobal(place.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel); // only the system's events reach the parents
    qApp->notify(slide, &wheel);
    QVERIFY(m_table->verticalScrollBar()->value() > 0);
    QCOMPARE(node("Slide").writes, QStringList());
}

void tst_FeatureTableView::tabLeavesTheTable()
{
    show(allKinds);
    m_table->setCurrentIndex(value("Number"));
    QTest::keyClick(m_table, Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), m_next);
    m_table->setFocus();
    QTest::keyClick(m_table, Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), m_next);
}

// What a drag within the table brings to it; true when the table takes it.
bool tst_FeatureTableView::drop(const char *name, const char *target)
{
    const std::unique_ptr<QMimeData> data(
        m_table->model()->mimeData({value(name).siblingAtColumn(0)}));
    const QPoint place = m_table->visualRect(value(target).siblingAtColumn(0)).center();
    QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(m_table->viewport(), &enter);
    return enter.isAccepted();
}

void tst_FeatureTableView::editorsTravelWithADraggedRow()
{
    show("  A Integer 1 rep=Linear\n  B Integer 2 rep=Linear\n  C Integer 3 rep=Linear");
    m_table->setConnectedToTreeView(false);
    QCOMPARE(m_table->dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(m_table->acceptDrops());
    QSignalSpy moves(m_table, &CFeatureTableView::orderOfTableItemsChanged);
    const QPointer<QWidget> ofA(editor("A"));
    const std::unique_ptr<QMimeData> data(
        m_table->model()->mimeData({value("A").siblingAtColumn(0)}));
    QVERIFY(m_table->model()->dropMimeData(data.get(), Qt::MoveAction, -1, -1,
                                           value("C").siblingAtColumn(0)));
    QCOMPARE(moves.value(0), QVariantList({0, 2}));
    QCOMPARE(value("A").row(), 2);
    QCOMPARE(editor("A"), ofA.data());
    QCoreApplication::processEvents();
    QCOMPARE(ofA->geometry(), m_table->visualRect(value("A")).intersected(ofA->geometry()));
}

void tst_FeatureTableView::aTableBesideATreeTakesNoDrop()
{
    show("  A Integer 1 rep=Linear\n  B Integer 2 rep=Linear");
    m_table->setConnectedToTreeView(false);
    m_table->setConnectedToTreeView(true);
    QVERIFY(m_table->isConnectedToTreeView());
    QCOMPARE(m_table->dragDropMode(), QAbstractItemView::DragOnly);
    QVERIFY(!m_table->acceptDrops());
    QVERIFY(!drop("A", "B"));
    QCOMPARE(value("A").row(), 0);
}

void tst_FeatureTableView::paintsNoBarForTheSelection()
{
    const QPalette colors = m_table->viewOptions().palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(colors.color(group, QPalette::Highlight), QColor(0, 0, 0, 0));
        QColor text = colors.color(group, QPalette::Text);
        text.setAlpha(group == QPalette::Active ? 128 : 255);
        QCOMPARE(colors.color(group, QPalette::HighlightedText), text);
    }
}

void tst_FeatureTableView::asksForAMenuOnRowsOnly()
{
    show("  A Integer 1 rep=Linear");
    QSignalSpy menus(m_table, &CFeatureTableView::contextualMenuRequested);
    const QPoint onRow = m_table->visualRect(value("A").siblingAtColumn(0)).center();
    Q_EMIT m_table->customContextMenuRequested(onRow);
    Q_EMIT m_table->customContextMenuRequested(QPoint(5, m_table->height() - 5));
    QCOMPARE(menus.count(), 1);
    QCOMPARE(menus.first().first().toPoint(), m_table->mapToGlobal(onRow));
}

void tst_FeatureTableView::theHeaderStandsOnALine_data()
{
    QTest::addColumn<bool>("connected");
    QTest::newRow("beside a tree") << true;
    QTest::newRow("of its own") << false;
}

void tst_FeatureTableView::theHeaderStandsOnALine()
{
    QFETCH(const bool, connected);
    show("  A Integer 1 rep=Linear");
    m_table->setConnectedToTreeView(connected);
    QHeaderView *header = m_table->horizontalHeader();
    const int height = header->sizeHint().height();
    QCOMPARE(height, QFontMetrics(header->font()).height() + static_cast<int>(13 * ratio()));
    header->setFixedHeight(height);
    QCoreApplication::processEvents();
    const QImage picture = header->grab().toImage();
    const int line = height - static_cast<int>(7 / ratio());
    const QColor background = header->palette().color(QPalette::Base);
    const QColor lineColor = header->palette().color(QPalette::Midlight);
    const int separator = header->sectionSize(0) - 1;
    QCOMPARE(picture.pixelColor(picture.width() - 20, line).rgb(), lineColor.rgb());
    QCOMPARE(picture.pixelColor(picture.width() - 20, line - 1).rgb(), background.rgb());
    QCOMPARE(picture.pixelColor(separator, 1).rgb(), lineColor.rgb());
    QCOMPARE(picture.pixelColor(separator, line + 1).rgb(), background.rgb());
    int first = 0;
    const auto isEmpty = [&](int x) {
        for (int y = 0; y < line; ++y) {
            if (picture.pixel(x, y) != background.rgb()) {
                return false;
            }
        }
        return true;
    };
    while (first < separator && isEmpty(first)) {
        ++first;
    }
    QCOMPARE(first >= 7, connected);
    QVERIFY(first < separator);
}

void tst_FeatureTableView::elidesALongTitle()
{
    show("  A Integer 1 rep=Linear");
    QHeaderView *header = m_table->horizontalHeader();
    const int width = static_cast<int>(60 * ratio());
    m_table->setColumnWidth(0, width);
    const int margin = header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    const int end = margin + static_cast<int>((width - 2 * margin) / ratio());
    const QImage picture = header->grab().toImage();
    const auto columnIsEmpty = [&](int x) {
        for (int y = 0; y < header->height() - static_cast<int>(8 * ratio()); ++y) {
            if (picture.pixel(x, y) != header->palette().color(QPalette::Base).rgb()) {
                return false;
            }
        }
        return true;
    };
    QVERIFY(!columnIsEmpty(margin + 9));
    for (int x = end + 1; x < width - 1; ++x) {
        QVERIFY2(columnIsEmpty(x), qPrintable(QString::number(x)));
    }
}

QTEST_MAIN(tst_FeatureTableView)
#include "tst_featuretableview.moc"
