// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include <host/viewer/commandline.h>

#include <QtTest>

using Viewer::CommandLine;
using Viewer::CommandLineError;
using Viewer::Options;

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryOption();
    void refusesWithOneLineThatNamesTheFault_data();
    void refusesWithOneLineThatNamesTheFault();
    void tellsUnattendedRuns_data();
    void tellsUnattendedRuns();
    void helpNamesEveryOption();
};

namespace {

Options parse(const QStringList &arguments)
{
    return CommandLine().parse(QStringList {QStringLiteral("tessera-viewer")} + arguments);
}

} // namespace

void CommandLineTest::takesEveryOption()
{
    const Options options =
        parse(QStringLiteral("--source simulated:usb --source simulated:gige --pane Basic --select "
                             "@CameraDevice/Gain --search gain --use-case Zoom --visibility Expert "
                             "--language ja --print-features --screenshot a.png --settings dir")
                  .split(QLatin1Char(' ')));
    QCOMPARE(options.sources,
             (QStringList {QStringLiteral("simulated:usb"), QStringLiteral("simulated:gige")}));
    QCOMPARE(options.pane, QStringLiteral("Basic"));
    QCOMPARE(options.select, QStringLiteral("@CameraDevice/Gain"));
    QCOMPARE(options.search, QStringLiteral("gain"));
    QCOMPARE(options.useCase, QStringLiteral("Zoom"));
    QCOMPARE(options.visibility.value_or(-1), 1);
    QCOMPARE(options.language, QStringLiteral("ja"));
    QVERIFY(options.printFeatures);
    QCOMPARE(options.screenshot, QStringLiteral("a.png"));
    QCOMPARE(options.settings, QStringLiteral("dir"));
}

void CommandLineTest::refusesWithOneLineThatNamesTheFault_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const char *arguments, const char *named) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(named);
    };
    row("unknown option", "--frobnicate", "frobnicate");
    row("superfluous argument", "camera", "camera");
    row("unknown level", "--visibility Wizard", "Wizard");
    row("level in the wrong case", "--visibility guru", "guru");
    row("unknown language", "--language xx", "xx");
    row("missing value", "--source", "source");
}

void CommandLineTest::refusesWithOneLineThatNamesTheFault()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    try {
        parse(arguments);
        QFAIL("the arguments were taken");
    } catch (const CommandLineError &e) {
        const QString message = QString::fromUtf8(e.what());
        QVERIFY2(message.contains(named), e.what());
        QVERIFY(!message.contains(QLatin1Char('\n')));
    }
}

void CommandLineTest::tellsUnattendedRuns_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("unattended");
    QTest::newRow("plain") << QStringList() << false;
    QTest::newRow("print") << QStringList {QStringLiteral("--print-features")} << true;
    QTest::newRow("picture") << QStringList {QStringLiteral("--screenshot"),
                                             QStringLiteral("a.png")}
                             << true;
}

void CommandLineTest::tellsUnattendedRuns()
{
    QFETCH(QStringList, arguments);
    QTEST(parse(arguments).runsUnattended(), "unattended");
}

void CommandLineTest::helpNamesEveryOption()
{
    const QString help = CommandLine().helpText();
    for (const char *option :
         {"source", "pane", "select", "search", "use-case", "visibility", "language",
          "print-features", "screenshot", "settings", "help", "version"}) {
        QVERIFY2(help.contains(QLatin1String("--") + QLatin1String(option)), option);
    }
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
