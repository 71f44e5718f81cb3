// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "editorsnapshots.h"

#include "internal/legacy/editors/floateditor.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>

#include <memory>

using namespace ParameterCollection;
using Core::Logging::ELogLevel;

namespace {

const QString floatLog = QStringLiteral("vantrel.viewer.plugins.tessera.floatEditor");

} // namespace

class TestFloatEditor : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsValueAndRange_data()
    {
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("toolTip");
        const auto row = [](const char *name, QSharedPointer<const ParameterData> snapshot,
                            const char *text, const char *toolTip) {
            QTest::newRow(name) << snapshot << QString::fromLatin1(text)
                                << QString::fromLatin1(toolTip);
        };
        row("step", floatSnapshot(1234.5, 0, 10000, 2), "1234.5", "Range: 0..10000 (Increment: 2)");
        row("small step", floatSnapshot(0.5, 0, 0.9, 0.4), "0.5", "Range: 0..1");
        row("no decimals", floatSnapshot(2, -5, 5, 0, 0), "2", "Range: -5..5");
        row("wide", floatSnapshot(2, -1e308, 1e308), "2.0", "Range: -1e+308..1e+308");
    }

    void showsValueAndRange()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        update(snapshot);
        QTEST(m_box->text(), "text");
        QTEST(m_editor->toolTip(), "toolTip");
        QCOMPARE(m_box->toolTip(), m_editor->toolTip());
    }

    void ignoresUnusableSnapshots_data()
    {
        addUnusableSnapshots("Float is called with non-float node", "Non-readable comboBox: Float");
    }

    void ignoresUnusableSnapshots()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        QFETCH(QString, entry);
        update(floatSnapshot(3.5, 0, 100, 1));
        if (!entry.isEmpty()) {
            m_guard.expectLogEntry(ELogLevel::Fault, floatLog, entry);
        }
        update(snapshot);
        QCOMPARE(m_box->text(), QStringLiteral("3.5"));
        QCOMPARE(m_editor->maximum(), 100.0);
    }

    void oneAnswerPassesAfterWhatTheUserSet_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("return") << Qt::Key_Return;
        QTest::newRow("step") << Qt::Key_Up;
    }

    void oneAnswerPassesAfterWhatTheUserSet()
    {
        QFETCH(Qt::Key, key);
        update(floatSnapshot(3.5, 0, 100, 1));
        m_box->setFocus();
        const auto locked = floatSnapshot(4.5, 0, 50, 1);
        locked->isWritable = false;
        update(locked);
        QCOMPARE(m_box->text(), QStringLiteral("3.5"));
        QVERIFY(m_editor->isEnabled());
        QTest::keyClick(m_box, key);
        update(floatSnapshot(5.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
        update(floatSnapshot(6.5, 0, 100, 1));
        QCOMPARE(m_box->text(), QStringLiteral("5.5"));
        m_other->setFocus();
        update(locked);
        QCOMPARE(m_box->text(), QStringLiteral("4.5"));
        QVERIFY(!m_editor->isEnabled());
    }

    void stepsFromTheDevicesValue_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<double>("device");
        QTest::addColumn<QString>("written");
        QTest::newRow("down") << Qt::Key_Down << 20.0 << "19.75";
        QTest::newRow("page up") << Qt::Key_PageUp << 20.0 << "70";
        QTest::newRow("page past the end") << Qt::Key_PageUp << 970.0 << "1000";
        QTest::newRow("page past the start") << Qt::Key_PageDown << 30.0 << "0";
    }

    void stepsFromTheDevicesValue()
    {
        QFETCH(Qt::Key, key);
        QFETCH(double, device);
        QFETCH(QString, written);
        update(floatSnapshot(10, 0, 1000, 0.25));
        node("Float").number = device;
        node("Float").onWrite = Tests::Fault::Unknown;
        QTest::keyClick(m_box, key);
        QCOMPARE(node("Float").writes, QStringList {written});
        QCOMPARE(m_box->text(), QStringLiteral("10.0")); // until the device answers
    }

    void commitsWhatWasTypedInTheLocaleOfTheUser()
    {
        m_window->setLocale(QLocale(QStringLiteral("de_DE")));
        update(floatSnapshot(1234.5, 0, 5000, 1, 2));
        QCOMPARE(m_box->text(), QStringLiteral("1234,5"));
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        m_box->setFocus();
        m_box->selectAll();
        QTest::keyClicks(m_box, QStringLiteral("12,3456"));
        QCOMPARE(commits.count(), 0);
        QTest::keyClick(m_box, Qt::Key_Enter);
        QCOMPARE(commits.count(), 1);
        QCOMPARE(m_editor->editorValue(), QVariant(12.34));
        node("Float").maximum = 10; // the device's own limits hold
        QCOMPARE(m_editor->editorValue(), QVariant(10.0));
        m_other->setFocus();
        QCOMPARE(commits.count(), 2);
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("9"));
        QTest::keyClick(m_box, Qt::Key_Escape);
        QCOMPARE(m_box->text(), QStringLiteral("12,34"));
    }

    void commitsNothingBeforeItShowedAValue()
    {
        QSignalSpy commits(m_editor, &FloatEditor::boxValueChanged);
        m_box->setFocus();
        QTest::keyClick(m_box, Qt::Key_Up); // no parameter yet
        m_other->setFocus();
        QCOMPARE(commits.count(), 0);
        m_box->setFocus();
        QTest::keyClicks(m_box, QStringLiteral("9"));
        m_other->setFocus();
        QCOMPARE(commits.count(), 1);
    }

    void losesItsArrowsForGoodWithoutAnIncrement()
    {
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::UpDownArrows);
        update(floatSnapshot(5, 0, 10, 0));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QTest::keyClick(m_box, Qt::Key_Up);
        QVERIFY(node("Float").writes.isEmpty());
        update(floatSnapshot(5, 0, 10, 1));
        QCOMPARE(m_box->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QTest::keyClick(m_box, Qt::Key_Up);
        QCOMPARE(node("Float").writes.size(), 1);

        const FloatEditor pure(nullptr, QStringLiteral("PureNumber"));
        QCOMPARE(pure.findChild<QDoubleSpinBox *>()->buttonSymbols(), QAbstractSpinBox::NoButtons);
    }

private:
    void prepare() override
    {
        EditorTest::prepare();
        node("Float").maximum = 1000.0;
        m_window = std::make_unique<QWidget>();
        m_editor = new FloatEditor(m_window.get(), QStringLiteral("Linear"));
        m_box = m_editor->findChild<QDoubleSpinBox *>();
        m_other = new QLineEdit(m_window.get());
        m_window->show();
        m_other->setFocus();
        QApplication::setActiveWindow(m_window.get());
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void release() override
    {
        m_window.reset();
    }
    void update(const QSharedPointer<const ParameterData> &snapshot)
    {
        m_editor->updateEditor(pair("Float", snapshot));
    }

    std::unique_ptr<QWidget> m_window;
    FloatEditor *m_editor = nullptr; // by parent
    QDoubleSpinBox *m_box = nullptr; // by parent
    QLineEdit *m_other = nullptr; // by parent
};

QTEST_MAIN(TestFloatEditor)
#include "tst_floateditor.moc"
