// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "plugin/contract/viewer/exceptiondialogs.h"

#include "exceptionreport.h"
#include "plugin/contract/core/baseexception.h"
#include "plugin/contract/core/logging.h"
#include "plugin/contract/genapi/genericexception.h"

#include <QApplication>
#include <QMessageBox>

#include <algorithm>

namespace Host {

namespace {

std::function<void(const ExceptionReport &)> &reportHook()
{
    static std::function<void(const ExceptionReport &)> hook;
    return hook;
}

QString join(const ExceptionReport &report, const QString &separator)
{
    return report.exceptionText.isEmpty() ? report.message
                                          : report.message + separator + report.exceptionText;
}

void log(const ExceptionReport &report)
{
    static const quint64 category = Core::Logging::getCatId("vantrel.viewer.exceptions");
    Core::Logging::createLogEntry(
        Core::Logging::ELogLevel::Fault, category,
        QStringLiteral("%1: %2").arg(report.where, join(report, QStringLiteral(" "))));
}

bool isShown(const QString &text)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [&text](const QWidget *window) {
        const auto *box = qobject_cast<const QMessageBox *>(window);
        return box != nullptr && box->isVisible() && box->text() == text;
    });
}

// Never exec(): callers may stand inside a model, where an event loop of a box would let views
// be changed under them.
void open(const ExceptionReport &report)
{
    const QString text = join(report, QStringLiteral("\n\n"));
    if (isShown(text)) {
        return;
    }
    auto *box = new QMessageBox(QMessageBox::Warning, QApplication::applicationDisplayName(), text,
                                QMessageBox::Ok, report.parent);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void report(const ExceptionReport &report)
{
    log(report);
    if (reportHook()) {
        reportHook()(report);
    } else if (qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr) {
        open(report);
    }
}

} // namespace

void setExceptionReportHook(const std::function<void(const ExceptionReport &)> &hook)
{
    reportHook() = hook;
}

} // namespace Host

void showException(const QString &where, const std::exception &e, const QString &message,
                   QWidget *parent)
{
    Host::report({where, message, QString::fromUtf8(e.what()), parent});
}

void showException(const QString &where, const Core::Exception::BaseException &e,
                   const QString &message, QWidget *parent)
{
    Host::report({where, message, QString::fromUtf8(e.what()), parent});
}

void showException(const QString &where, const GenICam::GenericException &e, const QString &message,
                   QWidget *parent)
{
    Host::report({where, message, QString::fromUtf8(e.what()), parent});
}

void showUnexpectedException(const QString &where, const QString &message, QWidget *parent)
{
    Host::report({where, message, QString(), parent});
}
