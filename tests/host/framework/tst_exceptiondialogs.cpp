// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "host/framework/exceptionreport.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/genapi/genericexception.h"
#include "plugin/contract/viewer/exceptiondialogs.h"
#include "support/warningguard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>

#include <stdexcept>

using Core::Logging::ELogLevel;

namespace {

enum Kind { GenICamKind, StandardKind, BaseKind, UnexpectedKind };

void show(int kind, const QString &message, QWidget *parent)
{
    const QString where = QStringLiteral("Test::show");
    switch (kind) {
    case GenICamKind:
        showException(where, GenICam::GenericException("text <b>1</b>", __FILE__, __LINE__),
                      message, parent);
        break;
    case StandardKind:
        showException(where, std::runtime_error("text <b>1</b>"), message, parent);
        break;
    case BaseKind:
        showException(where, Core::Exception::BaseException("text <b>1</b>"), message, parent);
        break;
    default:
        showUnexpectedException(where, message, parent);
    }
}

QList<QMessageBox *> openBoxes()
{
    QList<QMessageBox *> result;
    const QWidgetList windows = QApplication::topLevelWidgets();
    result.reserve(windows.size());
    for (QWidget *window : windows) {
        auto *box = qobject_cast<QMessageBox *>(window);
        if (box != nullptr && box->isVisible()) {
            result.append(box);
        }
    }
    return result;
}

} // namespace

class TestExceptionDialogs : public QObject
{
    Q_OBJECT

private:
    void expectEntry(const QString &text)
    {
        m_guard.expectLogEntry(ELogLevel::Fault, QStringLiteral("vantrel.viewer.exceptions"), text);
    }

    static void addKinds()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("exceptionText");
        const QString text = QStringLiteral("text <b>1</b>");
        QTest::newRow("GenICam") << int(GenICamKind) << text;
        QTest::newRow("standard") << int(StandardKind) << text;
        QTest::newRow("base") << int(BaseKind) << text;
        QTest::newRow("unexpected") << int(UnexpectedKind) << QString();
    }

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }

    void cleanup()
    {
        Host::setExceptionReportHook(nullptr);
        qDeleteAll(openBoxes());
        m_guard.verify();
    }

    void opensABoxAndReturns_data()
    {
        addKinds();
    }

    void opensABoxAndReturns()
    {
        QFETCH(int, kind);
        QFETCH(QString, exceptionText);
        const QString message = QStringLiteral("Cannot write.");
        expectEntry(exceptionText.isEmpty()
                        ? QStringLiteral("Test::show: Cannot write.")
                        : QStringLiteral("Test::show: Cannot write. ") + exceptionText);
        QWidget window;
        window.show();
        show(kind, message, &window);
        QCOMPARE(openBoxes().size(), 1);
        const QPointer<QMessageBox> box(openBoxes().constFirst());
        QCOMPARE(box->text(),
                 exceptionText.isEmpty() ? message
                                         : message + QStringLiteral("\n\n") + exceptionText);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->parentWidget(), &window);
        QTest::keyClick(box, Qt::Key_Escape);
        QTRY_VERIFY(box.isNull());
    }

    void reportsToTheHookInPlaceOfABox_data()
    {
        addKinds();
    }

    void reportsToTheHookInPlaceOfABox()
    {
        QFETCH(int, kind);
        QFETCH(QString, exceptionText);
        m_guard.expectLogEntry(ELogLevel::Fault, QStringLiteral("vantrel.viewer.exceptions"),
                               QRegularExpression(QStringLiteral("^Test::show: No\\.")));
        QVector<Host::ExceptionReport> reports;
        Host::setExceptionReportHook(
            [&reports](const Host::ExceptionReport &report) { reports.append(report); });
        show(kind, QStringLiteral("No."), nullptr);
        QCOMPARE(reports.size(), 1);
        QCOMPARE(reports.at(0).where, QStringLiteral("Test::show"));
        QCOMPARE(reports.at(0).message, QStringLiteral("No."));
        QCOMPARE(reports.at(0).exceptionText, exceptionText);
        QVERIFY(openBoxes().isEmpty());
    }

    void opensOneBoxPerText()
    {
        const QString first = QStringLiteral("First.");
        const QString second = QStringLiteral("Second.");
        for (const QString &message : {first, first, second, first, first}) {
            expectEntry(QStringLiteral("Test::show: ") + message);
        }
        show(UnexpectedKind, first, nullptr);
        show(UnexpectedKind, first, nullptr);
        show(UnexpectedKind, second, nullptr);
        show(UnexpectedKind, first, nullptr);
        QCOMPARE(openBoxes().size(), 2);
        const QList<QMessageBox *> boxes = openBoxes();
        for (QMessageBox *box : boxes) {
            box->close();
        }
        QCOMPARE(openBoxes().size(), 0);
        show(UnexpectedKind, first, nullptr);
        QCOMPARE(openBoxes().size(), 1);
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(TestExceptionDialogs)
#include "tst_exceptiondialogs.moc"
