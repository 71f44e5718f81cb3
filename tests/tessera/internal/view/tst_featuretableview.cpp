// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro,reserve-candidates

#include "tessera/internal/view/featuretable.h"

#include "tessera/featuretest.h"

#include <QHeaderView>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using Plugin::Tessera::Internal::View::CFeatureTableView;

namespace {

const QString allKinds =
    QStringLiteral("Number Integer 5 [0..100] rep=PureNumber\nHex Integer 16 rep=HexNumber\n"
                   "Slide Integer 5 [0..100] rep=Linear\nFloat Float 1.5 [0..9]\n"
                   "Time Float 10 [1..1000] rep=Logarithmic\nTime/Alias Integer 5 rep=PureNumber\n"
                   "Mode Enum Off entries=Off,Once,On\nSwitch Boolean 1\n"
                   "Name String camera\nSecret String wo wo\nRun Command\n"
                   "Locked Float 1 ro\nGone Integer 1 rep=PureNumber na");

} // namespace

Q_DECLARE_METATYPE(std::function<void()>)

class tst_FeatureTableView : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void editorsFollowTheAccess()
    {
        show(QStringLiteral("A Integer 1 rep=Linear\nB Integer 2 rep=Linear"));
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

    void aTextEditorDoesNotOutliveAnUpdate()
    {
        show(QStringLiteral("Name String camera"));
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_table->visualRect(value("Name")).center());
        QVERIFY(editor("Name") && editor("Name")->hasFocus());
        QTest::keyClicks(editor("Name"), QStringLiteral("x"));
        node("Name").publish();
        QVERIFY(!editor("Name"));
        QVERIFY(m_table->hasFocus());
        QCOMPARE(node("Name").writes, QStringList());
    }

    void aRowAboveTheLevelGoesAndComesBack()
    {
        show(QStringLiteral("A Integer 1 rep=Linear\nB Integer 2 rep=Linear expert"));
        m_table->setCurrentIndex(value("B"));
        QSignalSpy current(m_table, &CFeatureTableView::onCurrentChanged);
        m_table->setVisibility(GenApi::Beginner);
        node("B").publish();
        QVERIFY(m_table->isRowHidden(1));
        QVERIFY(!editor("B"));
        node("B").publish();
        QCOMPARE(current.count(), 1);
        QVERIFY(!current.first().first().toModelIndex().isValid());
        m_table->setVisibility(GenApi::Expert);
        node("B").publish();
        QVERIFY(!m_table->isRowHidden(1));
        QVERIFY(editor("B"));
    }

    void arrowKeysWriteNothing()
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
        for (const char *name : {"Number", "Hex", "Slide", "Float", "Time", "Mode", "Switch",
                                 "Name", "Secret", "Run", "Locked", "Gone"}) {
            QVERIFY2(node(name).writes.isEmpty() && node(name).executions == 0, name);
        }
    }

    void keysEnterAnEditorAndEscapeLeavesIt_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Number") << Qt::Key_Return;
        for (const char *name : {"Hex", "Slide", "Float", "Time", "Mode", "Name", "Secret"}) {
            QTest::newRow(name) << Qt::Key_F2;
        }
    }

    void keysEnterAnEditorAndEscapeLeavesIt()
    {
        QFETCH(const Qt::Key, key);
        const char *name = QTest::currentDataTag();
        show(allKinds);
        m_table->setCurrentIndex(value(name));
        QTest::keyClick(m_table, key);
        QWidget *part = QApplication::focusWidget();
        QVERIFY(editor(name)->isAncestorOf(part) || editor(name) == part);
        if (qstrcmp(name, "Mode") != 0) { // where a key is a choice
            QTest::keyClicks(part, QStringLiteral("7"));
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(m_table->hasFocus());
        m_next->setFocus();
        QCOMPARE(node(name).writes, QStringList());
    }

    void takesTheFocusFromAnEditorThatGoes_data()
    {
        using Event = std::function<void()>;
        QTest::addColumn<Event>("event");
        QTest::newRow("locked") << Event([this] {
            node("B").isReadable = node("B").isWritable = false;
            node("B").publish();
        });
        QTest::newRow("hidden") << Event([this] {
            m_table->setVisibility(GenApi::Beginner);
            node("B").publish();
        });
        QTest::newRow("filtered") << Event([this] {
            m_table->proxy().setVisibility(0);
            m_table->proxy().setShowUnavailable(false);
            m_table->proxy().invalidate();
        });
        QTest::newRow("new models") << Event([this] { m_table->recreateModels(); });
    }

    void takesTheFocusFromAnEditorThatGoes()
    {
        QFETCH(const std::function<void()>, event);
        show(QStringLiteral("A Float 1 [0..9]\nB Float 2 [0..9] expert\nC Float 3 [0..9]"));
        m_table->setCurrentIndex(value("B"));
        QTest::keyClick(m_table, Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
        QVERIFY(!m_table->hasFocus());
        event();
        QVERIFY(m_table->hasFocus());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(node("B").writes, QStringList());
    }

    void editorsTravelWithADraggedRow()
    {
        show(QStringLiteral(
            "A Integer 1 rep=Linear\nB Integer 2 rep=Linear\nC Integer 3 rep=Linear"));
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

private:
    void prepare() override
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_table = new FeatureTable(m_window.get());
        m_next = new QPushButton(m_window.get());
        layout->addWidget(m_table);
        layout->addWidget(m_next);
        m_table->horizontalHeader()->setStretchLastSection(true);
        m_table->verticalHeader()->hide();
        m_table->setEditTriggers(QAbstractItemView::EditTriggers(31));
        m_window->resize(500, 600);
        m_window->show();
    }
    void release() override
    {
        m_window.reset();
    }
    void show(const QString &text)
    {
        attach(text);
        const QStringList lines = text.split(QLatin1Char('\n'));
        QStringList names;
        for (const QString &line : lines) {
            names.append(line.section(QLatin1Char(' '), 0, 0));
        }
        m_table->show(m_collection, names);
    }
    QModelIndex value(const char *name) const
    {
        return m_table->value(QString::fromLatin1(name));
    }
    QWidget *editor(const char *name) const
    {
        return m_table->indexWidget(value(name));
    }
    std::unique_ptr<QWidget> m_window;
    FeatureTable *m_table = nullptr; // by parent
    QPushButton *m_next = nullptr; // by parent
};

QTEST_MAIN(tst_FeatureTableView)
#include "tst_featuretableview.moc"
