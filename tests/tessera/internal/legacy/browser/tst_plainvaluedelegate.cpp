// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/plainvaluedelegate.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "support/fakecollection.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include <memory>

using Core::Logging::ELogLevel;
using Tests::findRow;

class tst_PlainValueDelegate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void writesWhatIsTyped_data();
    void writesWhatIsTyped();
    void editsSwitchesChoicesAndCommandsInTheirOwnWay_data();
    void editsSwitchesChoicesAndCommandsInTheirOwnWay();
    void opensNoEditorForWhatCannotBeWritten_data();
    void opensNoEditorForWhatCannotBeWritten();
    void writesNothingWithoutAnEdit();
    void refusesTextThatIsNoNumber_data();
    void refusesTextThatIsNoNumber();
    void readsNumbersInTheLocaleOfTheWidget();
    void keepsWhatIsBeingTyped();
    void fallsBackWhenTheDeviceRefuses();
    void namesTheEditorForScreenReaders();
    void drawsValuesThatEditorsWillShow();

private:
    QLineEdit *open(const QString &line);
    Tests::FakeNode &node() const
    {
        return m_collection->node(QStringLiteral("@CameraDevice/F"));
    }

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeModel> m_model;
    std::unique_ptr<QTreeView> m_view;
    Tests::WarningGuard m_guard;
};

void tst_PlainValueDelegate::init()
{
    m_guard.begin();
    m_collection = QSharedPointer<Tests::FakeCollection>::create();
    m_model = std::make_unique<FeatureTreeModel>();
    m_view = std::make_unique<QTreeView>();
    m_view->setLocale(QLocale::c());
    m_view->setItemDelegate(new PlainValueDelegate(m_view.get(), m_model.get()));
    m_view->setModel(m_model.get());
    m_view->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_view->resize(400, 300);
    m_view->show();
}

void tst_PlainValueDelegate::cleanup()
{
    m_view.reset();
    m_model.reset();
    m_guard.verify();
}

// Shows a feature "F" and double-clicks its value. Null where no editor opens.
QLineEdit *tst_PlainValueDelegate::open(const QString &line)
{
    m_collection->attach(QStringLiteral("@CameraDevice"), QStringLiteral("F ") + line);
    m_model->addParameterCollection(m_collection, QStringLiteral("Camera"),
                                    QStringLiteral("@CameraDevice"), true);
    m_view->expandAll();
    const QModelIndex index = findRow(*m_model, QStringLiteral("F"), 1);
    auto *item = qobject_cast<FeatureTreeINodeItem *>(m_model->itemFromIndex(index));
    item->subscribe();
    item->requestRefresh();
    const QPoint centre = m_view->visualRect(index).center();
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
    return m_view->viewport()->findChild<QLineEdit *>();
}

void tst_PlainValueDelegate::writesWhatIsTyped_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("delayed");
    for (const bool delayed : {false, true}) {
        const char *how = delayed ? ", published later" : "";
        QTest::addRow("integer%s", how) << "Integer 640"
                                        << "640"
                                        << "800"
                                        << "800" << delayed;
        QTest::addRow("linear integer%s", how) << "Integer 640 rep=Linear"
                                               << "640"
                                               << "800"
                                               << "800" << delayed;
        QTest::addRow("float%s", how) << "Float 1.5"
                                      << "1.5"
                                      << "2.25"
                                      << "2.25" << delayed;
        QTest::addRow("linear float%s", how) << "Float 1.5 rep=Linear"
                                             << "1.5"
                                             << "1e1"
                                             << "10" << delayed;
        QTest::addRow("string%s", how) << "String hi"
                                       << "hi"
                                       << "you"
                                       << "you" << delayed;
    }
}

void tst_PlainValueDelegate::writesWhatIsTyped()
{
    QFETCH(QString, typed);
    QFETCH(QString, line);
    QFETCH(bool, delayed);
    QLineEdit *editor = open(line);
    QVERIFY(editor);
    m_collection->setDelayed(delayed);
    QTEST(editor->text(), "start");
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QTEST(node().valueText(), "value");
    QCOMPARE(node().writes.size(), 1);
}

void tst_PlainValueDelegate::editsSwitchesChoicesAndCommandsInTheirOwnWay_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("switch") << "Boolean 0"
                            << " "
                            << "1";
    QTest::newRow("enumeration") << "Enum Off entries=Off,On"
                                 << "On"
                                 << "On";
    QTest::newRow("command") << "Command"
                             << " "
                             << "Done";
}

