// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "viewertest.h"

#include "plugin/contract/core/logging.h"
#include "support/treetext.h"

#include <host/framework/exceptionreport.h>
#include <host/simulation/parameters/faults.h>
#include <host/viewer/logview.h>
#include <host/viewer/visibilitylevel.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QProcess>
#include <QScrollBar>
#include <QSlider>
#include <QSplitter>
#include <QTextBrowser>

#include <algorithm>

using Viewer::SourceSession;

namespace {

constexpr int fullNameRole = 288;
const QString gige = QStringLiteral("simulated:gige");
const QString usb = QStringLiteral("simulated:usb");
const QString workbench = QStringLiteral("simulated:workbench");
const QString imageFormat = QStringLiteral("Image Format Control");

} // namespace

/// The built module in the viewer's own window, over the simulated cameras: from keys and mouse on
/// the screen to the camera's memory and back.
class EndToEndTest final : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Host::setExceptionReportHook({});
        ViewerTest::cleanup();
    }

    void writesWhatIsTyped_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("feature");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QVariant>("expected");
        const auto row = [](const char *tag, const char *category, const char *feature,
                            const char *typed, const QVariant &expected) {
            QTest::newRow(tag) << QString::fromLatin1(category) << path(feature)
                               << QString::fromLatin1(typed) << expected;
        };
        row("integer", "Image Format Control", "Width", "640", 640);
        row("integer by slider", "Image Format Control", "Width", "<", 16);
        row("hexadecimal", "Action Control", "ActionGroupKey", "0x1F", 31);
        row("address", "Transport Layer Control", "GevPersistentIPAddress", "10.0.0.7", 0x0A000007);
        row("float", "Acquisition Control", "ExposureTime", "1234", 1234.0);
        row("float by slider", "Analog Control", "BalanceRatio", "<", 0.0);
        row("boolean", "Image Format Control", "ReverseX", "", true);
        row("enumeration", "Acquisition Control", "TriggerMode", "On", QStringLiteral("On"));
        row("string", "Device Control", "DeviceUserID", "Halle 7", QByteArray("Halle 7"));
    }

    void writesWhatIsTyped()
    {
        QFETCH(QString, category);
        QFETCH(QString, feature);
        QFETCH(QString, typed);
        QFETCH(QVariant, expected);
        click(category);
        QTRY_VERIFY(editor(feature));
        type(editor(feature), typed);
        QTRY_COMPARE(source(gige)->deviceValue(feature), expected);
    }

    void executesACommand()
    {
        click(QStringLiteral("Acquisition Control"));
        QTRY_VERIFY(editor(path("AcquisitionStart")));
        type(editor(path("AcquisitionStart")), QString());
        // A camera that runs locks its image format.
        QTRY_COMPARE(source(gige)->deviceValue(path("TLParamsLocked")), QVariant(1));
        click(imageFormat);
        QTRY_VERIFY(cell(path("Width")).isValid());
        QTRY_VERIFY(!editor(path("Width")) || !editor(path("Width"))->isEnabled());
    }

    void refusedValueFallsBackToTheCamerasOwn()
    {
        const QString feature = path("DeviceUserID");
        click(QStringLiteral("Device Control"));
        const QString before = valueOnScreen(feature);
        QStringList reports;
        Host::setExceptionReportHook(
            [&](const Host::ExceptionReport &report) { reports.append(report.message); });
        m_guard.expectLogEntry(Core::Logging::ELogLevel::Fault,
                               QStringLiteral("vantrel.viewer.exceptions"),
                               QRegularExpression(QStringLiteral("Failed to set a feature value")));
        source(gige)->faults().failWrites(feature, Simulation::FaultKind::GenericException);
        QTRY_VERIFY(editor(feature));
        type(editor(feature), QStringLiteral("refused"));
        QTRY_COMPARE(reports, QStringList(QStringLiteral("Failed to set a feature value.")));
        QTRY_COMPARE(valueOnScreen(feature), before);
    }

    void keepsSourcesApart()
    {
        SourceSession *session = m_viewer->session();
        const QString first = rootShown();
        const QString shared = path("ExposureTime");
        for (const QString &id : {usb, workbench}) {
            session->requestOpen(session->indexOf(id));
            QTRY_COMPARE(session->activeIndex(), session->indexOf(id));
            click(id == usb ? QStringLiteral("Acquisition Control")
                            : QStringLiteral("Source Camera"));
            QTRY_VERIFY(editor(shared));
            type(editor(shared), id == usb ? QStringLiteral("2000") : QStringLiteral("3000"));
            QVERIFY(table("Basic")->model()->rowCount() > 1);
        }
        QCOMPARE(rootShown(), QStringLiteral("Camera"));
        QTRY_COMPARE(source(workbench)->deviceValue(shared), QVariant(3000.0));
        QCOMPARE(source(usb)->deviceValue(shared), QVariant(2000.0));
        QCOMPARE(source(gige)->deviceValue(shared), QVariant(5000.0));

        session->requestActive(session->indexOf(gige));
        QTRY_COMPARE(rootShown(), first);
        session->requestClose(session->indexOf(gige));
        QTRY_VERIFY(!session->isOpen(session->indexOf(gige)));
        QVERIFY(session->activeIndex() >= 0 && rootShown() != first);
        for (const QString &id : {usb, workbench}) {
            session->requestClose(session->indexOf(id));
        }
        QTRY_COMPARE(session->activeIndex(), -1);
        QVERIFY(!tree());
        QVERIFY(!table("Basic"));
    }

    void unpluggingUnderAnOpenEditorIsSurvived_data()
    {
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("feature");
        QTest::newRow("text") << QStringLiteral("Device Control") << path("DeviceUserID");
        QTest::newRow("open list") << QStringLiteral("Acquisition Control") << path("TriggerMode");
        QTest::newRow("held slider") << imageFormat << path("Width");
    }

    void unpluggingUnderAnOpenEditorIsSurvived()
    {
        QFETCH(QString, category);
        QFETCH(QString, feature);
        click(category);
        QTRY_VERIFY(editor(feature));
        const QPointer<QWidget> opened = editor(feature);
        QWidget *target = opened;
        if (auto *slider = opened->findChild<QSlider *>()) {
            target = slider;
        }
        QTest::mousePress(target, Qt::LeftButton);
        QTest::keyClicks(target, QStringLiteral("x"));
        source(gige)->unplug();
        m_viewer->session()->requestClose(m_viewer->session()->activeIndex());
        QTRY_COMPARE(m_viewer->session()->activeIndex(), -1);
        QTRY_VERIFY(!opened);
    }

    void docksTellOfTheCurrentFeatureAndOfTheLog()
    {
        const auto *documentation = window()->findChild<QTextBrowser *>();
        pane().select(path("OffsetX"));
        QTRY_VERIFY(documentation->toPlainText().contains(path("OffsetX")));
        source(gige)->changeOnDevice(path("Width"), 640); // which moves the limits
        QTRY_VERIFY(documentation->toPlainText().contains(QLatin1String("1808")));

        const QAbstractItemModel *log = window()->findChild<Viewer::LogView *>()->model();
        const int entries = log->rowCount();
        Core::Logging::createLogEntry(Core::Logging::ELogLevel::Information,
                                      Core::Logging::getCatId("test"), QStringLiteral("heard"));
        QTRY_COMPARE(log->rowCount(), entries + 1);
        QCOMPARE(log->index(entries, 3).data().toString(), QStringLiteral("heard"));
    }

    void unpluggingDuringASearchIsSurvived()
    {
        auto *search = widget<QLineEdit>("filterEdit");
        const QPointer<QWidget> line = search;
        search->setFocus();
        source(gige)->unplug();
        m_viewer->session()->requestClose(m_viewer->session()->activeIndex());
        QTest::keyClick(search, Qt::Key_G); // events are processed while it is searched
        QVERIFY(line && !line->isVisible());
        QTRY_VERIFY(!line);
    }

    // With the wheel of the pointer itself, which first gives the focus where it may.
    void theWheelNeedsTheFocus()
    {
        const auto turn = [](const QWidget *widget, const char *button) {
            const QPoint place = widget->mapToGlobal(widget->rect().center());
            return QProcess::execute(QStringLiteral("xdotool"),
                                     {QStringLiteral("mousemove"), QString::number(place.x()),
                                      QString::number(place.y()), QStringLiteral("click"),
                                      QLatin1String(button)});
        };
        click(QStringLiteral("Acquisition Control"));
        const QString feature = path("ExposureTime");
        const QVariant before = source(gige)->deviceValue(feature);
        table()->setFocus();
        const int scrolled = table()->verticalScrollBar()->value();
        QCOMPARE(turn(editor(feature)->findChild<QAbstractSpinBox *>(), "5"), 0);
        QTRY_VERIFY(table()->verticalScrollBar()->value() != scrolled);
        QCOMPARE(source(gige)->deviceValue(feature), before);
        auto *box = editor(feature)->findChild<QAbstractSpinBox *>();
        box->setFocus();
        QCOMPARE(turn(box, "4"), 0);
        QTRY_VERIFY(source(gige)->deviceValue(feature) != before);
    }

    void visibilityLevelHidesRows()
    {
        click(imageFormat);
        QVERIFY(cell(path("Width")).isValid());
        QVERIFY(cell(path("SensorWidth")).isValid());
        window()->visibilityLevel()->setLevel(0);
        QVERIFY(cell(path("Width")).isValid());
        QVERIFY(!cell(path("SensorWidth")).isValid());
        window()->visibilityLevel()->setLevel(2);
        QVERIFY(cell(path("SensorWidth")).isValid());
    }

    void findsWidthsAndListsAgain()
    {
        window()->move(0, 0);
        click(imageFormat);
        auto *splitter = widget<QSplitter>("splitter");
        const QWidget *handle = splitter->handle(1);
        const QPoint grip = handle->mapToGlobal(handle->rect().center());
        const QVector<int> original = widths();
        drag(grip, grip + QPoint(40, 0));
        dragColumn("All", -35);
        dock("Basic")->raise();
        QTRY_VERIFY(table("Basic")->isVisible());
        dragColumn("Basic", 30);
        const QModelIndex second = table("Basic")->model()->index(1, 0);
        QTest::mouseClick(table("Basic")->viewport(), Qt::LeftButton, Qt::NoModifier,
                          table("Basic")->visualRect(second).center());
        QTest::keyClick(table("Basic"), Qt::Key_Up, Qt::ControlModifier);
        const QString names = namesShown("Basic");
        QVERIFY2(names.startsWith(QLatin1String("Height Width ")), qPrintable(names));
        const QVector<int> dragged = widths();
        for (int i = 0; i < dragged.size(); ++i) {
            QVERIFY(dragged.at(i) != original.at(i));
        }

        m_viewer->session()->closeAll();
        window()->close();
        m_viewer->shutDown();
        start();
        QCOMPARE(namesShown("Basic"), names);
        dock("All")->raise();
        QTRY_COMPARE(widths(), dragged);
    }

