// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/exceptionreport.h"
#include "host/framework/log.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/viewer/exceptiondialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>
#include <stdexcept>

using Core::Logging::createLogEntry;
using Core::Logging::ELogLevel;
using Core::Logging::getCatId;

namespace {

QVector<QMessageBox *> openBoxes()
{
    QVector<QMessageBox *> result;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (box != nullptr && box->isVisible()) {
            result.append(box);
        }
    }
    return result;
}

} // namespace

// The log, and the exception dialogs that report to it.
class TestLog : public QObject
{
    Q_OBJECT

private:
    static QStringList texts()
    {
        QStringList result;
        const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
        for (const Host::LogEntry &entry : entries) {
            result.append(entry.text);
        }
        return result;
    }

private Q_SLOTS:
    void init()
    {
        Host::Log::instance().clear();
    }

    void cleanup()
    {
        Host::Log::instance().setFile(QString());
        Host::setExceptionReportHook(nullptr);
        qDeleteAll(openBoxes());
    }

    void keepsLevelCategoryAndText_data()
    {
        QTest::addColumn<int>("level");
        QTest::newRow("Fault") << 0;
        QTest::newRow("Information") << 1;
        QTest::newRow("Failure") << 2;
        QTest::newRow("Level 7") << 7; // of another host
    }

    void keepsLevelCategoryAndText()
    {
        QFETCH(int, level);
        QVERIFY(getCatId("test.kept") != getCatId("test.other"));
        createLogEntry(static_cast<ELogLevel>(level), getCatId("test.kept"),
                       QStringLiteral("a %1"));
        createLogEntry(ELogLevel::Information, 987654, QStringLiteral("text"));
        const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
        QVERIFY(Host::toLine(entries.at(0))
                    .endsWith(QLatin1String(QTest::currentDataTag())
                              + QStringLiteral(" test.kept: a %1")));
        QCOMPARE(entries.at(1).category, QStringLiteral("unknown category 987654"));
    }

    void keepsTheNewestEntriesOnly()
    {
        for (int i = 0; i < Host::Log::capacity + 5; ++i) {
            createLogEntry(ELogLevel::Information, getCatId("test.many"), QString::number(i));
        }
        QCOMPARE(texts().size(), Host::Log::capacity);
        QCOMPARE(texts().constFirst(), QStringLiteral("5"));
    }

    void announcesEntriesOfOtherThreadsOnTheGuiThread()
    {
        QThread *seenOn = nullptr;
        QSignalSpy spy(&Host::Log::instance(), &Host::Log::entryAdded);
        connect(
            &Host::Log::instance(), &Host::Log::entryAdded, this,
            [&seenOn] { seenOn = QThread::currentThread(); }, Qt::DirectConnection);
        const std::unique_ptr<QThread> thread(QThread::create([] {
            createLogEntry(ELogLevel::Fault, getCatId("test.thread"), QStringLiteral("from afar"));
        }));
        thread->start();
        QVERIFY(thread->wait());
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), 1);
        QCOMPARE(seenOn, QThread::currentThread());
        QCOMPARE(spy.at(0).at(0).value<Host::LogEntry>().text, QStringLiteral("from afar"));
        disconnect(&Host::Log::instance(), nullptr, this, nullptr);
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
        QVERIFY(texts().at(2).startsWith(
            QStringLiteral("Cannot open the log file \"%1\": ").arg(missing)));
        QCOMPARE(texts().at(3), QStringLiteral("goes on"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString content = QString::fromUtf8(file.readAll());
        QCOMPARE(content.count(QLatin1Char('\n')), 2);
        QVERIFY(content.contains(QStringLiteral("Fault test.file: first\n")));
        QVERIFY(content.endsWith(QStringLiteral("Fault test.file: größer\n")));
    }

    void exceptionsAreLoggedAndShown()
    {
        const QString where = QStringLiteral("Test::show");
        const QString message = QStringLiteral("No.");
        constexpr char text[] = "text <b>1</b>";
        QStringList reports;
        const auto showAll = [&](QWidget *parent) {
            showException(where, GenICam::GenericException(text, __FILE__, __LINE__), message,
                          parent);
            showException(where, std::runtime_error(text), message, parent);
            showException(where, Core::Exception::BaseException(text), message, parent);
            showUnexpectedException(where, message, parent);
        };
        Host::setExceptionReportHook([&reports](const Host::ExceptionReport &report) {
            reports.append(report.where % report.message % report.exceptionText);
        });
        showAll(nullptr);
        const QString withText = QStringLiteral("Test::showNo.text <b>1</b>");
        QCOMPARE(reports, QStringList({withText, withText, withText, where + message}));
        QVERIFY(openBoxes().isEmpty());

        Host::setExceptionReportHook(nullptr);
        QWidget window;
        window.show();
        showAll(&window); // returns, with one box for each of the two texts
        showAll(&window);
        QCOMPARE(openBoxes().size(), 2);
        QSet<QString> shown;
        const QVector<QMessageBox *> boxes = openBoxes();
        for (const QPointer<QMessageBox> box : boxes) {
            shown.insert(box->text());
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->parentWidget(), &window);
            QTest::keyClick(box, Qt::Key_Escape);
            QTRY_VERIFY(box.isNull());
        }
        QCOMPARE(shown, QSet<QString>({message, message + QStringLiteral("\n\ntext <b>1</b>")}));
        showUnexpectedException(where, message, nullptr); // closed, it may come again
        QCOMPARE(openBoxes().size(), 1);
        QCOMPARE(texts().count(QStringLiteral("Test::show: No. text <b>1</b>")), 9);
        QCOMPARE(texts().count(QStringLiteral("Test::show: No.")), 4);
    }
};

QTEST_MAIN(TestLog)
#include "tst_log.moc"