void tst_PlainValueDelegate::editsSwitchesChoicesAndCommandsInTheirOwnWay()
{
    QFETCH(QString, line);
    QFETCH(QString, key);
    QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    QVERIFY(!open(line));
    QWidget *editor = QApplication::focusWidget();
    QVERIFY(editor && editor->parent() == m_view->viewport());
    QTest::keyClicks(editor, key);
    QTEST(node().valueText(), "value");
    QCOMPARE(node().writes.size() + node().executions, 1);
}

void tst_PlainValueDelegate::opensNoEditorForWhatCannotBeWritten_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("locked") << "String hi ro";
    QTest::newRow("locked number") << "Float 1 ro";
    QTest::newRow("not available") << "Integer 1 na";
    QTest::newRow("not implemented") << "Integer 1 ni";
    QTest::newRow("category") << "";
}

void tst_PlainValueDelegate::opensNoEditorForWhatCannotBeWritten()
{
    QFETCH(QString, line);
    QVERIFY(!open(line));
}

void tst_PlainValueDelegate::writesNothingWithoutAnEdit()
{
    QLineEdit *editor = open(QStringLiteral("String hi wo"));
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QVERIFY(node().writes.isEmpty());
}

void tst_PlainValueDelegate::refusesTextThatIsNoNumber_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("word") << "abc";
    QTest::newRow("group separator") << "1,000";
    QTest::newRow("unit") << "2 dB";
}

void tst_PlainValueDelegate::refusesTextThatIsNoNumber()
{
    QFETCH(QString, typed);
    QLineEdit *editor = open(QStringLiteral("Float 1.5"));
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QVERIFY(node().writes.isEmpty());
}

void tst_PlainValueDelegate::readsNumbersInTheLocaleOfTheWidget()
{
    m_view->setLocale(QLocale(QLocale::German));
    QLineEdit *editor = open(QStringLiteral("Float 1.125"));
    QCOMPARE(editor->text(), QStringLiteral("1,125"));
    QTest::keyClicks(editor, QStringLiteral("2,5"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QCOMPARE(node().valueText(), QStringLiteral("2.5"));
}

void tst_PlainValueDelegate::keepsWhatIsBeingTyped()
{
    QLineEdit *editor = open(QStringLiteral("String hi"));
    QTest::keyClicks(editor, QStringLiteral("yo"));
    node().text = "other";
    node().publish();
    m_view->itemDelegate()->setEditorData(editor, findRow(*m_model, QStringLiteral("F"), 1));
    QCOMPARE(editor->text(), QStringLiteral("yo"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QVERIFY(node().writes.isEmpty());
}

void tst_PlainValueDelegate::fallsBackWhenTheDeviceRefuses()
{
    QLineEdit *editor = open(QStringLiteral("Integer 5 [0..9]"));
    m_guard.expectLogEntry(ELogLevel::Fault,
                           QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeModel"),
                           QRegularExpression(QStringLiteral("Failed to set a feature value\\.$")));
    QTest::keyClicks(editor, QStringLiteral("77"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!m_view->viewport()->findChild<QLineEdit *>());
    QCOMPARE(node().writes, QStringList(QStringLiteral("77")));
    QCOMPARE(findRow(*m_model, QStringLiteral("F"), 1).data().toString(), QStringLiteral("5"));
}

void tst_PlainValueDelegate::namesTheEditorForScreenReaders()
{
    const QLineEdit *editor = open(QStringLiteral("String hi tip=Says_something"));
    QCOMPARE(editor->accessibleName(), QStringLiteral("F"));
    QVERIFY(editor->accessibleDescription().endsWith(QLatin1String("Says something")));
    QVERIFY(!editor->accessibleDescription().contains(QLatin1Char('<')));
}

void tst_PlainValueDelegate::drawsValuesThatEditorsWillShow()
{
    open(QStringLiteral("Float 1.5 ro"));
    const QModelIndex index = findRow(*m_model, QStringLiteral("F"), 1);
    QVERIFY(!index.data().isValid());
    const auto picture = [&] {
        return m_view->viewport()->grab(m_view->visualRect(index)).toImage();
    };
    const QImage before = picture();
    node().number = 88.875;
    node().publish();
    m_view->update(index);
    QVERIFY(picture() != before);
}

QTEST_MAIN(tst_PlainValueDelegate)
#include "tst_plainvaluedelegate.moc"
