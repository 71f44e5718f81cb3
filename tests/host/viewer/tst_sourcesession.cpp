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
#include <plugin/contract/parametercollection/parameter.h>
#include <plugin/contract/parametercollection/parametercollection.h>
#include <plugin/contract/viewer/featuretreecontrolservice.h>

#include <QAbstractItemModelTester>
#include <QtTest>

using Core::AppCoreComponents::BaseInfoPtr;
using Viewer::SourceModel;
using Viewer::SourceSession;

namespace {

/// Writes down what the panes are told, in capitals where the source was open at that moment.
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
        m_calls += QStringLiteral("+") + nameOf(info);
    }
    void unregisterParameterSource(BaseInfoPtr info) override
    {
        m_calls += QStringLiteral("-") + nameOf(info);
    }
    void setActiveParameterSource(BaseInfoPtr info) override
    {
        m_calls += QStringLiteral("active ") + nameOf(info);
    }
    void requestFeatureTreeRefresh() override
    {
        m_calls += QStringLiteral("refresh");
    }

    /// The calls since the last time.
    QString takeCalls()
    {
        return std::exchange(m_calls, {}).join(QStringLiteral(", "));
    }

private:
    QString nameOf(const BaseInfoPtr &info) const
    {
        for (int index = 0; index < m_session->count(); ++index) {
            if (m_session->record(index) == info) {
                const QString name = m_session->id(index).section(QLatin1Char(':'), 1);
                return m_session->isOpen(index) ? name.toUpper() : name;
            }
        }
        return QStringLiteral("none");
    }

    QStringList m_calls;
    SourceSession *m_session; // borrowed
};

} // namespace

/// The two cameras of a session, opened and closed.
class SourceSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
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

    void cleanup()
    {
        m_session->closeAll();
        m_session.reset();
        m_registry->clear();
        m_guard.verify();
    }

    void openingTellsThePanesAndMakesTheSourceActive()
    {
        m_session->open(0);
        m_session->open(1);
        m_session->open(0); // open already: becomes active, is not registered again
        QCOMPARE(m_panes->takeCalls(),
                 QStringLiteral("+GIGE, active GIGE, +USB, active USB, active GIGE"));
        QCOMPARE(m_session->activeIndex(), 0);
    }

    void closingTellsThePanesFirstAndNamesTheNextSource()
    {
        m_session->open(0);
        m_session->open(1);
        m_panes->takeCalls();
        m_session->close(1);
        QCOMPARE(m_panes->takeCalls(), QStringLiteral("-USB, active GIGE"));

        // A source that is not active goes: the panes show their hint, so the active one is named
        // again.
        m_session->open(1);
        m_panes->takeCalls();
        m_session->close(0);
        QCOMPARE(m_panes->takeCalls(), QStringLiteral("-GIGE, active USB"));
        m_session->close(1);
        QCOMPARE(m_panes->takeCalls(), QStringLiteral("-USB, active none"));
        QCOMPARE(m_session->activeIndex(), -1);
    }

    void requestsAreCarriedOutFromTheEventLoop()
    {
        m_session->requestOpen(0);
        QVERIFY(!m_session->isOpen(0));
        QTRY_VERIFY(m_session->isOpen(0));
        m_session->requestClose(0);
        QVERIFY(m_session->isOpen(0));
        QTRY_VERIFY(!m_session->isOpen(0));
    }

    void aReopenedSourceKeepsRecordCollectionAndParameters()
    {
        m_session->open(0);
        const auto record = m_session->record(0);
        const auto collection = m_pool->parameterCollection(record);
        const auto width = collection->parameter(QStringLiteral("@CameraDevice/Width"));
        m_session->close(0);
        QVERIFY(width->isNull());
        m_session->open(0);
        QVERIFY(!width->isNull());
        QCOMPARE(m_session->record(0), record);
        QCOMPARE(m_pool->parameterCollection(record), collection);
        QCOMPARE(collection->parameter(width->fullName()), width);
    }

    void modelFollowsTheSession()
    {
        SourceModel model(m_session.data());
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto states = [&model] {
            const auto state = [&](int row) { return model.index(row, SourceModel::State).data(); };
            return QStringList {state(0).toString(), state(1).toString()}.join(QLatin1Char(' '));
        };
        m_session->open(0);
        m_session->open(1);
        QCOMPARE(states(), QStringLiteral("open active"));
        QVERIFY(model.index(1, 0).data(Qt::FontRole).value<QFont>().bold());
        m_session->close(1);
        QCOMPARE(states(), QStringLiteral("active closed"));
        m_session->add(QStringLiteral("simulated:workbench"));
        QCOMPARE(model.rowCount(), 3);
    }

private:
    Tests::WarningGuard m_guard;
    QSharedPointer<Host::ServiceRegistry> m_registry;
    QSharedPointer<Host::ParameterPool> m_pool;
    QScopedPointer<SourceSession> m_session;
    QSharedPointer<RecordingPanes> m_panes;
};

QTEST_MAIN(SourceSessionTest)
#include "tst_sourcesession.moc"
