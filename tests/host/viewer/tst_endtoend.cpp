// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/warningguard.h"

#include <host/simulation/simulatedcollection.h>
#include <host/simulation/simulatedsource.h>
#include <host/viewer/mainwindow.h>
#include <host/viewer/sourcesession.h>
#include <host/viewer/viewerapplication.h>
#include <host/viewer/visibilitylevel.h>

#include <QClipboard>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <functional>

using Viewer::SourceSession;
using Viewer::ViewerApplication;

namespace {

constexpr int fullNameRole = 288;

QString path(const char *name)
{
    return QLatin1String("@CameraDevice/") + QLatin1String(name);
}

} // namespace

/// The built module in the viewer's own window, over the simulated cameras: from keys and mouse on
/// the screen to the camera's memory and back.
class EndToEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void showsTheCameraInTheAllPane();
    void writesWhatIsTyped_data();
    void writesWhatIsTyped();
    void executesACommand();
    void refusedValueFallsBackToTheCamerasOwn();
    void showsWhatChangesInTheCamera();
    void switchesBetweenSources();
    void unpluggingUnderAnOpenEditorIsSurvived();
    void visibilityLevelHidesRows();
    void copiesTheFeaturesAsText();

private:
    QTreeView *tree() const;
    QModelIndex shown(const QString &fullName) const;
    QString valueOnScreen(const QString &fullName) const;
    QWidget *openEditor(const QString &fullName) const;
    QSharedPointer<Simulation::SimulatedCollection> camera(const char *id) const;

    QTemporaryDir m_settings;
    Tests::WarningGuard m_guard;
    QScopedPointer<ViewerApplication> m_viewer;
};

void EndToEndTest::init()
{
    m_guard.begin();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    m_viewer.reset(new ViewerApplication({}));
    m_viewer->start(QStringLiteral(PLUGIN_FOLDER));
    // Without a window manager nobody else gives the window the focus.
    m_viewer->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_viewer->window()));
}

void EndToEndTest::cleanup()
{
    m_viewer->shutDown();
    m_viewer.reset();
    m_guard.verify();
}

QTreeView *EndToEndTest::tree() const
{
    const auto *dock =
        m_viewer->window()->findChild<QDockWidget *>(QStringLiteral("Tessera.Widget.All"));
    const auto trees = dock->findChildren<QTreeView *>(QStringLiteral("treeView"));
    const auto visible = std::find_if(trees.cbegin(), trees.cend(),
                                      [](const QTreeView *view) { return view->isVisible(); });
    return visible == trees.cend() ? nullptr : *visible;
}

/// The row of a feature, with its categories opened and scrolled into view.
QModelIndex EndToEndTest::shown(const QString &fullName) const
{
    QTreeView *view = tree();
    if (!view) {
        return QModelIndex();
    }
    const QAbstractItemModel &model = *view->model();
    const std::function<QModelIndex(const QModelIndex &)> find =
        [&](const QModelIndex &parent) -> QModelIndex {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (index.data(fullNameRole).toString() == fullName) {
                return index;
            }
            const QModelIndex below = find(index);
            if (below.isValid()) {
                return below;
            }
        }
        return QModelIndex();
    };
    const QModelIndex index = find(QModelIndex());
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent()) {
        view->expand(parent);
    }
    view->scrollTo(index);
    return index;
}

QString EndToEndTest::valueOnScreen(const QString &fullName) const
{
    return shown(fullName).siblingAtColumn(1).data(Qt::EditRole).toString();
}

QWidget *EndToEndTest::openEditor(const QString &fullName) const
{
    const QModelIndex index = shown(fullName);
    const QPoint cell = tree()->visualRect(index.siblingAtColumn(1)).center();
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QWidget *editor = QApplication::focusWidget();
    return editor && tree()->viewport()->isAncestorOf(editor) ? editor : nullptr;
}

QSharedPointer<Simulation::SimulatedCollection> EndToEndTest::camera(const char *id) const
{
    const SourceSession *session = m_viewer->session();
    return session->source(session->indexOf(QLatin1String(id)))->collection();
}

void EndToEndTest::showsTheCameraInTheAllPane()
{
    QVERIFY(tree());
    QCOMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("TO-5000G (305174)"));
    QTRY_COMPARE(valueOnScreen(path("Width")),
                 camera("simulated:gige")->deviceValue(path("Width")).toString());
}

void EndToEndTest::writesWhatIsTyped_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("integer") << path("Width") << QStringLiteral("640") << QVariant(640);
    QTest::newRow("hexadecimal") << path("ActionGroupKey") << QStringLiteral("0x1F")
                                 << QVariant(31);
    QTest::newRow("address") << path("GevPersistentIPAddress") << QStringLiteral("10.0.0.7")
                             << QVariant(0x0A000007);
    QTest::newRow("float") << path("ExposureTime") << QStringLiteral("1234") << QVariant(1234.0);
    QTest::newRow("boolean") << path("ReverseX") << QStringLiteral(" ") << QVariant(true);
    QTest::newRow("enumeration") << path("TriggerMode") << QStringLiteral("On")
                                 << QVariant(QStringLiteral("On"));
    QTest::newRow("string") << path("DeviceUserID") << QStringLiteral("Halle 7")
                            << QVariant(QByteArray("Halle 7"));
}

