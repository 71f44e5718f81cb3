// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/view/featureoptionsmenu.h"

#include "internal/legacy/tree/displaynamecache.h"
#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QSignalSpy>
#include <QTest>

using ParameterCollection::ParameterName;
using Plugin::Tessera::Internal::View::CFeatureOptionsMenu;

class tst_FeatureOptionsMenu : public QObject
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

    void keepsAWorkingCopyBesideTheSavedState_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("state"); // tab 1, tab 2
        QTest::addColumn<QString>("signalsOfLastStep"); // N: names, a digit: list of that tab
        const auto row = [](const char *name, const char *steps, const char *state,
                            const char *emitted) {
            QTest::newRow(name) << QString::fromLatin1(steps) << QString::fromLatin1(state)
                                << QString::fromLatin1(emitted);
        };
        row("new", "cancel", "=|=", "N0123");
        row("stored", "list 1 A B; name 1 tab", "=|tab=A B", "N");
        row("add", "list 0 A; add 0 B", "=A B|=", "0");
        row("add twice", "add 0 A; add 0 A", "=A|=", "");
        row("other case", "add 0 A; add 0 a", "=A a|=", "0");
        row("same feature in two tabs", "add 0 A; add 1 A", "=A|=A", "1");
        row("remove", "list 0 A B A; remove 0 A", "=B|=", "0");
        row("remove unknown", "list 0 A; remove 0 B", "=A|=", "");
        row("rename", "name 0 old; rename 0 new", "new=|=", "N");
        row("rename to the same", "name 0 old; rename 0 old", "old=|=", "");
        row("rename to other case", "name 0 old; rename 0 Old", "Old=|=", "N");
        row("delete", "list 0 A; name 0 tab; delete 0", "=|=", "N0");
        row("cancel add", "list 0 A; add 0 B; cancel", "=A|=", "N0123");
        row("cancel remove", "list 0 A B; remove 0 A; cancel", "=A B|=", "N0123");
        row("cancel rename", "name 1 old; rename 1 new; cancel", "=|old=", "N0123");
        row("cancel delete", "list 0 A; name 0 tab; delete 0; cancel", "tab=A|=", "N0123");
        row("cancel twice", "list 0 A; add 0 B; cancel; cancel", "=A|=", "N0123");
        row("cancel of what was never stored", "add 0 A; rename 0 tab; cancel", "=|=", "N0123");
        row("confirm", "list 0 A; add 0 B; rename 0 tab; ok 0; cancel", "tab=A B|=", "N0123");
        row("confirm, then edit", "name 0 a; list 0 A; add 0 B; ok 0; add 0 C; rename 0 c; cancel",
            "a=A B|=", "N0123");
        row("confirm all", "list 0; list 1; add 0 A; add 1 B; ok 0; ok 1; cancel", "=A|=B",
            "N0123");
        row("confirm delete", "list 0 A; name 0 tab; delete 0; ok 0; cancel", "=|=", "N0123");
        row("stored a second time", "list 0 A; list 0 B; cancel", "=A|=", "N0123");
        row("named a second time", "name 0 a; name 0 b; cancel", "a=|=", "N0123");
        row("reorder", "list 0 A B; list 0 B A; list 0 B A; cancel", "=B A|=", "N0123");
        row("no source", "list 0 A; unplug; add 0 B; remove 0 A; rename 0 tab", "tab=A|=", "N");
        row("no source to add to", "unplug; add 0 A", "=|=", "");
        row("no source to remove from", "list 0 A; unplug; remove 0 A", "=A|=", "");
        row("source goes", "list 0 A; unplug", "=A|=", "0123");
        row("no source to delete from", "list 0 A; unplug; delete 0", "=|=", "N0");
        for (const char *step :
             {"add %1 A", "remove %1 A", "rename %1 x", "delete %1", "list %1 B", "name %1 x"}) {
            for (const char *number : {"-1", "4"}) {
                const QString steps = QString::fromLatin1(step).arg(QLatin1String(number));
                QTest::newRow(qPrintable(steps)) << QString(QStringLiteral("list 0 A; ") + steps)
                                                 << QStringLiteral("=A|=") << QString();
            }
        }
    }

    void keepsAWorkingCopyBesideTheSavedState()
    {
        QFETCH(QString, steps);
        CFeatureOptionsMenu menu;
        menu.setParameterCollection(QSharedPointer<Tests::FakeCollection>::create());
        QString emitted;
        connect(&menu, &CFeatureOptionsMenu::userTabNamesChanged,
                [&] { emitted += QLatin1Char('N'); });
        connect(&menu, &CFeatureOptionsMenu::featureListsChanged,
                [&](int tab) { emitted += QString::number(tab); });
        const QStringList allSteps = steps.split(QStringLiteral("; "));
        for (const QString &step : allSteps) {
            emitted.clear();
            perform(menu, step.split(QLatin1Char(' ')));
        }
        QTEST(QStringList({state(menu, 0), state(menu, 1)}).join(QLatin1Char('|')), "state");
        QTEST(emitted, "signalsOfLastStep");
        QVERIFY(menu.featureNameList(-1).isEmpty() && menu.featureNameList(4).isEmpty());
    }

    void selectsTheFirstNamedTab_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<QVector<int>>("named");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("changes");
        QTest::newRow("none named") << -1 << QVector<int> {} << 0 << 1;
        QTest::newRow("already there") << 0 << QVector<int> {} << 0 << 0;
        QTest::newRow("first") << 3 << QVector<int> {0, 2} << 0 << 1;
        QTest::newRow("by way of the first") << 1 << QVector<int> {2, 3} << 2 << 2;
        QTest::newRow("back to the same") << 3 << QVector<int> {3} << 3 << 2;
    }

    void selectsTheFirstNamedTab()
    {
        QFETCH(int, before);
        QFETCH(QVector<int>, named);
        CFeatureOptionsMenu menu;
        QCOMPARE(menu.userTabIndex(), -1);
        menu.setUserTabIndex(before);
        for (int tab : qAsConst(named)) {
            menu.setUserTabName(tab, QStringLiteral("tab"));
        }
        const QSignalSpy spy(&menu, &CFeatureOptionsMenu::userTabIndexChanged);
        menu.selectFirstNamedTab();
        QTEST(menu.userTabIndex(), "selected");
        QTEST(spy.size(), "changes");
    }

    void namesFeaturesAsTheTreesDo()
    {
        cacheDisplayName(QStringLiteral("@CameraDevice/Width"), QStringLiteral("Image Width"));
        CFeatureOptionsMenu menu;
        menu.setFeatureNameList(2,
                                names({QStringLiteral("@CameraDevice/Width"),
                                       QStringLiteral("@StreamGrabber0/Type/Deep")}));
        QVERIFY(menu.featureLists().isEmpty());

        menu.setParameterCollection(QSharedPointer<Tests::FakeCollection>::create());
        const QVariantList lists = menu.featureLists();
        QCOMPARE(lists.size(), menu.supportedUserTabCount());
        QVERIFY(lists.at(0).toList().isEmpty());
        const QVariantMap known = lists.at(2).toList().value(0).toMap();
        QCOMPARE(known.value(QStringLiteral("name")), QVariant(QStringLiteral("Image Width")));
        QCOMPARE(known.value(QStringLiteral("fullName")),
                 QVariant(QStringLiteral("@CameraDevice/Width")));
        const QVariantMap unknown = lists.at(2).toList().value(1).toMap();
        QCOMPARE(unknown.value(QStringLiteral("name")), QVariant(QStringLiteral("Deep")));
    }

