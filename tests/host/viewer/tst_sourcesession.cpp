// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "support/warningguard.h"

#include <host/framework/parameterpool.h>
#include <host/framework/serviceregistry.h>
#include <host/simulation/simulatedsource.h>
#include <host/viewer/sourcemodel.h>
#include <host/viewer/sourcesession.h>
#include <plugin/contract/core/baseexception.h>
#include <plugin/contract/viewer/featuretreecontrolservice.h>

#include <QAbstractItemModelTester>
#include <QtTest>

using Core::AppCoreComponents::BaseInfoPtr;
using Viewer::SourceModel;
using Viewer::SourceSession;

namespace {

/// Writes down what the panes are told, and whether the source was open at that moment.
class RecordingPanes final : public Plugin::FeatureTree::IFeatureTreeControlService
{
public:
    explicit RecordingPanes(SourceSession *session)
        : IFeatureTreeControlService(nullptr)
        , m_session(session)
    {
    }

    void registerParameterSource(BaseInfoPtr info) override
    {
        note("register", info);
    }
    void unregisterParameterSource(BaseInfoPtr info) override
    {
        note("unregister", info);
    }
    void setActiveParameterSource(BaseInfoPtr info) override
    {
        note("active", info);
    }
    void requestFeatureTreeRefresh() override
    {
        calls.append(QStringLiteral("refresh"));
    }

    QStringList calls;

private:
    void note(const char *call, const BaseInfoPtr &info)
    {
        QString name = QStringLiteral("none");
        for (int index = 0; index < m_session->count(); ++index) {
            if (m_session->record(index) == info) {
                name = m_session->id(index).section(QLatin1Char(':'), 1)
                    + (m_session->isOpen(index) ? QStringLiteral(" (open)")
                                                : QStringLiteral(" (closed)"));
            }
        }
        calls.append(QLatin1String(call) + QLatin1Char(' ') + name);
    }

    SourceSession *m_session; // borrowed
};

} // namespace

class SourceSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void refusesAnUnknownSource();
    void openingTellsThePanesAndMakesTheSourceActive();
    void closingTellsThePanesFirstAndNamesTheNextSource();
    void closingTheLastSourceNamesNone();
    void requestsAreCarriedOutFromTheEventLoop();
    void aReopenedSourceKeepsRecordAndCollection();
    void modelFollowsTheSession();

private:
    Tests::WarningGuard m_guard;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::ParameterPool> m_pool;
    QScopedPointer<SourceSession> m_session;
    QSharedPointer<RecordingPanes> m_panes;
};

void SourceSessionTest::init()
{
    m_guard.begin();
    m_registry = QSharedPointer<Host::ServiceRegistry>::create();
    m_pool = QSharedPointer<Host::ParameterPool>::create();
    m_session.reset(new SourceSession(m_registry, m_pool));
    m_session->add(QStringLiteral("simulated:gige"));
    m_session->add(QStringLiteral("simulated:usb"));
    m_panes = QSharedPointer<RecordingPanes>::create(m_session.data());
    m_registry->registerService(m_panes);
}

void SourceSessionTest::cleanup()
{
    m_session->closeAll();
    m_session.reset();
    m_registry->clear();
    m_guard.verify();
}

void SourceSessionTest::refusesAnUnknownSource()
{
    try {
        m_session->add(QStringLiteral("simulated:toaster"));
        QFAIL("the source was taken");
    } catch (const Core::Exception::BaseException &e) {
        QVERIFY(QString::fromUtf8(e.what()).contains(QStringLiteral("simulated:toaster")));
    }
    QCOMPARE(m_session->count(), 2);
}

void SourceSessionTest::openingTellsThePanesAndMakesTheSourceActive()
{
    m_session->open(0);
    m_session->open(1);
    m_session->open(0); // open already: becomes active, is not registered again
    QCOMPARE(
        m_panes->calls,
        (QStringList {QStringLiteral("register gige (open)"), QStringLiteral("active gige (open)"),
                      QStringLiteral("register usb (open)"), QStringLiteral("active usb (open)"),
                      QStringLiteral("active gige (open)")}));
    QCOMPARE(m_session->activeIndex(), 0);
}

void SourceSessionTest::closingTellsThePanesFirstAndNamesTheNextSource()
{
    m_session->open(0);
    m_session->open(1);
    m_panes->calls.clear();
    m_session->close(1);
    QCOMPARE(m_panes->calls,
             (QStringList {QStringLiteral("unregister usb (open)"),
                           QStringLiteral("active gige (open)")}));

    // A source that is not active goes: the panes show their hint, so the active one is named
    // again.
    m_session->open(1);
    m_panes->calls.clear();
    m_session->close(0);
    QCOMPARE(m_panes->calls,
             (QStringList {QStringLiteral("unregister gige (open)"),
                           QStringLiteral("active usb (open)")}));
}

void SourceSessionTest::closingTheLastSourceNamesNone()
{
    m_session->open(0);
    m_session->close(0);
    QCOMPARE(m_panes->calls.constLast(), QStringLiteral("active none"));
    QCOMPARE(m_session->activeIndex(), -1);
    QVERIFY(!m_session->isOpen(0));
}

void SourceSessionTest::requestsAreCarriedOutFromTheEventLoop()
{
    m_session->requestOpen(0);
    QVERIFY(!m_session->isOpen(0));
    QTRY_VERIFY(m_session->isOpen(0));
    m_session->requestClose(0);
    QVERIFY(m_session->isOpen(0));
    QTRY_VERIFY(!m_session->isOpen(0));
}

void SourceSessionTest::aReopenedSourceKeepsRecordAndCollection()
{
    m_session->open(0);
    const auto record = m_session->record(0);
    const auto collection = m_pool->parameterCollection(record);
    QVERIFY(collection);
    m_session->close(0);
    m_session->open(0);
    QCOMPARE(m_session->record(0), record);
    QCOMPARE(m_pool->parameterCollection(record), collection);
}

void SourceSessionTest::modelFollowsTheSession()
{
    SourceModel model(m_session.data());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto state = [&model](int row) {
        return model.index(row, SourceModel::State).data().toString();
    };
    QCOMPARE(model.rowCount(), 2);
    m_session->open(0);
    m_session->open(1);
    QCOMPARE(state(0), QStringLiteral("open"));
    QCOMPARE(state(1), QStringLiteral("active"));
    QVERIFY(model.index(1, 0).data(Qt::FontRole).value<QFont>().bold());
    m_session->close(1);
    QCOMPARE(state(0), QStringLiteral("active"));
    QCOMPARE(state(1), QStringLiteral("closed"));
    m_session->add(QStringLiteral("simulated:workbench"));
    QCOMPARE(model.rowCount(), 3);
}

QTEST_MAIN(SourceSessionTest)
#include "tst_sourcesession.moc"
