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

bool isFault(Core::Logging::ELogLevel level)
{
    return level != Core::Logging::ELogLevel::Information;
}

// The offscreen platform says so of raising, activating and the like, whoever asks for it.
bool isPlatformNoise(const QString &text)
{
    return text.startsWith(QLatin1String("This plugin does not support "));
}

QString describe(Core::Logging::ELogLevel level, const QString &category, const QString &text)
{
    return QStringLiteral("%1 in %2: %3").arg(Host::levelText(level), category, text);
}

} // namespace

WarningGuard::~WarningGuard()
{
    end();
}

void WarningGuard::begin()
{
    end();
    m_expectedEntries.clear();
    m_expectedWarnings.clear();
    m_faults.clear();
    Host::Log::instance().clear();
    watchingGuard() = this;
    m_previous = qInstallMessageHandler(&WarningGuard::handleMessage);
    m_watching = true;
}

void WarningGuard::end()
{
    if (!m_watching) {
        return;
    }
    m_watching = false;
    qInstallMessageHandler(m_previous);
    watchingGuard() = nullptr;
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
    checkLog();
    for (const QRegularExpression &expected : m_expectedWarnings) {
        m_faults.append(QStringLiteral("Qt did not warn: ") + expected.pattern());
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
    m_expectedEntries.push_back({level, category, text});
}

void WarningGuard::expectQtWarning(const QRegularExpression &text)
{
    const QMutexLocker locker(&m_mutex);
    m_expectedWarnings.push_back(text);
}

void WarningGuard::handleMessage(QtMsgType type, const QMessageLogContext &context,
                                 const QString &text)
{
    WarningGuard *guard = watchingGuard();
    if (guard == nullptr) {
        return;
    }
    if (isPlatformNoise(text)) {
        return;
    }
    const bool warning = type == QtWarningMsg || type == QtCriticalMsg;
    if (warning && guard->takeQtWarning(text)) {
        return;
    }
    if (guard->m_previous != nullptr) {
        guard->m_previous(type, context, text);
    }
}

bool WarningGuard::takeQtWarning(const QString &text)
{
    const QMutexLocker locker(&m_mutex);
    const auto match = std::find_if(
        m_expectedWarnings.begin(), m_expectedWarnings.end(),
        [&text](const QRegularExpression &expected) { return expected.match(text).hasMatch(); });
    if (match == m_expectedWarnings.end()) {
        m_faults.append(QStringLiteral("Qt warned: ") + text);
        return false;
    }
    m_expectedWarnings.erase(match);
    return true;
}

void WarningGuard::checkLog()
{
    const QVector<Host::LogEntry> entries = Host::Log::instance().entries();
    for (const Host::LogEntry &entry : entries) {
        const auto match = std::find_if(
            m_expectedEntries.begin(), m_expectedEntries.end(), [&entry](const ExpectedEntry &e) {
                return e.level == entry.level && e.category == entry.category
                    && e.text.match(entry.text).hasMatch();
            });
        if (match != m_expectedEntries.end()) {
            m_expectedEntries.erase(match);
        } else if (isFault(entry.level)) {
            m_faults.append(QStringLiteral("Logged: ")
                            + describe(entry.level, entry.category, entry.text));
        }
    }
    for (const ExpectedEntry &expected : m_expectedEntries) {
        m_faults.append(QStringLiteral("Not logged: ")
                        + describe(expected.level, expected.category, expected.text.pattern()));
    }
}

} // namespace Tests
