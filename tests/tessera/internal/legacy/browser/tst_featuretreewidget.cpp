// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

// Helpers of one test need no meta object.
// clazy:excludeall=missing-qobject-macro

#include "internal/legacy/browser/featuretreewidget.h"

#include "internal/legacy/tree/featuretreeinodeitem.h"
#include "support/fakecollection.h"
#include "support/treetext.h"
#include "support/warningguard.h"

#include "host/framework/sourcerecord.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPointer>
#include <QRegion>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include <memory>

using Core::Logging::ELogLevel;
using ParameterCollection::IParameter;
using Tests::Fault;
using Tests::findRow;

namespace {

const QString path = QStringLiteral("@CameraDevice");

/// Collects what is painted anew.
class PaintSpy final : public QObject
{
public:
    explicit PaintSpy(QWidget *widget)
    {
        widget->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent *>(event)->region();
        }
        return QObject::eventFilter(watched, event);
    }
    QRegion painted;
};

} // namespace

class tst_FeatureTreeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_collection = QSharedPointer<Tests::FakeCollection>::create();
        m_collection->attach(
            path,
            QStringLiteral("Image name=Image_Format\n"
                           "  Width Integer 640 [16..1280]\n"
                           "  Gain Float 1.5 unit=dB expert\n"
                           "  Empty\n"
                           "  Inner guru\n"
                           "    Hidden String x invisible\n"
                           "    Lost Integer 1 ni\n"
                           "    Away Integer 1 na\n"
                           "    Mute String x wo\n"
                           "    AVeryLongNameThatDoesNotFitIntoTheColumn Boolean 1\n"
                           "Other\n"
                           "  Far Integer 3\n"));
        m_browser = std::make_unique<FeatureTreeWidget>(
            QString(),
            Core::AppCoreComponents::BaseInfoPtr(new Host::SourceRecord(QStringLiteral("Device"))),
            nullptr);
        m_view = m_browser->findChild<QTreeView *>(QStringLiteral("treeView"));
        m_browser->resize(500, 400);
        m_browser->show();
    }

    void cleanup()
    {
        m_browser.reset();
        m_guard.verify();
    }

    void copiesAllFeaturesAsText()
    {
        QCOMPARE(copied(), QString());
        add();
        QCOMPARE(copied(),
                 QStringLiteral("Camera\n"
                                "  Image Format                          \n"
                                "    Width                               \t640\n"
                                "    Gain [dB]                           \t1.5\n"
                                "    Empty                               \n"
                                "    Inner                               \n"
                                "      Lost                              \t<not implemented>\n"
                                "      Away                              \t<not available>\n"
                                "      Mute                              \t<not readable>\n"
                                "      AVeryLongNameThatDoesNotFitIntoTheColumn\t1\n"
                                "  Other                                 \n"
                                "    Far                                 \t3\n"));
    }

    void copiesWhatTheDeviceTells_data()
    {
        Tests::addFaultRows();
    }

    void copiesWhatTheDeviceTells()
    {
        QFETCH(Tests::Fault, fault);
        add();
        const QString category = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeWidget");
        for (const char *name : {"Width", "Gain", "Inner"}) {
            m_guard.expectLogEntry(
                ELogLevel::Fault, category,
                QRegularExpression(QStringLiteral("^featuretreewidget \\d+ could not retrieve "
                                                  "\"@CameraDevice/%1\" from parameter collection$")
                                       .arg(QLatin1String(name))));
        }
        m_collection->onParameter.insert(path + QLatin1String("/Width"), fault);
        node("Gain").onProperty = fault;
        m_collection->onChildren.insert(path + QLatin1String("/Inner"), fault);
        node("Empty").children.append(path + QLatin1String("/Image")); // holds itself
        node("Other").isNull = true;
        const QString text = copied();
        QVERIFY(!text.contains(QLatin1String("Width")));
        QVERIFY(!text.contains(QLatin1String("Gain")));
        QVERIFY(!text.contains(QLatin1String("Away")));
        QVERIFY(!text.contains(QLatin1String("Far")));
        QVERIFY(text.contains(QLatin1String("Inner")));
    }

    void readsOnlyWhatIsShown()
    {
        add();
        QVERIFY(m_view->isExpanded(row("Image Format")));
        QVERIFY(!m_view->isExpanded(row("Other")));
        QCOMPARE(row("Width", 1).data().toString(), QStringLiteral("640"));
        QCOMPARE(node("Width").refreshes, 1);
        QVERIFY(!node("Far").isSubscribed());
        m_view->collapse(row("Image Format"));
        QVERIFY(!node("Width").isSubscribed());

        m_browser->expandTree();
        QVERIFY(node("Far").isSubscribed() && node("Width").isSubscribed());
        m_view->collapse(row("Camera"));
        QVERIFY(!node("Far").isSubscribed());
        m_view->expand(row("Camera"));
        QVERIFY(node("Far").isSubscribed());
        QCOMPARE(node("Far").refreshes, 2);
    }

    void repaintsTheValueOfAnUpdate()
    {
        add();
        QVERIFY(QTest::qWaitForWindowExposed(m_browser.get()));
        QCoreApplication::processEvents();
        PaintSpy spy(m_view->viewport());
        node("Width").publish();
        QTRY_VERIFY(spy.painted.contains(m_view->visualRect(row("Width", 1)).center()));
        QVERIFY(!spy.painted.contains(m_view->visualRect(row("Gain [dB]", 1)).center()));
    }

    void hidesWhatIsAboveTheLevel()
    {
        const auto isHidden = [this](const char *name) {
            const QModelIndex index = row(name);
            return m_view->isRowHidden(index.row(), index.parent());
        };
        add();
        m_browser->expandTree();
        QVERIFY(isHidden("Lost"));
        QVERIFY(isHidden("Hidden"));
        QVERIFY(!isHidden("Gain [dB]"));

        QSignalSpy taken(m_browser.get(), &FeatureTreeWidget::visibilityChanged);
        const auto setLevel = [this](int level) {
            return QMetaObject::invokeMethod(m_browser.get(), "onVisibilityChanged",
                                             Q_ARG(int, level));
        };
        QVERIFY(setLevel(GenApi::Beginner));
        QVERIFY(isHidden("Gain [dB]"));
        QVERIFY(!node("Gain").isSubscribed());
        QVERIFY(!isHidden("Width"));

        QVERIFY(setLevel(GenApi::Invisible));
        QVERIFY(!isHidden("Hidden"));
        QVERIFY(!isHidden("Lost"));
        QVERIFY(node("Gain").isSubscribed());

        QVERIFY(setLevel(4) && setLevel(-1));
        QCOMPARE(taken.count(), 2);
        QCOMPARE(taken.value(1).value(0).value<GenApi::EVisibility>(), GenApi::Invisible);
    }

    void tellsTheCurrentParameter()
    {
        add();
        QVERIFY(!m_browser->currentItem());
        QSignalSpy current(
            m_browser.get(),
            qOverload<QSharedPointer<IParameter>>(&FeatureTreeWidget::onCurrentChanged));
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_view->visualRect(row("Width", 1)).center());
        QCOMPARE(current.count(), 1);
        QCOMPARE(current.value(0).value(0).value<QSharedPointer<IParameter>>(),
                 m_collection->parameter(path + QLatin1String("/Width")));
        QCOMPARE(m_browser->currentItem()->fullName(), path + QLatin1String("/Width"));

        QSignalSpy asked(m_browser.get(), &FeatureTreeWidget::contextMenuRequested);
        Q_EMIT m_view->customContextMenuRequested(QPoint(3, 4));
        QCOMPARE(asked.value(0).value(0).toPoint(), m_view->viewport()->mapToGlobal(QPoint(3, 4)));
        QVERIFY(asked.value(0).value(1).value<QSharedPointer<QMenu>>());
    }

    void refreshesTheCollection()
    {
        add();
        m_browser->refresh();
        m_collection->onUpdate = Fault::Host;
        m_guard.expectLogEntry(ELogLevel::Fault,
                               QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeModel"),
                               QRegularExpression(QStringLiteral("Failed to update nodes")));
        m_browser->refresh();
        QCOMPARE(m_collection->batchUpdates, 2);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void dropsAnOpenEditorWhenCleared()
    {
        add();
        QVERIFY(QTest::qWaitForWindowActive(m_browser.get()));
        const QPoint centre = m_view->visualRect(row("Width", 1)).center();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        QTest::mouseDClick(m_view->viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        const QPointer<QLineEdit> editor = m_view->viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, QStringLiteral("800"));
        node("Width").isNull = true; // unplugged

        m_browser->clear();
        QCOMPARE(m_view->model()->rowCount(), 0);
        QVERIFY(!m_browser->currentItem());
        QVERIFY(!node("Width").isSubscribed());
        node("Width").isNull = false;
        m_browser->repaint();
        add();
        m_view->expand(row("Image Format"));
        QVERIFY(node("Width").isSubscribed());
        m_browser.reset();
        QVERIFY(!editor);
        QVERIFY(node("Width").writes.isEmpty());
    }

private:
    Tests::FakeNode &node(const char *name) const
    {
        return m_collection->node(path + QLatin1Char('/') + QLatin1String(name));
    }
    QModelIndex row(const char *name, int column = 0) const
    {
        return findRow(*m_view->model(), QString::fromLatin1(name), column);
    }
    QString copied()
    {
        m_browser->copyToClipboard();
        return QGuiApplication::clipboard()->text();
    }
    void add()
    {
        m_browser->addParameterCollection(m_collection, QStringLiteral("Camera"), path, true);
    }

    QSharedPointer<Tests::FakeCollection> m_collection;
    std::unique_ptr<FeatureTreeWidget> m_browser;
    QTreeView *m_view = nullptr; // of the browser
    Tests::WarningGuard m_guard;
};

QTEST_MAIN(tst_FeatureTreeWidget)
#include "tst_featuretreewidget.moc"
