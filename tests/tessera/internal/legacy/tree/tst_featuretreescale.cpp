// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/tree/featuretreemodel.h"
#include "internal/legacy/tree/featuretreeproxymodel.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "plugin/contract/parametercollection/parameter.h"
#include "support/fakecollection.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include <QElapsedTimer>
#include <QTest>

#include <cmath>
#include <functional>
#include <memory>

namespace {

const QString path = QStringLiteral("@CameraDevice");

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
        collection->attach(path, text);
    }
    FeatureTreeProxyModel &open()
    {
        view = std::make_unique<FeatureTreeView>();
        auto *proxy = qobject_cast<FeatureTreeProxyModel *>(view->model());
        proxy->addParameterCollection(collection, QStringLiteral("Camera"), path, true);
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

qint64 shortestOfFive(Browser &browser, const Work &work)
{
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int run = 0; run < 5; ++run) {
        FeatureTreeProxyModel &proxy = browser.open();
        QElapsedTimer timer;
        timer.start();
        work(browser, proxy);
        shortest = qMin(shortest, timer.nsecsElapsed());
    }
    return shortest;
}

} // namespace

Q_DECLARE_METATYPE(Work)

class tst_FeatureTreeScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }
    void cleanup()
    {
        m_guard.verify();
    }
    void tenTimesTheFeaturesCostAboutTenTimesTheWork_data()
    {
        QTest::addColumn<Work>("work");
        QTest::newRow("opening") << Work(
            [](Browser &browser, FeatureTreeProxyModel &) { browser.open(); });
        QTest::newRow("search marks") << Work([](Browser &, FeatureTreeProxyModel &proxy) {
            proxy.markSearchMatches(QStringLiteral("feature1"));
            proxy.rowCount(proxy.index(0, 0));
        });
        QTest::newRow("use case of all features")
            << Work([](Browser &browser, FeatureTreeProxyModel &proxy) {
                   proxy.markFavorites(browser.names);
               });
        QTest::newRow("filter by all names")
            << Work([](Browser &browser, FeatureTreeProxyModel &proxy) {
                   proxy.setFeatureNameFilter(browser.names);
               });
        QTest::newRow("another level") << Work([](Browser &browser, FeatureTreeProxyModel &proxy) {
            proxy.setVisibility(0);
            browser.view->setVisibility(GenApi::Beginner);
            proxy.invalidate();
            QCoreApplication::processEvents();
        });
    }

    // Ten times the work is an exponent of 1; what is quadratic has 2.
    void tenTimesTheFeaturesCostAboutTenTimesTheWork()
    {
        QFETCH(Work, work);
        Browser small(1000);
        Browser large(10000);
        const double ratio = static_cast<double>(shortestOfFive(large, work))
            / static_cast<double>(shortestOfFive(small, work));
        const double exponent = std::log10(ratio);
        qInfo("exponent %.2f", exponent);
        QVERIFY(exponent < 1.6);
    }

    void aTreeSubscribesAndReadsNoPlainFeature()
    {
        Browser browser(1000);
        FeatureTreeProxyModel &proxy = browser.open();
        proxy.markSearchMatches(QStringLiteral("feature"));
        proxy.setFeatureNameFilter(browser.names);
        proxy.setShowUnavailable(true);
        QCoreApplication::processEvents();
        const bool untouched =
            std::all_of(browser.names.cbegin(), browser.names.cend(), [&](const QString &name) {
                const Tests::FakeNode &node = browser.collection->node(name);
                return !node.isSubscribed() && node.refreshes == 0 && node.invalidations == 0;
            });
        QVERIFY(untouched);
        QVERIFY(browser.collection->node(QStringLiteral("@CameraDevice/Category0")).isSubscribed());
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeScale)
#include "tst_featuretreescale.moc"
