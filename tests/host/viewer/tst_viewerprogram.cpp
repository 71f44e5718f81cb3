// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// Starts the built viewer as a person does from a shell, and reads what it prints.
class ViewerProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWithOneLineAndExitCodeTwo_data();
    void refusesWithOneLineAndExitCodeTwo();
    void printsTheFeaturesOfEachSource_data();
    void printsTheFeaturesOfEachSource();
    void savesAPictureOfTheWindow();
    void printsHelpWithoutAScreen();

private:
    struct Result
    {
        int exitCode = -1;
        QString output;
        QString errors;
    };
    Result run(const QStringList &arguments) const;

    QTemporaryDir m_settings;
};

ViewerProgramTest::Result ViewerProgramTest::run(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(VIEWER_PROGRAM),
                  QStringList {QStringLiteral("--settings"), m_settings.path()} + arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void ViewerProgramTest::refusesWithOneLineAndExitCodeTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const char *arguments, const char *named) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(named);
    };
    row("unknown option", "--nonsense", "nonsense");
    row("unknown source", "--print-features --source simulated:toaster", "simulated:toaster");
    row("source of a kind that is not there", "--print-features --source genicam:1.2.3.4",
        "genicam:1.2.3.4");
    row("unknown pane", "--print-features --pane Nowhere", "Nowhere");
    row("unknown feature", "--print-features --select @CameraDevice/NoSuchFeature",
        "NoSuchFeature");
    row("picture into a folder that is not there", "--screenshot no/such/folder/a.png",
        "no/such/folder/a.png");
    row("settings in a file", "--print-features --settings " VIEWER_PROGRAM, VIEWER_PROGRAM);
    row("a window without a screen", "--source simulated:gige", "DISPLAY");
}

void ViewerProgramTest::refusesWithOneLineAndExitCodeTwo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Result result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
}

void ViewerProgramTest::printsTheFeaturesOfEachSource_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("expected");
    QTest::newRow("GigE") << QStringLiteral("simulated:gige") << 250
                          << QStringLiteral("  Exposure Time [us]");
    QTest::newRow("USB") << QStringLiteral("simulated:usb") << 250
                         << QStringLiteral("  Exposure Time [us]");
    QTest::newRow("Workbench") << QStringLiteral("simulated:workbench") << 10
                               << QStringLiteral("qStep\n");
}

void ViewerProgramTest::printsTheFeaturesOfEachSource()
{
    QFETCH(QString, source);
    QFETCH(int, lines);
    QFETCH(QString, expected);
    const Result result =
        run({QStringLiteral("--print-features"), QStringLiteral("--source"), source});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QString());
    QVERIFY(result.output.count(QLatin1Char('\n')) > lines);
    QVERIFY(result.output.contains(expected));
}

void ViewerProgramTest::savesAPictureOfTheWindow()
{
    const QString file = m_settings.filePath(QStringLiteral("window.png"));
    const Result result = run({QStringLiteral("--screenshot"), file});
    QCOMPARE(result.exitCode, 0);
    const QImage picture(file);
    QVERIFY(picture.width() >= 1000);
    QVERIFY(picture.height() >= 600);
}

void ViewerProgramTest::printsHelpWithoutAScreen()
{
    const Result result = run({QStringLiteral("--help")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(result.output.contains(QStringLiteral("--print-features")));
}

QTEST_GUILESS_MAIN(ViewerProgramTest)
#include "tst_viewerprogram.moc"
