// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "support/warningguard.h"

#include <QTest>

using Core::Logging::createLogEntry;
using Core::Logging::ELogLevel;
using Core::Logging::getCatId;

class TestWarningGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
    }

    void findsWhatWasNotAnnounced()
    {
        qWarning("watched");
        qDebug("passed over");
        createLogEntry(ELogLevel::Fault, getCatId("test"), QStringLiteral("broken"));
        createLogEntry(ELogLevel::Information, getCatId("test"), QStringLiteral("passed over"));
        createLogEntry(ELogLevel::Failure, getCatId("test"), QStringLiteral("down"));
        const QStringList faults {QStringLiteral("Qt warned: watched"),
                                  QStringLiteral("Logged: Fault in test: broken"),
                                  QStringLiteral("Logged: Failure in test: down")};
        QCOMPARE(m_guard.finish(), faults);
    }

    void findsWhatDidNotComeOrCameTwice()
    {
        m_guard.expectQtWarning(QRegularExpression(QStringLiteral("^careful")));
        m_guard.expectLogEntry(ELogLevel::Fault, QStringLiteral("test"), QStringLiteral("text"));
        m_guard.expectLogEntry(ELogLevel::Fault, QStringLiteral("test"), QStringLiteral("twice"));
        createLogEntry(ELogLevel::Fault, getCatId("test"), QStringLiteral("other text"));
        createLogEntry(ELogLevel::Fault, getCatId("test"), QStringLiteral("twice"));
        createLogEntry(ELogLevel::Fault, getCatId("test"), QStringLiteral("twice"));
        QCOMPARE(m_guard.finish().size(), 4);
    }

private:
    Tests::WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestWarningGuard)
#include "tst_warningguard.moc"
