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
    void refusesWithOneLineAndExitCodeTwo_data()
    {
        QTest::addColumn<QString>("named");
        QTest::newRow("--nonsense") << "nonsense";
        QTest::newRow("camera") << "camera";
        QTest::newRow("--source") << "source";
        QTest::newRow("--visibility guru") << "guru";
        QTest::newRow("--language xx") << "xx";
        QTest::newRow("--print-features --source simulated:toaster") << "simulated:toaster";
        QTest::newRow("--print-features --source genicam:1.2.3.4") << "genicam:1.2.3.4";
        QTest::newRow("--print-features --pane Nowhere") << "Nowhere";
        QTest::newRow("--print-features --pane User0 --search Gain") << "User0 has no search";
        QTest::newRow("--print-features --use-case Zoom") << "All has no use case \"Zoom\"";
        QTest::newRow("--print-features --select @CameraDevice/NoSuchFeature") << "NoSuchFeature";
        QTest::newRow("--print-features --visibility Beginner --select @CameraDevice/SensorWidth")
            << "SensorWidth";
        QTest::newRow("--screenshot no/such/folder/a.png") << "no/such/folder/a.png";
        QTest::newRow("--print-features --settings " VIEWER_PROGRAM) << VIEWER_PROGRAM;
        QTest::newRow("--source simulated:gige") << "DISPLAY";
    }

    void refusesWithOneLineAndExitCodeTwo()
    {
        QFETCH(QString, named);
        const Result result = run(QTest::currentDataTag());
        QCOMPARE(result.exitCode, 2);
        QVERIFY2(result.errors.contains(named), qPrintable(result.errors));
        QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    }

    void printsTheFeaturesOfEachSource_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<QString>("expected");
        QTest::newRow("--source simulated:gige") << 250 << "  Exposure Time [us]";
        QTest::newRow("--source simulated:usb --search Gain") << 250 << "  Exposure Time [us]";
        QTest::newRow("--source simulated:gige --source simulated:workbench") << 10 << "qStep\n";
        QTest::newRow("--visibility Expert --select @CameraDevice/SensorWidth")
            << 250 << "  Exposure Time [us]";
    }

    void printsTheFeaturesOfEachSource()
    {
        QFETCH(int, lines);
        QFETCH(QString, expected);
        const Result result = run(QByteArray("--print-features ") + QTest::currentDataTag());
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.errors, QString());
        QVERIFY(result.output.count(QLatin1Char('\n')) > lines);
        QVERIFY(result.output.contains(expected));
    }

    void savesAPictureOfTheWindow()
    {
        const QString file = m_settings.filePath(QStringLiteral("window.png"));
        QCOMPARE(run("--screenshot " + file.toUtf8()).exitCode, 0);
        const QImage picture(file);
        QVERIFY(picture.width() >= 1000 && picture.height() >= 600);
    }

private:
    struct Result
    {
        int exitCode = -1;
        QString output;
        QString errors;
    };

    Result run(const QByteArray &arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VIEWER_PROGRAM),
                      QStringList {QStringLiteral("--settings"), m_settings.path()}
                          + QString::fromUtf8(arguments).split(QLatin1Char(' ')));
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
            return {};
        }
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir m_settings;
};

QTEST_GUILESS_MAIN(ViewerProgramTest)
#include "tst_viewerprogram.moc"
