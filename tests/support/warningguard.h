// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "plugin/contract/core/logging.h"

#include <QMutex>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <vector>

namespace Tests {

/// Fails a test function in which Qt warns or the log takes an entry of level Fault or Failure
/// that the test has not announced, and one in which something announced does not come.
///
/// A test class holds one as a member and calls
///
///     void init() { m_guard.begin(); }
///     void cleanup() { m_guard.verify(); }
///
/// Announcements hold for the running test function, stand for one occurrence each and may come in
/// any order. What the offscreen platform says it does not support is passed over. Use
/// `expectQtWarning` in place of `QTest::ignoreMessage`.
class WarningGuard
{
public:
    WarningGuard() = default;
    ~WarningGuard();
    Q_DISABLE_COPY_MOVE(WarningGuard)

    /// Starts to watch. Clears the log.
    void begin();
    /// Ends to watch and fails the running test function where something was amiss.
    void verify();
    /// Ends to watch and tells what was amiss, one line each.
    QStringList finish();

    /// Announces one log entry with exactly this text; every level can be announced.
    void expectLogEntry(Core::Logging::ELogLevel level, const QString &category,
                        const QString &text);
    /// Announces one log entry whose text matches.
    void expectLogEntry(Core::Logging::ELogLevel level, const QString &category,
                        const QRegularExpression &text);
    /// Announces one warning or critical message of Qt that matches.
    void expectQtWarning(const QRegularExpression &text);

private:
    struct Expected
    {
        QString where; // Qt, or the level and the category
        QRegularExpression text;
    };

    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &text);
    bool take(const QString &where, const QString &text, bool isFault);
    void end();

    bool m_watching = false;
    QtMessageHandler m_previous = nullptr; // borrowed: the one that was there before
    QMutex m_mutex; // guards the two below, which every thread may reach
    std::vector<Expected> m_expected;
    QStringList m_faults;
};

} // namespace Tests