void EndToEndTest::writesWhatIsTyped()
{
    QFETCH(QString, feature);
    QFETCH(QString, typed);
    QFETCH(QVariant, expected);
    QTRY_VERIFY(!valueOnScreen(feature).isNull() || feature == path("ReverseX"));
    QWidget *editor = openEditor(feature);
    QVERIFY(editor);
    if (qobject_cast<QLineEdit *>(editor)) {
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    }
    QTest::keyClicks(editor, typed);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(camera("simulated:gige")->deviceValue(feature), expected);
}

void EndToEndTest::executesACommand()
{
    QTRY_VERIFY(shown(path("AcquisitionStart")).isValid());
    QWidget *editor = openEditor(path("AcquisitionStart"));
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_Space);
    // A camera that runs locks its image format.
    QTRY_COMPARE(camera("simulated:gige")->deviceValue(path("TLParamsLocked")), QVariant(1));
    const QModelIndex width = shown(path("Width")).siblingAtColumn(1);
    QTRY_VERIFY(width.data(Qt::ForegroundRole).isValid()); // greyed out
    QVERIFY(!openEditor(path("Width")));
}

void EndToEndTest::refusedValueFallsBackToTheCamerasOwn()
{
    const QString feature = path("Width");
    QTRY_VERIFY(!valueOnScreen(feature).isEmpty());
    const QString before = valueOnScreen(feature);
    m_guard.expectLogEntry(Core::Logging::ELogLevel::Fault,
                           QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeModel"),
                           QRegularExpression(QStringLiteral("Failed to set a feature value")));
    const QPointer<QWidget> editor = openEditor(feature);
    QVERIFY(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("99999999"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(!editor); // committed and closed from the event loop
    QTRY_COMPARE(valueOnScreen(feature), before);
    QCOMPARE(camera("simulated:gige")->deviceValue(feature).toString(), before);
}

void EndToEndTest::showsWhatChangesInTheCamera()
{
    const QString feature = path("DeviceUserID");
    QTRY_VERIFY(!valueOnScreen(feature).isEmpty());
    camera("simulated:gige")->changeOnDevice(feature, QByteArray("new name"));
    QTRY_COMPARE(valueOnScreen(feature), QStringLiteral("new name"));
}

void EndToEndTest::switchesBetweenSources()
{
    SourceSession *session = m_viewer->session();
    const int usb = session->indexOf(QStringLiteral("simulated:usb"));
    session->requestOpen(usb);
    QTRY_COMPARE(session->activeIndex(), usb);
    QCOMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("TO-5000U (305179)"));
    session->requestClose(usb);
    QTRY_VERIFY(!session->isOpen(usb));
    QCOMPARE(tree()->model()->index(0, 0).data().toString(), QStringLiteral("TO-5000G (305174)"));
    session->requestClose(session->activeIndex());
    QTRY_COMPARE(session->activeIndex(), -1);
    QVERIFY(!tree());
}

void EndToEndTest::unpluggingUnderAnOpenEditorIsSurvived()
{
    QTRY_VERIFY(!valueOnScreen(path("Width")).isEmpty());
    QPointer<QWidget> editor = openEditor(path("Width"));
    QVERIFY(editor);
    QTest::keyClicks(editor, QStringLiteral("64"));
    camera("simulated:gige")->unplug();
    m_viewer->session()->requestClose(m_viewer->session()->activeIndex());
    QTRY_COMPARE(m_viewer->session()->activeIndex(), -1);
    QTRY_VERIFY(!editor);
}

void EndToEndTest::visibilityLevelHidesRows()
{
    const auto hidden = [this](const char *name) {
        const QModelIndex index = shown(path(name));
        return tree()->isRowHidden(index.row(), index.parent());
    };
    QVERIFY(!hidden("Width"));
    QVERIFY(!hidden("SensorWidth"));
    m_viewer->window()->visibilityLevel()->setLevel(0);
    QVERIFY(!hidden("Width"));
    QVERIFY(hidden("SensorWidth"));
    m_viewer->window()->visibilityLevel()->setLevel(2);
    QVERIFY(!hidden("SensorWidth"));
}

void EndToEndTest::copiesTheFeaturesAsText()
{
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(m_viewer->window(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
    QCOMPARE(lines.constFirst(), QStringLiteral("TO-5000G (305174)"));
    QVERIFY(lines.size() > 250);
    const QString width =
        QStringLiteral("\t") + camera("simulated:gige")->deviceValue(path("Width")).toString();
    QVERIFY(std::any_of(lines.cbegin(), lines.cend(), [&width](const QString &line) {
        return line.trimmed().startsWith(QLatin1String("Width ")) && line.endsWith(width);
    }));
}

QTEST_MAIN(EndToEndTest)
#include "tst_endtoend.moc"
