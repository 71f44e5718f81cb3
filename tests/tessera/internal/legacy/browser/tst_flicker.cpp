// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"

#include <host/framework/camerarecord.h>
#include <host/simulation/generator.h>
#include <host/simulation/simulatedcollection.h>

#include <plugin/contract/parametercollection/parameter.h>

#include <QApplication>
#include <QtTest>

/// Counts what is painted in a window.
class PaintCounter final : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            ++count;
        }
        return false;
    }
    int count = 0;
};

class tst_Flicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paintsWhatChangesAndNothingElse()
    {
        const auto camera = Simulation::generateCollection(100);
        FeatureTreeWidget browser(QString(),
                                  Core::AppCoreComponents::BaseInfoPtr(new Host::CameraRecord(
                                      QStringLiteral("C"), QStringLiteral("M"), {})),
                                  nullptr);
        browser.setUserTabMode(false);
        browser.resize(700, 500);
        browser.addParameterCollection(camera, QStringLiteral("C"), QStringLiteral("@CameraDevice"),
                                       true);
        browser.show();
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        const QAbstractItemModel *tree = browser.treeView()->model();
        browser.treeView()->setCurrentIndex(tree->index(0, 0, tree->index(0, 0)));
        const auto readAll = [&camera] {
            for (int feature = 1; feature <= 50; ++feature) {
                camera->parameter(QStringLiteral("@CameraDevice/Feature%1").arg(feature))
                    ->refresh(true);
            }
            QCoreApplication::processEvents();
        };
        readAll();
        QCoreApplication::processEvents();
        PaintCounter painted;
        qApp->installEventFilter(&painted);
        readAll();
        readAll();
        QCOMPARE(painted.count, 0);
        camera->parameter(QStringLiteral("@CameraDevice/Feature3"))
            ->setFromString(QStringLiteral("0x7"));
        QTRY_VERIFY(painted.count > 0);
    }
};

QTEST_MAIN(tst_Flicker)
#include "tst_flicker.moc"
