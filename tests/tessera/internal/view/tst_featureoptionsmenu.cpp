// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/featureoptionsmenu.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "tessera/featuretest.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <string>

using ParameterCollection::ParameterName;
using Plugin::Tessera::Internal::View::CFeatureOptionsMenu;

namespace {

struct Edits
{
    const char *name;
    const char *steps;
    const char *state; // of the first two tabs
    const char *emitted; // by the last step. N: names, S: selection, a digit: list of that tab
};

const Edits allEdits[] = {
    {"new", "cancel", "=|=", "N0123"},
    {"stored", "list 1 A B; name 1 tab", "=|tab=AB", "N"},
    {"add", "list 0 A; add 0 B", "=AB|=", "0"},
    {"add twice", "add 0 A; add 0 A", "=A|=", ""},
    {"remove", "list 0 A B A; remove 0 A", "=B|=", "0"},
    {"rename", "name 0 old; rename 0 Old", "Old=|=", "N"},
    {"delete", "list 0 A; name 0 tab; delete 0", "=|=", "N0"},
    {"cancel delete", "list 0 A; name 0 tab; delete 0; cancel", "tab=A|=", "N0123"},
    {"cancel of what was never stored", "add 0 A; rename 0 tab; cancel", "=|=", "N0123"},
    {"confirm", "list 0 A; name 0 a; add 0 B; ok 0; add 0 C; rename 0 c; cancel",
     "a=AB|=", "N0123"},
    {"stored a second time", "list 0 A; name 0 a; list 0 B; name 0 b; cancel", "a=A|=", "N0123"},
    {"reorder", "list 0 A B; list 0 B A; list 0 B A; cancel", "=BA|=", "N0123"},
    {"no source", "list 0 A; unplug; rename 0 tab; add 0 B; remove 0 A", "tab=A|=", ""},
    {"select without names", "select", "=|=", "S0"},
    {"select the first name", "index 1; name 2 c; name 3 d; select", "=|=", "S0S2"},
    {"select by way of the first", "name 1 b; index 1; select", "=|b=", "S0S1"},
    {"no such tab", "list 0 A; add -1 A; remove 4 A; rename -1 x; delete 4; list 4 B; name -1 x",
     "=A|=", ""},
};

} // namespace

class tst_FeatureOptionsMenu : public FeatureTest
{
    Q_OBJECT

private Q_SLOTS:
    void keepsAWorkingCopyBesideTheSavedState_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("emitted");
        for (const Edits &edits : allEdits) {
            QTest::newRow(edits.name) << edits.steps << edits.state << edits.emitted;
        }
    }

    void keepsAWorkingCopyBesideTheSavedState()
    {
        QFETCH(QString, steps);
        CFeatureOptionsMenu menu;
        menu.setParameterCollection(m_collection);
        QString emitted;
        connect(&menu, &CFeatureOptionsMenu::userTabNamesChanged,
                [&] { emitted += QLatin1Char('N'); });
        connect(&menu, &CFeatureOptionsMenu::featureListsChanged,
                [&](int tab) { emitted += QString::number(tab); });
        connect(&menu, &CFeatureOptionsMenu::userTabIndexChanged,
                [&] { emitted += QLatin1Char('S') + QString::number(menu.userTabIndex()); });
        const QStringList allSteps = steps.split(QStringLiteral("; "));
        for (const QString &step : allSteps) {
            emitted.clear();
            perform(menu, step.split(QLatin1Char(' ')));
        }
        QTEST(QStringList({state(menu, 0), state(menu, 1)}).join(QLatin1Char('|')), "state");
        QTEST(emitted, "emitted");
    }

    void namesFeaturesAsTheTreesDo()
    {
        cacheDisplayName(QStringLiteral("@CameraDevice/Width"), QStringLiteral("Image Width"));
        CFeatureOptionsMenu menu;
        menu.setParameterCollection(m_collection);
        menu.onAddFeature(2, QStringLiteral("@CameraDevice/Width"));
        menu.onAddFeature(2, QStringLiteral("@StreamGrabber0/Type/Deep"));
        QStringList names;
        const QVariantList features = menu.featureLists().at(2).toList();
        names.reserve(features.size());
        for (const QVariant &feature : features) {
            names.append(feature.toMap().value(QStringLiteral("name")).toString());
        }
        QCOMPARE(names, QStringList({QStringLiteral("Image Width"), QStringLiteral("Deep")}));
    }

private:
    static QString state(const CFeatureOptionsMenu &menu, int tab)
    {
        QString text = menu.userTabNames().at(tab) + QLatin1Char('=');
        const auto list = menu.featureNameList(tab);
        for (const ParameterName &feature : list) {
            text += feature.toString();
        }
        return text;
    }

    // Number of a tab and further words follow the name of a step.
    static void perform(CFeatureOptionsMenu &menu, const QStringList &words)
    {
        const int tab = words.value(1).toInt();
        const QString word = words.value(2);
        CFeatureOptionsMenu::NameList list;
        std::transform(words.cbegin() + qMin(2, words.size()), words.cend(),
                       std::back_inserter(list),
                       [](const QString &feature) { return ParameterName(feature); });
        const auto confirm = [&menu, tab] {
            menu.setFeatureNameList(tab, menu.featureNameList(tab));
            menu.setUserTabName(tab, menu.userTabNames().at(tab));
        };
        const std::map<std::string, std::function<void()>> steps {
            {"list", [&] { menu.setFeatureNameList(tab, list); }},
            {"name", [&] { menu.setUserTabName(tab, word); }},
            {"add", [&] { menu.onAddFeature(tab, word); }},
            {"remove", [&] { menu.onRemoveFeature(tab, word); }},
            {"rename", [&] { menu.onNameChanged(tab, word); }},
            {"delete", [&] { menu.onRemove(tab); }},
            {"index", [&] { menu.setUserTabIndex(tab); }},
            {"select", [&] { menu.selectFirstNamedTab(); }},
            {"ok", confirm},
            {"cancel", [&] { menu.revertChanges(); }},
            {"unplug", [&] { menu.setParameterCollection({}); }},
        };
        steps.at(words.first().toStdString())();
    }
};

QTEST_MAIN(tst_FeatureOptionsMenu)
#include "tst_featureoptionsmenu.moc"
