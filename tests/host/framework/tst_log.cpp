// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/exceptionreport.h"
#include "host/framework/log.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/viewer/exceptiondialogs.h"

#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <stdexcept>

using Core::Logging::createLogEntry;
using Core::Logging::ELogLevel;
using Core::Logging::getCatId;

// The log, and the exception dialogs that report to it.
class TestLog : public QObject
{
    Q_OBJECT

private:
    static QStringList lines()
    {
        QStringList result;
        const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
        result.reserve(entries.size());
        for (const Host::LogEntry &entry : entries) {
            result.append(Host::toLine(entry));
        }
        return result;
    }

    static void showAll(QWidget *parent)
    {
        const QString where = QStringLiteral("Test::show");
        const QString message = QStringLiteral("No.");
        constexpr char text[] = "<b>1</b>";
        showException(where, GenICam::GenericException(text, __FILE__, __LINE__), message, parent);
        showException(where, std::runtime_error(text), message, parent);
        showException(where, Core::Exception::BaseException(text), message, parent);
        showUnexpectedException(where, message, parent);
    }

private Q_SLOTS:
    void init()
    {
        Host::Log::instance().clear();
    }

    void keepsLevelCategoryAndText()
    {
        for (const int level : {0, 1, 2, 7}) {
            createLogEntry(static_cast<ELogLevel>(level), level == 7 ? 9876 : getCatId("kept"),
                           QStringLiteral("a %1"));
        }
        const QString text = lines().join(QLatin1Char('|'));
        for (const char *part : {" Fault kept: a %1|", " Information kept: a %1|",
                                 " Failure kept: a %1|", " Level 7 unknown category 9876: a %1"}) {
            QVERIFY2(text.contains(QLatin1String(part)), part);
        }
    }

    void announcesEntriesOfOtherThreadsOnTheGuiThread()
    {
        QVector<QThread *> seenOn;
        QObject receiver;
        connect(
            &Host::Log::instance(), &Host::Log::entryAdded, &receiver,
            [&seenOn] { seenOn.append(QThread::currentThread()); }, Qt::DirectConnection);
        const std::unique_ptr<QThread> thread(QThread::create([] {
            createLogEntry(ELogLevel::Fault, getCatId("test.thread"), QStringLiteral("from afar"));
        }));
        thread->start();
        QVERIFY(thread->wait() && seenOn.isEmpty());
        QTRY_COMPARE(seenOn, QVector<QThread *> {thread->thread()});
    }

    void appendsToAFileAndGoesOnWithoutOne()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("run.log"));
        for (const QString &text : {QStringLiteral("first"), QStringLiteral("größer")}) {
            QVERIFY(Host::Log::instance().setFile(path));
            createLogEntry(ELogLevel::Fault, getCatId("test.file"), text);
        }
        const QString missing = folder.filePath(QStringLiteral("missing/run.log"));
        QVERIFY(!Host::Log::instance().setFile(missing));
        createLogEntry(ELogLevel::Information, getCatId("test.file"), QStringLiteral("goes on"));
        QVERIFY(lines().at(2).contains(
            QStringLiteral("Cannot open the log file \"%1\": ").arg(missing)));
        QCOMPARE(lines().size(), 4);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(file.readAll()),
                 lines().mid(0, 2).join(QLatin1Char('\n')) + QLatin1Char('\n'));
    }

    void exceptionsGoToTheHookOrToOneBoxForEachText()
    {
        QStringList reports;
        Host::setExceptionReportHook([&reports](const Host::ExceptionReport &report) {
            reports.append(report.where % report.message % report.exceptionText);
        });
        QWidget window;
        showAll(&window);
        QCOMPARE(reports.join(QLatin1Char(' ')),
                 QStringLiteral("Test::showNo.<b>1</b> Test::showNo.<b>1</b> "
                                "Test::showNo.<b>1</b> Test::showNo."));
        QVERIFY(window.children().isEmpty());
        Host::setExceptionReportHook(nullptr);
        for (const int round : {1, 2}) { // a box that was closed may come again
            showAll(&window);
            showAll(&window);
            const auto boxes = window.findChildren<QMessageBox *>();
            QCOMPARE(boxes.size(), 2);
            QCOMPARE(boxes.at(0)->text() + boxes.at(1)->text(),
                     QStringLiteral("No.\n\n<b>1</b>No."));
            for (QMessageBox *box : boxes) {
                QCOMPARE(box->textFormat(), Qt::PlainText);
                QTest::keyClick(box, Qt::Key_Escape);
            }
            QTRY_VERIFY(window.children().isEmpty());
            QCOMPARE(lines().size(), 4 + 8 * round);
        }
        QVERIFY(lines().at(0).endsWith(
            QStringLiteral(" Fault vantrel.viewer.exceptions: Test::show: No. <b>1</b>")));
    }
};

QTEST_MAIN(TestLog)
#include "tst_log.moc"
