// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Measures a browser against the floor of Qt's own views, in the same run, and prints a table.

#include "plainbrowser.h"

#include "internal/legacy/browser/featuretreewidget.h"
#include "internal/legacy/tree/featuretreeview.h"
#include "internal/view/featuretableview.h"

#include <host/framework/camerarecord.h>
#include <host/simulation/generator.h>
#include <host/simulation/simulatedcollection.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <malloc.h>
#include <memory>

namespace {

constexpr int repetitions = 9;
constexpr int perCategory = 50;
const QSize browserSize(700, 500);

double allocatedKilobytes()
{
    return static_cast<double>(mallinfo2().uordblks) / 1024.0;
}

/// Milliseconds that `work` takes until all is painted that it changed.
double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(const std::function<double(int)> &measure)
{
    QVector<double> times;
    for (int repetition = 0; repetition < repetitions; ++repetition) {
        times.append(measure(repetition));
    }
    std::sort(times.begin(), times.end());
    return times.at(repetitions / 2);
}

/// Median times in milliseconds, and memory in KB for each feature.
struct Figures
{
    double open = 0.0;
    double select = 0.0;
    double search = 0.0;
    double value = 0.0;
    double storm = 0.0; // ten updates of every shown value
    double memory = 0.0;
};

class Browser final
{
public:
    explicit Browser(int features)
        : m_collection(Simulation::generateCollection(features))
        , m_widget(std::make_unique<FeatureTreeWidget>(
              QString(),
              Core::AppCoreComponents::BaseInfoPtr(new Host::CameraRecord(
                  QStringLiteral("Camera"), QStringLiteral("Model"), QStringLiteral("GEV"))),
              nullptr))
    {
        m_widget->resize(browserSize);
        m_widget->setUserTabMode(false);
        m_widget->show();
        QCoreApplication::processEvents();
    }

    void open()
    {
        m_widget->addParameterCollection(m_collection, QStringLiteral("Camera"),
                                         QStringLiteral("@CameraDevice"), true);
    }
    void select(int category)
    {
        const QModelIndex root = m_widget->treeView()->model()->index(0, 0);
        m_widget->treeView()->setCurrentIndex(
            m_widget->treeView()->model()->index(category, 0, root));
    }
    void search(const QString &text)
    {
        m_widget->findChild<QLineEdit *>(QStringLiteral("filterEdit"))->setText(text);
    }
    void publish(int feature)
    {
        m_collection->parameter(QStringLiteral("@CameraDevice/Feature%1").arg(feature))
            ->refresh(true);
    }
    QVector<QByteArray> editors() const
    {
        QVector<QByteArray> classes;
        const auto *table = m_widget->tableView();
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QWidget *editor = table->indexWidget(table->model()->index(row, 1));
            classes.append(editor ? editor->metaObject()->className() : "");
        }
        return classes;
    }

private:
    QSharedPointer<Simulation::SimulatedCollection> m_collection;
    std::unique_ptr<FeatureTreeWidget> m_widget;
};

Figures measureBrowser(int features, QVector<QByteArray> &editors)
{
    Figures figures;
    std::unique_ptr<Browser> browser;
    const double before = allocatedKilobytes();
    figures.open = median([&](int) {
        browser.reset();
        browser = std::make_unique<Browser>(features);
        return milliseconds([&] { browser->open(); });
    });
    figures.select =
        median([&](int round) { return milliseconds([&] { browser->select(round % 2); }); });
    browser->select(0);
    editors = browser->editors();
    figures.search = median([&](int round) {
        return milliseconds([&] { browser->search(QStringLiteral("ture%1").arg(round)); });
    });
    figures.value = median([&](int) { return milliseconds([&] { browser->publish(3); }); });
    figures.storm = median([&](int) {
        return milliseconds([&] {
            for (int update = 0; update < 10 * perCategory; ++update) {
                browser->publish(1 + update % perCategory);
            }
        });
    });
    figures.memory = (allocatedKilobytes() - before) / features;
    return figures;
}

Figures measureFloor(int features, const QVector<QByteArray> &editors)
{
    Figures figures;
    std::unique_ptr<PlainBrowser> floor;
    const double before = allocatedKilobytes();
    figures.open = median([&](int) {
        floor.reset();
        return milliseconds([&] {
            floor = std::make_unique<PlainBrowser>(features, editors);
            floor->resize(browserSize);
            floor->show();
        });
    });
    figures.select =
        median([&](int round) { return milliseconds([&] { floor->select(round % 2); }); });
    figures.search = median([&](int round) {
        return milliseconds([&] { floor->mark(QStringLiteral("ture%1").arg(round)); });
    });
    figures.value = median([&](int round) {
        return milliseconds([&] { floor->setValue(2, QString::number(round)); });
    });
    figures.storm = median([&](int) {
        return milliseconds([&] {
            for (int update = 0; update < 10 * perCategory; ++update) {
                floor->setValue(update % perCategory, QString::number(update));
            }
        });
    });
    figures.memory = (allocatedKilobytes() - before) / features;
    return figures;
}

void print(QTextStream &out, int features, const char *what, double browser, double floor)
{
    out << QStringLiteral("| %1 | %2 | %3 | %4 | %5 |\n")
               .arg(features)
               .arg(QLatin1String(what))
               .arg(browser, 0, 'f', 2)
               .arg(floor, 0, 'f', 2)
               .arg(browser / floor, 0, 'f', 2);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QTextStream out(stdout);
    out << "| features | what | browser | floor | ratio |\n|---|---|---|---|---|\n";
    for (const int features : {100, 1000, 10000}) {
        QVector<QByteArray> editors;
        const Figures browser = measureBrowser(features, editors);
        const Figures floor = measureFloor(features, editors);
        print(out, features, "open until painted, ms", browser.open, floor.open);
        print(out, features, "category until painted, ms", browser.select, floor.select);
        print(out, features, "search key until painted, ms", browser.search, floor.search);
        print(out, features, "one value until painted, ms", browser.value, floor.value);
        print(out, features, "ten updates of all shown, ms", browser.storm, floor.storm);
        print(out, features, "memory, KB each", browser.memory, floor.memory);
        out.flush();
    }
    return 0;
}
