// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "editorsnapshots.h"
#include "tessera/internal/view/featuretable.h"

#include "plugin/contract/parametercollection/booleanparameterdata.h"
#include "plugin/contract/parametercollection/commandparameterdata.h"
#include "plugin/contract/parametercollection/enumparameterdata.h"

#include "internal/legacy/editors/abstractitemeditor.h"

#include <QEvent>

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
        work += event->type() == QEvent::Paint || event->type() == QEvent::LayoutRequest ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int work = 0;
};

auto enumSnapshot()
{
    const auto data = liveSnapshot<EnumParameterData>();
    data->entryNames = {QStringLiteral("Off"), QStringLiteral("On")};
    data->entryDisplayNames = {QStringLiteral("Switched off"), QStringLiteral("Switched on")};
    data->valueText = QStringLiteral("On");
    return data;
}

} // namespace

/// What updates cost that change nothing.
class TestEditorUpdates : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void unchangedSnapshotsCostNothing_data()
    {
        QTest::addColumn<QSharedPointer<const ParameterData>>("snapshot");
        const auto row = [](const char *name, QSharedPointer<const ParameterData> snapshot) {
            QTest::newRow(name) << snapshot;
        };
        row("Switch", liveSnapshot<BooleanParameterData>());
        row("Choice", enumSnapshot());
        row("Go", liveSnapshot<CommandParameterData>());
        row("Slider", integerSnapshot(5, 0, 255));
        row("Alone", floatSnapshot(1.25, 0, 100, 0.25));
        row("Gain", floatSnapshot(1.25, 0, 100, 0.25));
        row("Gain/Alias", integerSnapshot(40, 0, 1000));
        row("ExposureTime/Alias", integerSnapshot(777, 100, 100000));
    }

    void unchangedSnapshotsCostNothing()
    {
        QFETCH(QSharedPointer<const ParameterData>, snapshot);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const QString feature = name.section(QLatin1Char('/'), 0, 0);
        FeatureTable table;
        table.show(m_collection, {feature});
        QWidget *widget = table.editor(feature);
        auto *editor = dynamic_cast<AbstractItemEditor *>(widget);
        const auto update = [&] {
            if (name == feature) {
                editor->updateEditor(pair(QTest::currentDataTag(), snapshot));
            } else { // reaches its editor by itself
                node(QTest::currentDataTag()).send(snapshot);
            }
        };
        update();
        update();
        QTest::qWait(0);
        QCoreApplication::processEvents();

        const WorkCounter counter(widget);
        for (int snapshots = 0; snapshots < 1000; ++snapshots) {
            update();
        }
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCOMPARE(counter.work, 0);
        widget->update();
        QTRY_VERIFY(counter.work > 0); // the counter does count
    }
};

QTEST_MAIN(TestEditorUpdates)
#include "tst_editorupdates.moc"
