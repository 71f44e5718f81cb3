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

#include <plugin/contract/parametercollection/enumparameter.h>
#include <plugin/contract/parametercollection/enumparameterdata.h>
#include <plugin/contract/parametercollection/parameter.h>
#include <plugin/contract/parametercollection/parameternode.h>

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
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as an event loop does
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

/// Median times in milliseconds, and memory.
struct Figures
{
    double read = 0.0; // what loading all features asks of the camera, without a browser
    double write = 0.0; // what ten updates take without a browser
    double open = 0.0;
    double load = 0.0; // the first search key, which loads all features
    double select = 0.0;
    double search = 0.0;
    double value = 0.0;
    double storm = 0.0; // ten updates of every shown value
    double memory = 0.0; // KB
};

/// Gives the feature another value than in the round before.
void change(Simulation::SimulatedCollection &camera, int feature, int round)
{
    using namespace ParameterCollection;
    const auto parameter = camera.parameter(QStringLiteral("@CameraDevice/Feature%1").arg(feature));
    if (const auto choice = parameter.objectCast<IEnumParameter>()) {
        const auto data = choice->parameterData().dynamicCast<const EnumParameterData>();
        choice->setFromString(data->entryNames.at(round % 2));
    } else if (parameter->type() == Boolean) {
        parameter->setFromString(round % 2 == 0 ? QStringLiteral("1") : QStringLiteral("0"));
    } else if (parameter->type() == Command) {
        parameter->refresh(true);
    } else {
        parameter->setFromString(QString::number(1 + round % 2));
    }
}
/// Ten values for each feature of the first category.
void changeAll(Simulation::SimulatedCollection &camera)
{
    for (int update = 0; update < 10 * perCategory; ++update) {
        change(camera, 1 + update % perCategory, update / perCategory);
    }
}

class Browser final
{
public:
    explicit Browser(QSharedPointer<Simulation::SimulatedCollection> collection)
        : m_collection(std::move(collection))
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

/// Reads each node as an item of the tree does when it is made.
void readAll(Simulation::SimulatedCollection &collection, const QString &category,
             QVector<QSharedPointer<ParameterCollection::IParameter>> &parameters)
{
    const QStringList names = collection.children(category, 0, true);
    for (const QString &name : names) {
        const auto parameter = collection.parameter(name);
        parameters.append(parameter);
        const auto node = parameter->node();
        QStringList texts {parameter->fullName(), parameter->name()};
        for (const char *key : {"Unit", "Description", "Tooltip", "DocuURL", "DisplayName"}) {
            texts.append(node->property(QLatin1String(key)));
        }
        const bool isImplemented = parameter->isImplemented();
        if (isImplemented && parameter->visibility() != GenApi::Invisible
            && parameter->type() == ParameterCollection::Category) {
            readAll(collection, name, parameters);
        }
    }
}

Figures measureBrowser(int features, QVector<QByteArray> &editors)
{
    Figures figures;
    const auto collection = Simulation::generateCollection(features);
    // The camera's own objects are kept, so that they do not count as the browser's.
    QVector<QSharedPointer<ParameterCollection::IParameter>> parameters;
    figures.read = median([&](int) {
        parameters.clear();
        return milliseconds(
            [&] { readAll(*collection, QStringLiteral("@CameraDevice/Root"), parameters); });
    });
    figures.write = median([&](int) { return milliseconds([&] { changeAll(*collection); }); });
    std::unique_ptr<Browser> browser;
    const double before = allocatedKilobytes();
    figures.open = median([&](int) {
        browser.reset();
        browser = std::make_unique<Browser>(collection);
        return milliseconds([&] { browser->open(); });
    });
    figures.load = milliseconds([&] { browser->search(QStringLiteral("t")); });
    figures.select =
        median([&](int round) { return milliseconds([&] { browser->select(round % 2); }); });
    browser->select(0);
    editors = browser->editors();
    figures.search = median([&](int round) {
        return milliseconds([&] { browser->search(QStringLiteral("ture%1").arg(round)); });
    });
    figures.value =
        median([&](int round) { return milliseconds([&] { change(*collection, 3, round); }); });
    figures.storm = median([&](int) { return milliseconds([&] { changeAll(*collection); }); });
    figures.memory = allocatedKilobytes() - before;
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
    figures.load = milliseconds([&] { floor->mark(QStringLiteral("t")); });
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
    figures.memory = allocatedKilobytes() - before;
    return figures;
}

void print(QTextStream &out, int features, const char *what, double browser, double floor,
           double allowed)
{
    out << QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 |\n")
               .arg(features)
               .arg(QLatin1String(what))
               .arg(browser, 0, 'f', 2)
               .arg(floor, 0, 'f', 2)
               .arg(allowed, 0, 'f', 2)
               .arg(QLatin1String(browser <= allowed ? "yes" : "NO"));
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    // What Qt makes once, such as fonts and pixmaps of the style, is nobody's.
    QVector<QByteArray> editors;
    measureBrowser(100, editors);
    measureFloor(100, editors);
    QTextStream out(stdout);
    out << "| features | what | browser | floor | goal | kept |\n|---|---|---|---|---|---|\n";
    for (const int features : {100, 1000, 10000}) {
        const Figures browser = measureBrowser(features, editors);
        const Figures floor = measureFloor(features, editors);
        const auto row = [&](const char *what, double Figures::*figure, double allowed = 0.0) {
            const double goal = allowed > 0.0 ? allowed : 1.5 * floor.*figure;
            print(out, features, what, browser.*figure, floor.*figure, goal);
        };
        row("open until painted, ms", &Figures::open);
        row("first search key, ms", &Figures::load, 1.5 * floor.load + browser.read);
        row("category until painted, ms", &Figures::select);
        row("further search key, ms", &Figures::search);
        row("one value until painted, ms", &Figures::value);
        row("ten updates of all shown, ms", &Figures::storm, 1.5 * floor.storm + browser.write);
        row("memory, KB", &Figures::memory, floor.memory + features);
        out.flush();
    }
    return 0;
}
