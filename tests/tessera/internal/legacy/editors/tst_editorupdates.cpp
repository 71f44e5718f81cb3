// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "editorsnapshots.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"

#include "internal/legacy/editors/checkboxeditor.h"
#include "internal/legacy/editors/enumeditor.h"
#include "internal/legacy/editors/floateditor.h"
#include "internal/legacy/editors/floatslidereditor.h"
#include "internal/legacy/editors/inteditor.h"
#include "internal/legacy/editors/intslidereditor.h"
#include "internal/legacy/editors/toolbuttoneditor.h"
#include "support/warningguard.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QTest>

#include <functional>
#include <memory>

using namespace ParameterCollection;

namespace {

// Counts what makes a view work: paints and requests for a new layout.
class WorkCounter final : public QObject
{
public:
    explicit WorkCounter(QWidget *top)
    {
        top->installEventFilter(this);
        const QList<QWidget *> children = top->findChildren<QWidget *>();
        for (QWidget *widget : children) {
            widget->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
        } else if (event->type() == QEvent::LayoutRequest) {
            ++layouts;
        }
        return QObject::eventFilter(watched, event);
    }

    int paints = 0;
    int layouts = 0;
};

QSharedPointer<const ParameterData> enumSnapshot()
{
    const auto data = liveSnapshot<EnumParameterData>();
    for (int entry = 0; entry < 10; ++entry) {
        data->entryNames.append(QStringLiteral("Entry%1").arg(entry));
        data->entryDisplayNames.append(QStringLiteral("Entry number %1").arg(entry));
    }
    data->valueText = QStringLiteral("Entry9");
    return data;
}

} // namespace

/// What updates cost that change nothing.
class TestEditorUpdates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_camera = std::make_unique<EditorCamera>();
    }

    void cleanup()
    {
        m_guard.verify();
    }

    void unchangedSnapshotsCostNothing_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        const auto addRow = [](const char *row, const char *name,
                               QSharedPointer<const ParameterData> data) {
            QTest::newRow(row) << QByteArray(name) << data;
        };
        addRow("boolean", "Switch", liveSnapshot<BooleanParameterData>());
        addRow("enumeration", "Choice", enumSnapshot());
        addRow("command", "Go", liveSnapshot<CommandParameterData>());
        addRow("integer", "Int", integerSnapshot(5, 0, 255, 1, "HexNumber"));
        addRow("integer on a slider", "IntSlider", integerSnapshot(5, 0, 255));
        addRow("float", "Float", floatSnapshot(1.25, 0, 100, 0.25));
        addRow("float on a slider", "Gain", floatSnapshot(1.25, 0, 100, 0.25));
        addRow("alias on a slider", "Gain/Alias", integerSnapshot(40, 0, 1000));
        addRow("alias of an exposure", "ExposureTime/Alias", integerSnapshot(777, 100, 100000));
    }

    void unchangedSnapshotsCostNothing()
    {
        QFETCH(QByteArray, name);
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        const EditorCamera &camera = *m_camera;
        const std::unique_ptr<QWidget> editor(makeEditor(camera, name));
        const std::function<void()> update = updater(camera, name, snapshot, editor.get());
        editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(editor.get()));
        update();
        update();
        QTest::qWait(0);
        QCoreApplication::processEvents();

        const WorkCounter counter(editor.get());
        QElapsedTimer timer;
        timer.start();
        for (int snapshots = 0; snapshots < 10000; ++snapshots) {
            update();
        }
        const qint64 elapsed = timer.elapsed();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(counter.paints, 0);
        QCOMPARE(counter.layouts, 0);
        editor->update();
        QTRY_VERIFY(counter.paints > 0); // the counter does count
#ifdef QT_NO_DEBUG
        QVERIFY2(elapsed < 200, qPrintable(QStringLiteral("%1 ms").arg(elapsed)));
#else
        Q_UNUSED(elapsed)
#endif
    }

private:
    static QWidget *makeEditor(const EditorCamera &camera, const QByteArray &name)
    {
        if (name == "Switch") {
            return new CheckBoxEditor(nullptr);
        }
        if (name == "Choice") {
            return new EnumEditor(nullptr);
        }
        if (name == "Go") {
            return new ToolButtonEditor(nullptr);
        }
        if (name == "Int") {
            return new IntEditor(nullptr);
        }
        if (name == "IntSlider") {
            return new IntSliderEditor(nullptr);
        }
        if (name == "Float") {
            return new FloatEditor(nullptr, QStringLiteral("Linear"));
        }
        return new FloatSliderEditor(camera.collection, nullptr);
    }

    // An alias reaches its editor by itself, once the float has been shown.
    static std::function<void()> updater(const EditorCamera &camera, const QByteArray &name,
                                         const QSharedPointer<const ParameterData> &snapshot,
                                         QWidget *widget)
    {
        auto *editor = dynamic_cast<AbstractItemEditor *>(widget);
        if (!name.endsWith("/Alias")) {
            const QByteArray feature = name == "IntSlider" ? QByteArray("Int") : name;
            const ParameterAndData pair = camera.pair(feature.constData(), snapshot);
            return [editor, pair] { editor->updateEditor(pair); };
        }
        const QByteArray feature = name.left(name.indexOf('/'));
        camera.node(feature.constData()).maximum = 100000;
        editor->updateEditor(
            camera.pair(feature.constData(), floatSnapshot(1.25, 0, 100000, 0.25)));
        camera.node(name.constData()).number = snapshot->valueText.toDouble();
        return [node = &camera.node(name.constData()), snapshot] { node->send(snapshot); };
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<EditorCamera> m_camera;
};

QTEST_MAIN(TestEditorUpdates)
#include "tst_editorupdates.moc"
