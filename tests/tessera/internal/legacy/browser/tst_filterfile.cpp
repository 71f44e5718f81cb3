// SPDX-FileCopyrightText: 2026 Tessera contributors
// SPDX-License-Identifier: MIT

#include "internal/legacy/browser/filterfile.h"

#include "support/fakecollection.h"
#include "support/warningguard.h"

#include <QCoreApplication>
#include <QTest>

#include <memory>

using Core::Logging::ELogLevel;
using Tests::Fault;

namespace {

const QString browserLog = QStringLiteral("vantrel.viewer.plugins.tessera.featureTreeWidget");
const QString role = QStringLiteral("@FilterTest0"); // no other program looks for its files

QByteArray rule(const char *feature, const QByteArray &more)
{
    return QByteArray("<Rule><Name>@FilterTest/") + feature + "</Name>" + more + "</Rule>";
}

QByteArray filter(const QByteArray &rules)
{
    return "<Filter>" + rules + "</Filter>";
}

} // namespace

class TestFilterFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_guard.begin();
        m_camera = std::make_unique<Tests::FakeCollection>();
        m_camera->attach(QStringLiteral("@FilterTest"),
                         QStringLiteral("Gain Float 1\nWidth Integer 2\n"));
    }

    void cleanup()
    {
        for (const QString &path : qAsConst(m_written)) {
            QVERIFY(QFile::remove(path));
        }
        m_written.clear();
        m_guard.verify();
    }

    void namesGoFromTheModelToTheDefault_data()
    {
        QTest::addColumn<QString>("names");
        QTest::newRow("@CameraDevice")
            << QStringLiteral("X_CameraDevice_Filter.xml CameraDevice_Filter.xml ");
        QTest::newRow("@StreamGrabber0")
            << QStringLiteral("X_StreamGrabber_Filter.xml StreamGrabber_Filter.xml ");
        QTest::newRow("@A@1b22") << QStringLiteral("X_A@1b_Filter.xml A@1b_Filter.xml ");
        QTest::newRow("@@9") << QStringLiteral("X_Filter.xml ");
    }
    void namesGoFromTheModelToTheDefault()
    {
        QFETCH(const QString, names);
        const FilterFile file(QStringLiteral("X"), QLatin1String(QTest::currentDataTag()));
        QCOMPARE(file.names().join(QLatin1Char(' ')), names + QLatin1String("Default_Filter.xml"));
    }

    // "Shipped_FilterTest_Filter.xml" stands in the resources of this program too.
    void firstFileThatOpensIsTheOnlyOne_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QStringList>("files"); // below the folder of the application
        QTest::addColumn<QString>("winner");
        const QString ofModel = QStringLiteral("/Shipped_FilterTest_Filter.xml");
        const QString backslash = QStringLiteral("\\Shipped_FilterTest_Filter.xml");
        const QString ofRole = QStringLiteral("/FilterTest_Filter.xml");
        const auto row = [](const char *title, const char *model, const QStringList &files,
                            const QString &winner) {
            QTest::newRow(title) << QString::fromLatin1(model) << files << winner;
        };
        row("backslash first", "Shipped", {ofModel, backslash}, backslash);
        row("folder before resource", "Shipped", {ofRole, ofModel}, ofModel);
        row("resource before the next name", "Shipped", {ofRole}, QStringLiteral("resource"));
        row("without the model", "Other", {ofModel, ofRole}, ofRole);
        row("the host's default has no rule", "Other", {ofModel}, QString());
    }
    void firstFileThatOpensIsTheOnlyOne()
    {
        QFETCH(const QString, model);
        QFETCH(const QStringList, files);
        QFETCH(const QString, winner);
        for (const QString &file : files) {
            write(file, filter(rule("Gain", "<Visibility>" + file.toUtf8() + "</Visibility>")));
        }
        QVERIFY(FilterFile(model, role).apply(*m_camera));
        QCOMPARE(overrides("Gain").value(QStringLiteral("Visibility")), winner);
    }

    void everyRuleThatHoldsIsApplied_data()
    {
        QTest::addColumn<QByteArray>("rules");
        QTest::addColumn<QString>("gain"); // visibility/access
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("entry");
        const QByteArray expert = "<Visibility>Expert</Visibility>";
        const QByteArray locked = "<AccessMode>RO</AccessMode>";
        const auto row = [](const char *title, const QByteArray &rules, const char *gain,
                            const char *width, const char *entry = nullptr) {
            QTest::newRow(title) << rules << QString::fromUtf8(gain) << QString::fromUtf8(width)
                                 << QString::fromLatin1(entry);
        };
        row("both", rule("Gain", expert + locked), "Expert/RO", "/");
        row("access alone", rule("Gain", locked), "/RO", "/");
        row("values are the node's business", rule("Gain", "<Visibility>Größe </Visibility>"),
            "Größe /", "/");
        row("empty override", rule("Gain", "<Visibility/>" + locked), "/RO", "/");
        row("unknown feature", rule("Lacking", expert) + rule("Width", locked), "/", "/RO");
        row("no name", "<R><N>x</N></R>" + rule("Width", locked), "/", "/RO",
            "failed to get the name of a filter item");
        row("empty name", "<R><Name/></R>" + rule("Width", locked), "/", "/RO", "empty name found");
        row("deep, and the first of each",
            "<!-- --><R><A>" + rule("Gain", expert) + rule("Width", locked) + "</A></R>text",
            "Expert/RO", "/");
        row("very many", rule("Width", locked).repeated(20000) + rule("Gain", expert), "Expert/",
            "/RO");
    }
    void everyRuleThatHoldsIsApplied()
    {
        QFETCH(const QByteArray, rules);
        QFETCH(const QString, gain);
        QFETCH(const QString, width);
        QFETCH(const QString, entry);
        if (!entry.isEmpty()) {
            expectRuleEntry(entry);
        }
        QVERIFY(apply(filter(rules)));
        QCOMPARE(overridesText("Gain"), gain);
        QCOMPARE(overridesText("Width"), width);
    }

    void fileThatIsNoXmlIsNamed_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = filter(rule("Gain", "<Visibility>Expert</Visibility>"));
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << good.chopped(3);
        QTest::newRow("not UTF-8")
            << QByteArray("<?xml version='1.0' encoding='UTF-8'?>\xff\xfe\x01");
        QTest::newRow("other format") << QByteArray("{\"Filter\":[]}");
        QTest::newRow("nested without end") << QByteArray("<a>").repeated(200000);
        QByteArray entities = "<!DOCTYPE f [<!ENTITY a 'aaaaaaaaaa'>";
        for (char name = 'a'; name < 'm'; ++name) {
            const QByteArray ten = QByteArray(QByteArray("&") + name + ";").repeated(10);
            entities += QByteArray("<!ENTITY ") + char(name + 1) + " '" + ten + "'>";
        }
        QTest::newRow("growing entities") << QByteArray(entities + "]><f>&m;</f>");
    }
    void fileThatIsNoXmlIsNamed()
    {
        QFETCH(const QByteArray, content);
        const QString path = QCoreApplication::applicationDirPath();
        m_guard.expectLogEntry(
            ELogLevel::Fault, browserLog,
            QRegularExpression(QStringLiteral("^Failed to parse file %1/Test_FilterTest_Filter.xml:"
                                              " .+ \\(\\d+, \\d+\\)$")
                                   .arg(QRegularExpression::escape(path))));
        QVERIFY(!apply(content));
        QCOMPARE(overridesText("Gain"), QStringLiteral("/"));
    }

    void nullFeatureNeedsATargetForFilters()
    {
        const QByteArray rules = rule("Gain", "<AccessMode>NA</AccessMode>")
            + rule("Width", "<AccessMode>NA</AccessMode>");
        node("Gain").isNull = node("Width").isNull = true;
        node("Width").hasFilterTarget = true;
        QVERIFY(apply(filter(rules)));
        QCOMPARE(overridesText("Gain"), QStringLiteral("/"));
        QCOMPARE(overridesText("Width"), QStringLiteral("/NA"));
    }

    void exceptionsAreLoggedAndPassedOver_data()
    {
        Tests::addFaultRows();
    }
    void exceptionsAreLoggedAndPassedOver()
    {
        QFETCH(const Fault, fault);
        m_camera->onParameter.insert(QStringLiteral("@FilterTest/Lost"), fault);
        node("Gain").onOverride = fault;
        expectRuleEntry("could not retrieve \"@FilterTest/Lost\" from parameter collection");
        expectRuleEntry("failed to set visibility on node @FilterTest/Gain");
        expectRuleEntry("failed to set access mode on node @FilterTest/Gain");
        const QByteArray both = "<Visibility>Guru</Visibility><AccessMode>RO</AccessMode>";
        QVERIFY(apply(filter(rule("Lost", both) + rule("Gain", both) + rule("Width", both))));
        QCOMPARE(overridesText("Width"), QStringLiteral("Guru/RO"));
    }

