// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Connections end with the test function.
// clazy:excludeall=lambda-in-connect

#include "internal/legacy/tree/featuretreedelegate.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "internal/legacy/tree/featuretreemodel.h"
#include "support/treetext.h"
#include "tessera/featuretest.h"

#include <QLineEdit>
#include <QPointer>
#include <QTreeView>

#include <memory>

using Tests::findRow;

class tst_FeatureTreeDelegate : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void choosesTheEditor_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QByteArray>("editor");
        QTest::newRow("integer") << "F Integer 1" << QByteArray("IntEditor");
        QTest::newRow("linear integer")
            << "F Integer 1 rep=Linear" << QByteArray("IntSliderEditor");
        QTest::newRow("float") << "F Float 1" << QByteArray("FloatEditor");
        QTest::newRow("linear float without a companion")
            << "F Float 1 rep=Linear" << QByteArray("FloatEditor");
        QTest::newRow("linear float")
            << "F Float 1 rep=Linear\nF/Alias Integer 1" << QByteArray("FloatSliderEditor");
        QTest::newRow("enumeration") << "F Enum A entries=A,B" << QByteArray("EnumEditor");
        QTest::newRow("switch") << "F Boolean 1" << QByteArray("CheckBoxEditor");
        QTest::newRow("command") << "F Command" << QByteArray("ToolButtonEditor");
        QTest::newRow("text") << "F String a" << QByteArray("QExpandingLineEdit");
        QTest::newRow("not available") << "F Boolean 1 na" << QByteArray("");
    }

    void choosesTheEditor()
    {
        QFETCH(QString, lines);
        QFETCH(QByteArray, editor);
        add(lines);
        const std::unique_ptr<QWidget> made(
            m_delegate->createEditor(m_view->viewport(), QStyleOptionViewItem(), index()));
        QCOMPARE(QByteArray(made ? made->metaObject()->className() : ""), editor);
        QVERIFY(
            !m_delegate->createEditor(m_view->viewport(), QStyleOptionViewItem(), QModelIndex()));
    }

    void writesNoTextThatStandsForAValue()
    {
        add(QStringLiteral("F Integer 4 rep=HexNumber"));
        node().isReadable = false;
        publish();
        QPointer<QWidget> editor = open();
        QVERIFY(editor);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!editor);
        QCOMPARE(node().writes, QStringList());
        editor = open();
        QVERIFY(editor);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QStringLiteral("9"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(node().writes, QStringList {QStringLiteral("9")});
    }

    void leavesATextAloneThatIsBeingTyped()
    {
        add(QStringLiteral("F String old"));
        auto *editor = qobject_cast<QLineEdit *>(open());
        QVERIFY(editor && editor->hasFocus());
        QTest::keyClicks(editor, QStringLiteral("typ"));
        node().text = "device";
        publish();
        m_delegate->setEditorData(editor, index());
        QCOMPARE(editor->text(), QStringLiteral("typ"));
        QLineEdit idle(m_view->viewport());
        m_delegate->setEditorData(&idle, index());
        QCOMPARE(idle.text(), QStringLiteral("device"));
    }

    // A view still uses the editor after the delegate has written its value.
    void keepsAnEditorThatClosesInsideItsCommit()
    {
        m_collection->setDelayed(false); // else it is not inside
        add(QStringLiteral("F Boolean 0"));
        QPointer<QWidget> editor = open();
        connect(m_model.get(), &QAbstractItemModel::dataChanged, this, [&] {
            m_delegate->destroyEditor(editor, index());
            QCoreApplication::sendPostedEvents(editor, QEvent::DeferredDelete);
            QVERIFY(editor);
        });
        QTest::mouseClick(editor, Qt::LeftButton, Qt::NoModifier, QPoint(8, editor->height() / 2));
        QCOMPARE(node().valueText(), QStringLiteral("1"));
        m_model->disconnect(this);
        QTRY_VERIFY(!editor);
    }

private:
    void prepare() override
    {
        m_model = std::make_unique<FeatureTreeModel>();
        m_view = std::make_unique<QTreeView>();
        m_view->setLocale(QLocale::c());
        m_delegate = new FeatureTreeDelegate(m_view.get(), m_model.get(), &m_searchText);
        m_view->setItemDelegate(m_delegate);
        m_view->setModel(m_model.get());
        m_view->setEditTriggers(QAbstractItemView::DoubleClicked);
        m_view->resize(600, 300);
        m_view->show();
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
    }
    void release() override
    {
        m_view.reset();
        m_model.reset();
    }
    // Shows the features; the first is "F" and has been read.
    void add(const QString &lines)
    {
        attach(lines);
        m_model->addParameterCollection(m_collection, QStringLiteral("Camera"), m_path, true);
        m_view->expandAll();
        m_view->setColumnWidth(0, 200);
        if (auto *feature = item()) {
            feature->subscribe();
            feature->requestRefresh();
            QCoreApplication::processEvents(); // where it is delayed
        }
    }

    // By a double click, as a user does. Null where no editor opens.
    QWidget *open()
    {
        const QPoint centre = m_view->visualRect(index()).center();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        return m_view->indexWidget(index());
    }

    void publish() const
    {
        node().publish();
        QCoreApplication::processEvents(); // where it is delayed
    }
    QModelIndex index() const
    {
        return findRow(*m_model, QStringLiteral("F"), 1);
    }
    FeatureTreeINodeItem *item() const
    {
        return qobject_cast<FeatureTreeINodeItem *>(m_model->itemFromIndex(index()));
    }

    std::unique_ptr<FeatureTreeModel> m_model;
    std::unique_ptr<QTreeView> m_view;
    FeatureTreeDelegate *m_delegate = nullptr; // by parent
    QString m_searchText;
};

QTEST_MAIN(tst_FeatureTreeDelegate)
#include "tst_featuretreedelegate.moc"
