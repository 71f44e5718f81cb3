// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/warningguard.h"

#include "host/framework/log.h"

#include <QMutexLocker>
#include <QTest>

#include <algorithm>
#include <atomic>

namespace Tests {

namespace {

// The guard that watches now; Qt's message handler has no place for it.
std::atomic<WarningGuard *> &watchingGuard()
{
    static std::atomic<WarningGuard *> guard {nullptr};
    return guard;
}

// The offscreen platform says so of raising, activating and the like, whoever asks for it.
bool isPlatformNoise(const QString &text)
{
    return text.startsWith(QLatin1String("This plugin does not support "));
}

QString qtWarned()
{
    return QStringLiteral("Qt warned");
}

QString logged(Core::Logging::ELogLevel level, const QString &category)
{
    return QStringLiteral("Logged: %1 in %2").arg(Host::levelText(level), category);
}

} // namespace

WarningGuard::~WarningGuard()
{
    end();
}

void WarningGuard::begin()
{
    end();
    m_expected.clear();
    m_faults.clear();
    Host::Log::instance().clear();
    watchingGuard() = this;
    m_previous = qInstallMessageHandler(&WarningGuard::handleMessage);
    m_watching = true;
}

void WarningGuard::end()
{
    if (m_watching) {
        m_watching = false;
        qInstallMessageHandler(m_previous);
        watchingGuard() = nullptr;
    }
}

void WarningGuard::verify()
{
    const QStringList faults = finish();
    if (!faults.isEmpty()) {
        QTest::qFail(qPrintable(faults.join(QLatin1Char('\n'))), __FILE__, __LINE__);
    }
}

QStringList WarningGuard::finish()
{
    end();
    const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
    for (const Host::LogEntry &entry : entries) {
        take(logged(entry.level, entry.category), entry.text,
             entry.level != Core::Logging::ELogLevel::Information);
    }
    for (const Expected &expected : m_expected) {
        m_faults.append(
            QStringLiteral("Not so: %1: %2").arg(expected.where, expected.text.pattern()));
    }
    return m_faults;
}

void WarningGuard::expectLogEntry(Core::Logging::ELogLevel level, const QString &category,
                                  const QString &text)
{
    expectLogEntry(
        level, category,
        QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(text))));
}

void WarningGuard::expectLogEntry(Core::Logging::ELogLevel level, const QString &category,
                                  const QRegularExpression &text)
{
    const QMutexLocker locker(&m_mutex);
    m_expected.push_back({logged(level, category), text});
}

void WarningGuard::expectQtWarning(const QRegularExpression &text)
{
    const QMutexLocker locker(&m_mutex);
    m_expected.push_back({qtWarned(), text});
}

void WarningGuard::handleMessage(QtMsgType type, const QMessageLogContext &context,
                                 const QString &text)
{
    WarningGuard *guard = watchingGuard();
    if (guard == nullptr || isPlatformNoise(text)) {
        return;
    }
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && guard->take(qtWarned(), text, true)) {
        return;
    }
    if (guard->m_previous != nullptr) {
        guard->m_previous(type, context, text);
    }
}

bool WarningGuard::take(const QString &where, const QString &text, bool isFault)
{
    const QMutexLocker locker(&m_mutex);
    const auto match =
        std::find_if(m_expected.begin(), m_expected.end(), [&](const Expected &expected) {
            return expected.where == where && expected.text.match(text).hasMatch();
        });
    if (match != m_expected.end()) {
        m_expected.erase(match);
        return true;
    }
    if (isFault) {
        m_faults.append(where + QStringLiteral(": ") + text);
    }
    return false;
}

} // namespace Tests