private:
    Tests::FakeNode &node(const char *feature)
    {
        return m_camera->node(QLatin1String("@FilterTest/") + QLatin1String(feature));
    }
    QMap<QString, QString> overrides(const char *feature)
    {
        return node(feature).properties;
    }
    QString overridesText(const char *feature)
    {
        return overrides(feature).value(QStringLiteral("Visibility")) + QLatin1Char('/')
            + overrides(feature).value(QStringLiteral("AccessMode"));
    }
    void expectRuleEntry(const QString &text)
    {
        m_guard.expectLogEntry(ELogLevel::Fault, browserLog,
                               QRegularExpression(QStringLiteral("^featuretreewidget \\d+ %1$")
                                                      .arg(QRegularExpression::escape(text))));
    }
    void expectRuleEntry(const char *text)
    {
        expectRuleEntry(QString::fromLatin1(text));
    }
    void write(const QString &name, const QByteArray &content)
    {
        QFile file(QCoreApplication::applicationDirPath() + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        m_written.append(file.fileName());
    }
    bool apply(const QByteArray &content)
    {
        write(QStringLiteral("/Test_FilterTest_Filter.xml"), content);
        return FilterFile(QStringLiteral("Test"), role).apply(*m_camera);
    }

    Tests::WarningGuard m_guard;
    std::unique_ptr<Tests::FakeCollection> m_camera;
    QStringList m_written;
};

QTEST_GUILESS_MAIN(TestFilterFile)

#include "tst_filterfile.moc"