private:
    QVector<int> widths() const
    {
        return {tree()->width(), table()->columnWidth(0), table("Basic")->columnWidth(0)};
    }

    void dragColumn(const char *pane, int by) const
    {
        const QHeaderView *header = table(pane)->horizontalHeader();
        const QPoint edge =
            header->viewport()->mapToGlobal({header->sectionSize(0) - 1, header->height() / 2});
        drag(edge, edge + QPoint(by, 0));
    }

    QString rootShown() const
    {
        return tree() ? tree()->model()->index(0, 0).data().toString() : QString();
    }

    // Shows the features of a category in the table.
    void click(const QString &category)
    {
        const QModelIndex index = Tests::findRow(*tree()->model(), category);
        QVERIFY2(index.isValid(), qPrintable(category));
        tree()->scrollTo(index);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree()->visualRect(index).center());
        QTRY_VERIFY(table()->model()->rowCount() > 0);
    }

    // The value of a feature in the table, scrolled into view.
    QModelIndex cell(const QString &feature, const QByteArray &pane = "All") const
    {
        const QAbstractItemModel &model = *table(pane)->model();
        const QModelIndexList found =
            model.match(model.index(0, 0), fullNameRole, feature, 1, Qt::MatchExactly);
        if (found.isEmpty()) {
            return QModelIndex();
        }
        table(pane)->scrollTo(found.constFirst());
        return found.constFirst().siblingAtColumn(1);
    }

    QString valueOnScreen(const QString &feature) const
    {
        return cell(feature).data(Qt::EditRole).toString();
    }

    // The editor of a feature, which a text gets by a double click only.
    QWidget *editor(const QString &feature) const
    {
        const QModelIndex value = cell(feature);
        if (!table()->indexWidget(value) && value.flags().testFlag(Qt::ItemIsEditable)) {
            const QPoint place = table()->visualRect(value).center();
            QTest::mouseClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
            QTest::mouseDClick(table()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        }
        return table()->indexWidget(value);
    }

    // Works an editor as a user does: clicks a switch, chooses in a list, types over a text. With
    // "<" a slider is set to its start.
    void type(QWidget *editor, const QString &text)
    {
        auto *line = qobject_cast<QLineEdit *>(editor);
        if (!line) {
            line = editor->findChild<QLineEdit *>();
        }
        if (auto *list = qobject_cast<QComboBox *>(editor)) {
            QTest::mouseClick(list, Qt::LeftButton);
            QTRY_VERIFY(list->view()->isVisible());
            QTest::keyClicks(list->view(), text);
            QTest::keyClick(list->view(), Qt::Key_Return);
        } else if (text == QLatin1String("<")) {
            auto *slider = editor->findChild<QSlider *>();
            slider->setFocus(Qt::TabFocusReason);
            QTest::keyClick(slider, Qt::Key_Home);
        } else if (line) {
            QTest::mouseClick(line, Qt::LeftButton);
            QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(line, text);
            QTest::keyClick(line, Qt::Key_Return);
        } else {
            QTest::mouseClick(editor, Qt::LeftButton, Qt::NoModifier,
                              QPoint(8, editor->height() / 2));
        }
    }

    QSharedPointer<Simulation::SimulatedCollection> source(const QString &id) const
    {
        const SourceSession *session = m_viewer->session();
        return session->source(session->indexOf(id))->collection();
    }

    QString namesShown(const QByteArray &pane) const
    {
        QStringList names;
        const QAbstractItemModel &model = *table(pane)->model();
        names.reserve(model.rowCount());
        for (int row = 0; row < model.rowCount(); ++row) {
            names.append(
                model.index(row, 0).data(fullNameRole).toString().section(QLatin1Char('/'), 1));
        }
        return names.join(QLatin1Char(' '));
    }
};

QTEST_MAIN(EndToEndTest)
#include "tst_endtoend.moc"