private:
    static CFeatureOptionsMenu::NameList names(const QStringList &texts)
    {
        CFeatureOptionsMenu::NameList list;
        for (const QString &text : texts) {
            list.append(ParameterName(text));
        }
        return list;
    }

    static QString state(const CFeatureOptionsMenu &menu, int tab)
    {
        QStringList features;
        const auto list = menu.featureNameList(tab);
        for (const ParameterName &feature : list) {
            features.append(feature.toString());
        }
        return menu.userTabNames().at(tab) + QLatin1Char('=') + features.join(QLatin1Char(' '));
    }

    // Number of a tab and further words follow the name of a step.
    static void perform(CFeatureOptionsMenu &menu, const QStringList &words)
    {
        const QString step = words.first();
        const int tab = words.value(1).toInt();
        const QString word = words.value(2);
        if (step == QLatin1String("list")) {
            menu.setFeatureNameList(tab, names(words.mid(2)));
        } else if (step == QLatin1String("name")) {
            menu.setUserTabName(tab, word);
        } else if (step == QLatin1String("add")) {
            menu.onAddFeature(tab, word);
        } else if (step == QLatin1String("remove")) {
            menu.onRemoveFeature(tab, word);
        } else if (step == QLatin1String("rename")) {
            menu.onNameChanged(tab, word);
        } else if (step == QLatin1String("delete")) {
            menu.onRemove(tab);
        } else if (step == QLatin1String("ok")) {
            menu.setFeatureNameList(tab, menu.featureNameList(tab));
            menu.setUserTabName(tab, menu.userTabNames().at(tab));
        } else if (step == QLatin1String("cancel")) {
            menu.revertChanges();
        } else if (step == QLatin1String("unplug")) {
            menu.setParameterCollection({});
        } else {
            QFAIL(qPrintable(step));
        }
    }

    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureOptionsMenu)
#include "tst_featureoptionsmenu.moc"
