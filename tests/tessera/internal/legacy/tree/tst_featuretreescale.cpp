// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "tessera/featuretest.h"

#include <QElapsedTimer>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <memory>

namespace {

/// A view of as many features, a hundred in each category.
struct Browser
{
    explicit Browser(int features)
    {
        QString text;
        for (int i = 0; i < features; ++i) {
            if (i % 100 == 0) {
                text += QStringLiteral("Category%1\n").arg(i / 100);
            }
            text += QStringLiteral("  Feature%1 Integer 1\n").arg(i);
            names.append(QStringLiteral("@CameraDevice/Feature%1").arg(i));
        }
        collection = QSharedPointer<Tests::FakeCollection>::create();
        collection->attach(QStringLiteral("@CameraDevice"), text);
    }
    FeatureTreeProxyModel &open()
    {
        view = std::make_unique<FeatureTreeView>();
        auto *proxy = qobject_cast<FeatureTreeProxyModel *>(view->model());
        proxy->addParameterCollection(collection, QStringLiteral("Camera"),
                                      QStringLiteral("@CameraDevice"), true);
        proxy->invalidate();
        view->resize(300, 400);
        view->show();
        view->expandAll();
        QCoreApplication::processEvents();
        return *proxy;
    }

    QSharedPointer<Tests::FakeCollection> collection;
    std::unique_ptr<FeatureTreeView> view;
    QStringList names;
};

using Work = std::function<void(Browser &, FeatureTreeProxyModel &)>;

} // namespace

class tst_FeatureTreeScale : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    // Ten times the work is an exponent of 1; what is quadratic has 2.
    void tenTimesTheFeaturesCostAboutTenTimesTheWork()
    {
        using Proxy = FeatureTreeProxyModel;
        const std::map<const char *, Work> works {
            {"opening", [](Browser &browser, Proxy &) { browser.open(); }},
            {"search marks",
             [](Browser &, Proxy &proxy) { proxy.markSearchMatches(QStringLiteral("feature1")); }},
            {"use case",
             [](Browser &browser, Proxy &proxy) { proxy.markFavorites(browser.names); }},
            {"filter",
             [](Browser &browser, Proxy &proxy) { proxy.setFeatureNameFilter(browser.names); }},
        };
        Browser small(1000);
        Browser large(10000);
        for (const auto &[name, work] : works) {
            const double exponent = std::log10(nanoseconds(large, work) / nanoseconds(small, work));
            QVERIFY2(exponent < 1.6, name);
        }
    }

    void aTreeSubscribesAndReadsNoPlainFeature()
    {
        Browser browser(1000);
        FeatureTreeProxyModel &proxy = browser.open();
        proxy.markSearchMatches(QStringLiteral("feature"));
        proxy.setFeatureNameFilter(browser.names);
        proxy.setShowUnavailable(true);
        QCoreApplication::processEvents();
        for (const QString &name : qAsConst(browser.names)) {
            const Tests::FakeNode &node = browser.collection->node(name);
            QVERIFY(!node.isSubscribed() && node.refreshes == 0 && node.invalidations == 0);
        }
    }

private:
    // The shortest of five runs.
    static double nanoseconds(Browser &browser, const Work &work)
    {
        qint64 shortest = std::numeric_limits<qint64>::max();
        for (int run = 0; run < 5; ++run) {
            FeatureTreeProxyModel &proxy = browser.open();
            QElapsedTimer timer;
            timer.start();
            work(browser, proxy);
            shortest = qMin(shortest, timer.nsecsElapsed());
        }
        return static_cast<double>(shortest);
    }
};

QTEST_MAIN(tst_FeatureTreeScale)
#include "tst_featuretreescale.moc"
