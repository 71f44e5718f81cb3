// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "tessera/featuretest.h"

#include <QElapsedTimer>

#include <cmath>
#include <limits>

class tst_FeatureTreeScale : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    // Ten times the work is an exponent of 1; what is quadratic has 2.
    void tenTimesTheFeaturesCostAboutTenTimesTheWork()
    {
        const QVector<qint64> few = nanoseconds(1000);
        const QVector<qint64> many = nanoseconds(10000);
        for (int work = 0; work < few.size(); ++work) {
            const double ratio = double(many.at(work)) / double(few.at(work));
            QVERIFY2(std::log10(ratio) < 1.6, qPrintable(QString::number(work)));
        }
    }

private:
    // The shortest of five runs: opening, search, use case, filter. A category holds a hundred
    // features, of which none may be subscribed or read.
    static QVector<qint64> nanoseconds(int features)
    {
        QString text;
        QStringList names;
        for (int i = 0; i < features; ++i) {
            text += i % 100 == 0 ? QStringLiteral("Category%1\n").arg(i / 100) : QString();
            text += QStringLiteral("  Feature%1 Integer 1\n").arg(i);
            names.append(QStringLiteral("@CameraDevice/Feature%1").arg(i));
        }
        const auto collection = QSharedPointer<Tests::FakeCollection>::create();
        collection->attach(QStringLiteral("@CameraDevice"), text);
        QVector<qint64> shortest(4, std::numeric_limits<qint64>::max());
        for (int run = 0; run < 5; ++run) {
            FeatureTreeView view;
            auto &proxy = *qobject_cast<FeatureTreeProxyModel *>(view.model());
            QElapsedTimer timer;
            timer.start();
            const auto lap = [&](int work) {
                QCoreApplication::processEvents();
                shortest[work] = qMin(shortest.at(work), timer.nsecsElapsed());
                timer.restart();
            };
            proxy.addParameterCollection(collection, QStringLiteral("Camera"),
                                         QStringLiteral("@CameraDevice"), true);
            view.show();
            view.expandAll();
            lap(0);
            proxy.markSearchMatches(QStringLiteral("feature1"));
            lap(1);
            proxy.markFavorites(names);
            lap(2);
            proxy.setFeatureNameFilter(names);
            lap(3);
        }
        for (const QString &name : qAsConst(names)) {
            const Tests::FakeNode &node = collection->node(name);
            [&] { QVERIFY(!node.isSubscribed() && node.refreshes + node.invalidations == 0); }();
        }
        return shortest;
    }
};

QTEST_MAIN(tst_FeatureTreeScale)
#include "tst_featuretreescale.moc"
