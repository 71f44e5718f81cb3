// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/log.h"
#include "plugin/contract/core/logging.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

using Core::Logging::createLogEntry;
using Core::Logging::ELogLevel;
using Core::Logging::getCatId;

class TestLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Host::Log::instance().clear();
    }

    void cleanup()
    {
        Host::Log::instance().setFile(QString());
    }

    void givesOneNumberPerCategory()
    {
        const quint64 first = getCatId("test.first");
        QVERIFY(first != 0);
        QVERIFY(getCatId("test.second") != first);
        QCOMPARE(getCatId("test.first"), first);
    }

    void keepsLevelCategoryAndText_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("word");
        QTest::newRow("fault") << 0 << QStringLiteral("Fault");
        QTest::newRow("information") << 1 << QStringLiteral("Information");
        QTest::newRow("failure") << 2 << QStringLiteral("Failure");
        QTest::newRow("number of another host") << 7 << QStringLiteral("Level 7");
    }

    void keepsLevelCategoryAndText()
    {
        QFETCH(int, level);
        QFETCH(QString, word);
        createLogEntry(static_cast<ELogLevel>(level), getCatId("test.kept"),
                       QStringLiteral("a %1"));
        const Host::LogEntry entry = Host::Log::instance().entries().constLast();
        QCOMPARE(entry.level, static_cast<ELogLevel>(level));
        QCOMPARE(entry.category, QStringLiteral("test.kept"));
        QCOMPARE(entry.text, QStringLiteral("a %1"));
        QVERIFY(Host::toLine(entry).endsWith(word + QStringLiteral(" test.kept: a %1")));
    }

    void namesAnUnknownCategory()
    {
        createLogEntry(ELogLevel::Information, 987654, QStringLiteral("text"));
        QCOMPARE(Host::Log::instance().entries().constLast().category,
                 QStringLiteral("unknown category 987654"));
    }

    void keepsTheNewestEntriesOnly()
    {
        const quint64 category = getCatId("test.many");
        for (int i = 0; i < Host::Log::capacity + 5; ++i) {
            createLogEntry(ELogLevel::Information, category, QString::number(i));
        }
        const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
        QCOMPARE(entries.size(), Host::Log::capacity);
        QCOMPARE(entries.constFirst().text, QStringLiteral("5"));
        QCOMPARE(entries.constLast().text, QString::number(Host::Log::capacity + 4));
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

    void appendsToAFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("run.log"));
        for (const QString &text : {QStringLiteral("first"), QStringLiteral("größer")}) {
            QVERIFY(Host::Log::instance().setFile(path));
            createLogEntry(ELogLevel::Fault, getCatId("test.file"), text);
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString content = QString::fromUtf8(file.readAll());
        QCOMPARE(content.count(QLatin1Char('\n')), 2);
        QVERIFY(content.contains(QStringLiteral("Fault test.file: first\n")));
        QVERIFY(content.endsWith(QStringLiteral("Fault test.file: größer\n")));
    }

    void goesOnWithoutAFileThatCannotBeOpened()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("missing/run.log"));
        QVERIFY(!Host::Log::instance().setFile(path));
        createLogEntry(ELogLevel::Information, getCatId("test.file"), QStringLiteral("goes on"));
        const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
        QCOMPARE(entries.size(), 2);
        QVERIFY(entries.at(0).text.startsWith(
            QStringLiteral("Cannot open the log file \"%1\": ").arg(path)));
        QCOMPARE(entries.at(1).text, QStringLiteral("goes on"));
    }
};

QTEST_GUILESS_MAIN(TestLog)
#include "tst_log.moc"
